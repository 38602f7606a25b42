// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/strings/source.h"
#include "skydata/files/object_names.h"

#include "common_interfaces/string_table.h"
#include "skydata/files/source_error.h"
#include "support/debug_capture.h"
#include "tests/skydata/strings/fixture.h"

namespace skydata {
namespace {

class StringsReader : public skydata_test::StringsTest {};

TEST_F(StringsReader, TheLanguageIsTheNameOfTheFolderUnlessItIsGiven) {
  const std::string path = m_Dir.Write("ru/s.txt", "");
  EXPECT_EQ(ReadStrings(path).language, "ru");
  EXPECT_EQ(ReadStrings(path).page, CodePage::kCyrillic);
  EXPECT_EQ(ReadStrings(path, "de").language, "de");
  EXPECT_EQ(ReadStrings(path, "de").page, CodePage::kWestern);
}

TEST_F(StringsReader, ValidUtf8IsTakenAsSuch) {
  const StringsSource source = Read("13063\t\u0434\u0435\u043D\u044C\n", "ru");
  EXPECT_TRUE(source.isUtf8);
  ASSERT_EQ(source.entries.size(), 1u);
  EXPECT_EQ(source.entries[0].text, "\u0434\u0435\u043D\u044C");
}

TEST_F(StringsReader, AnythingElseIsInTheCodePageOfTheLanguage) {
  const StringsSource source = Read("13063\t\xE4\xE5\xED\xFC\n", "ru");
  EXPECT_FALSE(source.isUtf8);
  ASSERT_EQ(source.entries.size(), 1u);
  EXPECT_EQ(source.entries[0].text, "\u0434\u0435\u043D\u044C");
}

// Told as a character that the page lacks; the line is an entry all the same.
TEST_F(StringsReader, AnIdentifierThatThePageLacksCountsByItsBytes) {
  const StringsSource source = Read("\u044F\u044F\u044F\u044F\tText\n", "en");
  ASSERT_EQ(source.entries.size(), 1u);
  EXPECT_EQ(source.entries[0].identifier, 0xD18FD18Fu);
  EXPECT_TRUE(source.strayTabs.empty());
}

TEST_F(StringsReader, AnEncodingThatIsGivenIsNotDetected) {
  // Two bytes that are one character of UTF-8 and two of windows-1252.
  EXPECT_EQ(Read("1\t\xC3\xA4\n", "en", StringsEncoding::kCodePage).entries[0].text, "\u00C3\u00A4");
  EXPECT_EQ(Read("1\t\xC3\xA4\n", "en", StringsEncoding::kUtf8).entries[0].text, "\u00E4");
}

TEST_F(StringsReader, AByteOrderMarkAndCarriageReturnsAreNoText) {
  const StringsSource source = Read(
      "\xEF\xBB\xBF"
      "7200\tLocal\r\n\r\n7201\tUT");
  ASSERT_EQ(source.lines.size(), 3u);
  ASSERT_EQ(source.entries.size(), 2u);
  EXPECT_EQ(source.entries[0].identifier, 7200u);
  EXPECT_EQ(source.entries[0].written, "Local");
  EXPECT_EQ(source.entries[1].line, 3);
}

TEST_F(StringsReader, AnEntryKnowsWhereItsTextStands) {
  const StringsSource source = Read("\tstar\t\t Star\\n \tnote\n");
  ASSERT_EQ(source.entries.size(), 1u);
  EXPECT_EQ(source.entries[0].written, " Star\\n ");
  EXPECT_EQ(source.entries[0].begin, 7);
  EXPECT_EQ(source.entries[0].text, "Star\n");
}

TEST_F(StringsReader, AMissingFileIsAnError) {
  EXPECT_THROW(ReadStrings(m_Dir.Path("none.txt")), SourceError);
}

TEST_F(StringsReader, EveryIdentifierAndTextIsThatOfTheLibrary) {
  using CommonInterfaces::QX4Strings;
  const std::string table =
      "no entry\nabc\ttext\n12ab\ta\n\t 13\tb\n  ab\tc\nstar\t\td \\n\\q\\\\\"\n-1\te\n4294967298\tf\n+7\tg\n"
      "\xE4\xF6\xFC\xDF\th\n 0x9\ti\n40\t\n41\t  \n42\tk\tnote\nstarlight\tj\n";
  const test_support::TempRoots roots;
  const test_support::DebugCapture capture;
  roots.dir.Write("data/qxstrings.txt", table);
  QX4Strings::StartLocaleUpdate();
  const QX4Strings loaded;
  QX4Strings::FinishLocaleUpdate();
  const StringsSource source = Read(table, "en", StringsEncoding::kCodePage);
  EXPECT_EQ(source.entries.size(), 12u);
  for (const StringsEntry& entry : source.entries) {
    if (entry.identifier == 0x73746172) continue;  // twice: the library keeps the last
    const char* const text = QX4Strings::GetString(entry.identifier, true);
    ASSERT_NE(text, nullptr) << entry.line;
    EXPECT_EQ(CodePageToUtf8(CodePage::kWestern, text), entry.text) << entry.line;
  }
}

TEST_F(StringsReader, IdentifiersAreNamedAsPeopleWriteThem) {
  EXPECT_EQ(NameIdentifier(7200), "7200");
  EXPECT_EQ(NameIdentifier(0x73746172), "star");
  EXPECT_EQ(NameIdentifier(0x20206162), "538992994");  // blanks would be lost
  EXPECT_EQ(NameIdentifier(0xFFFFFFFF), "4294967295");
}

}  // namespace
}  // namespace skydata
