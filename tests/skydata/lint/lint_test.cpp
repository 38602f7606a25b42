// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/lint/lint.h"

#include <gtest/gtest.h>

#include "skydata/build/data_root.h"
#include "skydata/files/source_error.h"
#include "support/temp_dir.h"
#include "tests/skydata/strings/fixture.h"
#include "utils/code_page.h"
#include "utils/utf8.h"

namespace skydata {
namespace {

std::string FindingsOf(const test_support::TempDir& dir) {
  std::string lines;
  for (const LintFinding& finding : Lint(dir.Path("root"))) lines += FormatFinding("", finding);
  return lines;
}

TEST(LintRoot, TheShippedDataHaveNoFinding) {
  const test_support::TempDir dir;
  BuildDataRoot(CI_DATA_SOURCE, dir.Path("root"), "en");
  EXPECT_EQ(FindingsOf(dir), "");
}

TEST(LintRoot, AnotherDefaultLanguageIsFoundByItsBytes) {
  const test_support::TempDir dir;
  BuildDataRoot(CI_DATA_SOURCE, dir.Path("root"), "ru");
  EXPECT_EQ(FindingsOf(dir), "");
}

TEST(LintRoot, AFolderThatIsNotThereThrows) {
  const test_support::TempDir dir;
  EXPECT_THROW(Lint(dir.Path("none")), SourceError);
}

TEST(LintRoot, AnEmptyFolderHasNoFinding) {
  const test_support::TempDir dir;
  std::filesystem::create_directories(dir.Path("root"));
  EXPECT_EQ(FindingsOf(dir), "");
}

TEST(LintRoot, DamagedHomesAreToldInTheWordsOfTheirReader) {
  const test_support::TempDir dir;
  dir.Write("root/home_params.ini", "1\n0 2 0\n");
  const std::string findings = FindingsOf(dir);
  EXPECT_EQ(findings.find("home_params.ini:0:0: error: reader-message: its reader says: File "), 0u)
      << findings;
  EXPECT_NE(findings.find("home 1 is damaged"), std::string::npos) << findings;
  EXPECT_EQ(std::count(findings.begin(), findings.end(), '\n'), 1);
}

TEST(LintRoot, AHomeThatIsWholeHasNoFinding) {
  const test_support::TempDir dir;
  dir.Write("root/home_params.ini", "1\n0 2 0 0.151844 0.87441 1 2 1886154356 3 1\nFrankfurt\n");
  EXPECT_EQ(FindingsOf(dir), "");
}

#ifndef _WIN32
TEST(LintRoot, ALinkThatLeadsNowhereCannotBeRead) {
  const test_support::TempDir dir;
  std::filesystem::create_directories(dir.Path("root/catalogs"));
  std::filesystem::create_symlink("none", dir.Path("root/catalogs/stars.txt"));
  EXPECT_EQ(FindingsOf(dir), "catalogs/stars.txt:0:0: error: unreadable: the file cannot be read\n");
}
#endif

// The text in the code page of English, "?" for what it lacks.
std::string Encode(const std::string& utf8) {
  std::string bytes;
  for (int at = 0, length = 1; at < static_cast<int>(utf8.size()); at += length) {
    DecodeUtf8(utf8, at, &length);
    std::string byte;
    const std::string character = utf8.substr(static_cast<std::size_t>(at), static_cast<std::size_t>(length));
    bytes += Utf8ToCodePage(CodePage::kWestern, character, &byte, nullptr) ? byte : "?";
  }
  return bytes;
}

class LintTable : public testing::Test {
 protected:
  std::string Check() {
    m_Dir.Write("root/qxstrings.txt", Encode(m_Text.Get()));
    return FindingsOf(m_Dir);
  }
  // Findings about the whole table with another line in the place of an entry; N stands for the number of
  // that line.
  std::string CheckWith(const std::string& identifier, const std::string& line) {
    const std::string number = ":" + std::to_string(m_Text.Replace(identifier, line)) + ":";
    std::string findings = Check();
    for (auto at = findings.find(number); at != std::string::npos; at = findings.find(number, at + 1)) {
      findings.replace(at, number.size(), ":N:");
    }
    return findings;
  }
  skydata_test::StringsText m_Text;
  test_support::TempDir m_Dir;
};

TEST_F(LintTable, OfAllTextsHasNoFinding) { EXPECT_EQ(Check(), ""); }

TEST_F(LintTable, AShowerOnADayThatIsNone) {
  EXPECT_EQ(CheckWith("6102", "6102\tLyrids;31;4;22;4;27;13;LYR;Thatcher;18;9;+33"),
            "qxstrings.txt:N:13: error: bad-date: there is no day 31 of month 4\n"
            "qxstrings.txt:N:23: error: bad-date: there is no day 27 of month 13\n");
}

TEST_F(LintTable, AShowerOutOfRange) {
  EXPECT_EQ(CheckWith("6102", "6102\tLyrids;16;4;22;4;27;4;LYR;Thatcher;24;60;+91"),
            "qxstrings.txt:N:41: error: out-of-range: hours 24 is not from 0 to 23\n"
            "qxstrings.txt:N:44: error: out-of-range: minutes 60 is not from 0 to 59\n"
            "qxstrings.txt:N:47: error: out-of-range: declination 91 is not from -90 to 90\n");
}

TEST_F(LintTable, AShowerWithTheNameOfAnother) {
  const std::string first =
      std::to_string(m_Text.Replace("6101", "6101\tLyrids;16;4;22;4;27;4;LYR;Thatcher;18;9;+33"));
  EXPECT_EQ(Check(), "qxstrings.txt:" + std::to_string(std::stoi(first) + 1) +
                         ":6: error: duplicate: the shower 'Lyrids' stands in line " + first + " already\n");
}

TEST_F(LintTable, AShowerOfElevenFieldsHasTheCodeOfTheTables) {
  EXPECT_EQ(CheckWith("6102", "6102\tLyrids;16;4;22;4;27;4;LYR;Thatcher;18;9"),
            "qxstrings.txt:N:0: error: shower: 6102 has 11 fields, wants 12\n");
}

TEST_F(LintTable, AShowerBehindAGap) {
  EXPECT_EQ(CheckWith("6106", ""), "qxstrings.txt:N:0: error: shower: 6107 is not read: 6106 is missing\n");
}

TEST_F(LintTable, ATextTwice) {
  const std::string line = std::to_string(m_Text.Replace("7200", "7200\tLocal time"));
  m_Text.Append("7200\tTime");
  EXPECT_EQ(Check(), "qxstrings.txt:" + std::to_string(m_Text.NextLine() - 1) +
                         ":0: error: conflict: 7200 stands in line " + line +
                         " already, with another text\n");
}

TEST_F(LintTable, ATableInUtf8) {
  m_Dir.Write("root/qxstrings.txt", m_Text.Get());
  EXPECT_EQ(FindingsOf(m_Dir),
            "qxstrings.txt:0:0: error: encoding: the table is in UTF-8, its reader wants windows-1252\n");
}

TEST_F(LintTable, ALineThatIsTooLong) {
  const std::string number = std::to_string(m_Text.NextLine());
  m_Text.Append("900500\t" + std::string(5000, 'a'));
  EXPECT_EQ(Check(), "qxstrings.txt:" + number +
                         ":0: error: long-line: has 5007 bytes, the library reads 4095 of a line\n");
}

TEST_F(LintTable, TablesOfLanguagesAreCompared) {
  m_Dir.Write("root/languages/en/qxstrings.txt", Encode(m_Text.Get()));
  m_Dir.Write("root/languages/de/qxstrings.txt", Encode(m_Text.Append("900500\tmehr").Get()));
  const std::string findings = FindingsOf(m_Dir);
  EXPECT_NE(findings.find("languages/en/qxstrings.txt:"), std::string::npos);
  EXPECT_NE(findings.find(": error: untranslated: 900500 is missing"), std::string::npos);
}

}  // namespace
}  // namespace skydata
