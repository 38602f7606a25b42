// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/string_table.h"

#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/debug_capture.h"
#include "support/string_table_file.h"
#include "support/temp_dir.h"
#include "utils/text.h"

namespace CommonInterfaces {

// The table is final after Done; only a test of Done takes that back.
struct StringTableTestAccess {
  static void ReviveAfterDone() { QX4Strings::s_Done = false; }
  static bool IsLoaded() { return QX4Strings::s_Pool != nullptr; }
};

namespace {

using Lines = std::vector<std::string>;
using test_support::LoadStrings;

// Every test begins with a table that is not loaded and has no texts, and with empty roots.
class StringTable : public testing::Test {
 protected:
  StringTable() { Forget(); }
  ~StringTable() override {
    Forget();
    QX4Strings::SetProgrmaNameId(-1);
  }
  static void Forget() {
    QX4Strings::StartLocaleUpdate();
    QX4Strings::FinishLocaleUpdate();
  }
  void WriteFile(const std::string& content) { roots.dir.Write("data/qxstrings.txt", content); }

  test_support::TempRoots roots;
  test_support::DebugCapture debug;
};

TEST_F(StringTable, ConstructionLoadsTheFile) {
  WriteFile("7200\tLocal time\nstar\tStar\n");
  QX4Strings strings;
  EXPECT_STREQ(QX4Strings::GetString(7200, false), "Local time");
  EXPECT_STREQ(QX4Strings::GetString(0x73746172, false), "Star");
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(StringTable, FileOfTheWorkAreaHidesTheOneOfTheDataRoot) {
  WriteFile("7\tdata\n");
  roots.dir.Write("work/qxstrings.txt", "7\twork\n");
  QX4Strings strings;
  EXPECT_STREQ(QX4Strings::GetString(7, false), "work");
}

TEST_F(StringTable, SecondConstructionDoesNotReadTheFileAgain) {
  LoadStrings(roots, "7\tfirst\n");
  const char* const text = QX4Strings::GetString(7, false);
  WriteFile("7\tsecond\n");
  QX4Strings strings;
  EXPECT_EQ(QX4Strings::GetString(7, false), text);
  EXPECT_STREQ(text, "first");
}

TEST_F(StringTable, UnknownIdentifierIsReported) {
  LoadStrings(roots, "7\ttext\n");
  EXPECT_EQ(QX4Strings::GetString(8, false), nullptr);
  EXPECT_EQ(debug.lines, Lines{"String with ID = 8 not found in file qxstrings.txt\n"});
}

TEST_F(StringTable, LargeIdentifierIsReportedAsANegativeNumber) {
  LoadStrings(roots, "7\ttext\n");
  EXPECT_EQ(QX4Strings::GetString(0xFF8081FE, false), nullptr);
  EXPECT_EQ(debug.lines, Lines{"String with ID = -8355330 not found in file qxstrings.txt\n"});
}

TEST_F(StringTable, UnknownIdentifierIsNotReportedWhenQuiet) {
  LoadStrings(roots, "7\ttext\n");
  EXPECT_EQ(QX4Strings::GetString(8, true), nullptr);
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(StringTable, MissingFileIsReportedAndLeavesAnEmptyTable) {
  QX4Strings strings;
  EXPECT_EQ(debug.lines, Lines{"File qxstrings.txt not found\n"});
  EXPECT_EQ(QX4Strings::GetString(7, true), nullptr);
}

TEST_F(StringTable, MissingFileIsLookedForAgain) {
  { QX4Strings strings; }
  WriteFile("7\ttext\n");
  { QX4Strings strings; }
  EXPECT_STREQ(QX4Strings::GetString(7, false), "text");
  EXPECT_EQ(debug.lines.size(), 1U);
}

TEST_F(StringTable, FolderInPlaceOfTheFileIsReportedAsMissing) {
  std::filesystem::create_directories(roots.dir.Path("data/qxstrings.txt"));
  QX4Strings strings;
  EXPECT_EQ(debug.lines, Lines{"File qxstrings.txt not found\n"});
  EXPECT_FALSE(StringTableTestAccess::IsLoaded());
}

TEST_F(StringTable, EmptyFileIsALoadedTableWithoutTexts) {
  WriteFile("");
  { QX4Strings strings; }
  EXPECT_TRUE(StringTableTestAccess::IsLoaded());
  WriteFile("7\ttext\n");
  { QX4Strings strings; }
  EXPECT_EQ(QX4Strings::GetString(7, true), nullptr);
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(StringTable, SameTextTwiceIsADuplicate) {
  LoadStrings(roots, "7\ttext\n7\ttext\n");
  EXPECT_EQ(debug.lines, Lines{"Duplicated string, ID = 7\n"});
  EXPECT_STREQ(QX4Strings::GetString(7, false), "text");
}

TEST_F(StringTable, TwoTextsAreAConflictAndTheLaterOneWins) {
  LoadStrings(roots, "7\tone\n7\ttwo\n");
  EXPECT_EQ(debug.lines, Lines{"Strings conflict, ID = 7\nOld: one\nNew: two\n"});
  EXPECT_STREQ(QX4Strings::GetString(7, false), "two");
}

TEST_F(StringTable, EveryFurtherConflictIsReportedAgainstTheLastText) {
  LoadStrings(roots, "7\tone\n7\ttwo\n7\tone\n");
  EXPECT_EQ(debug.lines, (Lines{"Strings conflict, ID = 7\nOld: one\nNew: two\n",
                                "Strings conflict, ID = 7\nOld: two\nNew: one\n"}));
  EXPECT_STREQ(QX4Strings::GetString(7, false), "one");
}

TEST_F(StringTable, PercentSignsInAConflictAreText) {
  LoadStrings(roots, "7\t%s%n\n7\t100 %\n");
  EXPECT_EQ(debug.lines, Lines{"Strings conflict, ID = 7\nOld: %s%n\nNew: 100 %\n"});
}

TEST_F(StringTable, ConflictIsJudgedWithTheEscapesResolved) {
  LoadStrings(roots, "7\tsay \\\"x\\\"\n7\tsay \"x\"\n");
  EXPECT_EQ(debug.lines, Lines{"Duplicated string, ID = 7\n"});
}

TEST_F(StringTable, NumberAndCodeOfTheSameValueAreTheSameIdentifier) {
  LoadStrings(roots, "star\tone\n1937006962\ttwo\n");  // 0x73746172
  EXPECT_EQ(debug.lines, Lines{"Strings conflict, ID = 1937006962\nOld: one\nNew: two\n"});
}

TEST_F(StringTable, BlankLinesAndCommentsDoNotEndTheLoading) {
  LoadStrings(roots, "1\tone\n\n\r\n}\n! a comment\n\t\t\nno tab\n2\ttwo\n");
  EXPECT_STREQ(QX4Strings::GetString(1, false), "one");
  EXPECT_STREQ(QX4Strings::GetString(2, false), "two");
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(StringTable, CarriageReturnBelongsToTheLineEnd) {
  LoadStrings(roots, "1\tone\r\n2\t\r\n3\tthree\r");
  EXPECT_STREQ(QX4Strings::GetString(1, false), "one");
  EXPECT_EQ(QX4Strings::GetString(2, true), nullptr);
  EXPECT_STREQ(QX4Strings::GetString(3, false), "three");
}

TEST_F(StringTable, ZeroByteEndsItsLine) {
  LoadStrings(roots, std::string("1\tone\0two\n2\0\ttwo\n3\tthree\n", 25));
  EXPECT_STREQ(QX4Strings::GetString(1, false), "one");
  EXPECT_EQ(QX4Strings::GetString(2, true), nullptr);
  EXPECT_STREQ(QX4Strings::GetString(3, false), "three");
}

// The example of docs/formats/strings.md, and how it lies in memory.
TEST_F(StringTable, TextsStandOneAfterTheOtherInTheOrderOfTheFile) {
  LoadStrings(roots, "07200\t Local time \nstar\tStar\tan object type\nno entry\n");
  const char* const first = QX4Strings::GetString(7200, false);
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(std::string(first, 16), std::string("Local time\0Star\0", 16));
  EXPECT_EQ(QX4Strings::GetString(0x73746172, false), first + 11);
}

TEST_F(StringTable, ByteOrderMarkIsSkipped) {
  LoadStrings(roots,
              "\xEF\xBB\xBF"
              "7\ttext\n");
  EXPECT_STREQ(QX4Strings::GetString(7, false), "text");
}

TEST_F(StringTable, EscapesAreResolved) {
  LoadStrings(roots, "7\tone\\ntwo\\\\\n");
  EXPECT_STREQ(QX4Strings::GetString(7, false), "one\ntwo\\");
}

TEST_F(StringTable, ShortestLastLineFitsThePool) {
  LoadStrings(roots, "7\tx");
  EXPECT_STREQ(QX4Strings::GetString(7, false), "x");
}

TEST_F(StringTable, LineOf4095CharactersIsKeptWhole) {
  const std::string text(4095 - 2, 'x');
  LoadStrings(roots, "7\t" + text + "\n8\tnext\n");
  EXPECT_EQ(QX4Strings::GetString(7, false), text);
  EXPECT_STREQ(QX4Strings::GetString(8, false), "next");
}

TEST_F(StringTable, LongerLineIsCutAndItsRestIsNotALineOfItsOwn) {
  const std::string text(4095 - 2, 'x');
  LoadStrings(roots, "7\t" + text + "9\tnine\n8\tnext\n");
  EXPECT_EQ(QX4Strings::GetString(7, false), text);
  EXPECT_EQ(QX4Strings::GetString(9, true), nullptr);
  EXPECT_STREQ(QX4Strings::GetString(8, false), "next");
}

// Files of /proc report a length of 0 and hold more, as a file does that grows between the two looks at it.
// Its first line is "Name:", a tab and the program's name.
TEST_F(StringTable, FileThatHoldsMoreThanItsLengthSaysIsReportedAndStaysInsideThePool) {
  if (!std::filesystem::exists("/proc/self/status")) GTEST_SKIP() << "needs /proc";
  std::error_code failure;
  std::filesystem::create_symlink("/proc/self/status", roots.dir.Path("data/qxstrings.txt"), failure);
  if (failure) GTEST_SKIP() << "needs symbolic links";
  QX4Strings strings;
  EXPECT_EQ(debug.lines, Lines{"File qxstrings.txt changed while it was read\n"});
  EXPECT_EQ(QX4Strings::GetString(static_cast<unsigned>(FourCC("Name")), true), nullptr);
}

TEST_F(StringTable, RandomBytesNeverReachOutsideTheTable) {
  std::mt19937 random(7);
  const char alphabet[] = "\t\t\n\n\r\\n1%a\xFF\x80 \0}!-";
  for (int round = 0; round < 200; ++round) {
    std::string content(random() % 300, ' ');
    for (char& c : content) c = alphabet[random() % (sizeof alphabet - 1)];
    LoadStrings(roots, content);
    EXPECT_TRUE(StringTableTestAccess::IsLoaded());
    for (unsigned id = 0; id < 12; ++id) {
      const char* const text = QX4Strings::GetString(id, true);
      EXPECT_LE(std::string(text ? text : "").size(), content.size());
    }
  }
}

TEST_F(StringTable, ChangeOfLanguageAnswersOldTextsUntilTheReload) {
  LoadStrings(roots, "7\tone\n8\teight\n");
  const char* const old = QX4Strings::GetString(7, false);
  QX4Strings::StartLocaleUpdate();
  EXPECT_EQ(QX4Strings::GetString(7, false), old);
  WriteFile("7\tein\n");
  QX4Strings strings;
  EXPECT_STREQ(QX4Strings::GetString(7, false), "ein");
  EXPECT_EQ(QX4Strings::GetString(8, true), nullptr);
  EXPECT_STREQ(old, "one");
  QX4Strings::FinishLocaleUpdate();
  EXPECT_STREQ(QX4Strings::GetString(7, false), "ein");
}

TEST_F(StringTable, FailedReloadLeavesTheTableEmptyAndTheOldTextsReadable) {
  LoadStrings(roots, "7\tone\n");
  const char* const old = QX4Strings::GetString(7, false);
  QX4Strings::StartLocaleUpdate();
  std::filesystem::remove(roots.dir.Path("data/qxstrings.txt"));
  QX4Strings strings;
  EXPECT_EQ(debug.lines, Lines{"File qxstrings.txt not found\n"});
  EXPECT_EQ(QX4Strings::GetString(7, true), nullptr);
  EXPECT_STREQ(old, "one");
  QX4Strings::FinishLocaleUpdate();
  EXPECT_EQ(QX4Strings::GetString(7, true), nullptr);
}

TEST_F(StringTable, StartLocaleUpdateTwiceLeavesNoDanglingEntry) {
  LoadStrings(roots, "7\tone\n");
  QX4Strings::StartLocaleUpdate();
  QX4Strings::StartLocaleUpdate();
  EXPECT_EQ(QX4Strings::GetString(7, true), nullptr);
  QX4Strings strings;
  EXPECT_STREQ(QX4Strings::GetString(7, false), "one");
}

TEST_F(StringTable, FinishLocaleUpdateBeforeTheReloadLeavesNoDanglingEntry) {
  LoadStrings(roots, "7\tone\n");
  QX4Strings::StartLocaleUpdate();
  QX4Strings::FinishLocaleUpdate();
  EXPECT_EQ(QX4Strings::GetString(7, true), nullptr);
  QX4Strings strings;
  EXPECT_STREQ(QX4Strings::GetString(7, false), "one");
}

TEST_F(StringTable, FinishLocaleUpdateWithoutAChangeKeepsTheTable) {
  LoadStrings(roots, "7\tone\n");
  QX4Strings::FinishLocaleUpdate();
  EXPECT_STREQ(QX4Strings::GetString(7, false), "one");
}

TEST_F(StringTable, UnfinishedChangeIsFinishedByTheNextOne) {
  LoadStrings(roots, "7\tone\n");
  for (const char* content : {"7\ttwo\n", "7\tthree\n"}) {
    QX4Strings::StartLocaleUpdate();
    WriteFile(content);
    QX4Strings strings;
  }
  EXPECT_STREQ(QX4Strings::GetString(7, false), "three");
}

TEST_F(StringTable, ProgramNameIsTheTextOfItsIdentifier) {
  LoadStrings(roots, "40\tSky program\n");
  QX4Strings::SetProgrmaNameId(40);
  EXPECT_STREQ(QX4Strings::GetProgramName(), "Sky program");
}

TEST_F(StringTable, ProgramNameBeforeItsIdentifierIsSetIsReportedAsMinusOne) {
  LoadStrings(roots, "40\tSky program\n");
  EXPECT_EQ(QX4Strings::GetProgramName(), nullptr);
  EXPECT_EQ(debug.lines, Lines{"String with ID = -1 not found in file qxstrings.txt\n"});
}

TEST_F(StringTable, DoneIsFinal) {
  LoadStrings(roots, "7\ttext\n");
  QX4Strings::Done();
  EXPECT_EQ(QX4Strings::GetString(7, false), nullptr);
  QX4Strings strings;
  EXPECT_FALSE(StringTableTestAccess::IsLoaded());
  EXPECT_EQ(QX4Strings::GetString(7, false), nullptr);
  EXPECT_EQ(debug.lines, Lines{});
  StringTableTestAccess::ReviveAfterDone();
}

TEST_F(StringTable, DoneDuringAChangeOfLanguageFreesBothLoads) {
  LoadStrings(roots, "7\ttext\n");
  QX4Strings::StartLocaleUpdate();
  { QX4Strings strings; }
  QX4Strings::Done();
  EXPECT_EQ(QX4Strings::GetString(7, false), nullptr);
  StringTableTestAccess::ReviveAfterDone();
}

TEST_F(StringTable, BeforeTheFirstLoadNothingIsReported) {
  QX4Strings::Done();
  StringTableTestAccess::ReviveAfterDone();
  EXPECT_EQ(QX4Strings::GetString(7, false), nullptr);
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(StringTable, FirstConstructionWithoutAFileReportsItAndHasNoTexts) {
  QX4Strings::Done();
  StringTableTestAccess::ReviveAfterDone();
  QX4Strings strings;
  EXPECT_EQ(QX4Strings::GetString(7, false), nullptr);
  EXPECT_EQ(debug.lines, Lines{"File qxstrings.txt not found\n"});
}

}  // namespace
}  // namespace CommonInterfaces
