// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/debug_capture.h"
#include "support/temp_dir.h"
#include "utils/file.h"

namespace {

using test_support::DebugCapture;
using test_support::TempDir;

// The lines of a file, as a reader with a buffer of `size` gets them.
std::vector<std::string> ReadLines(const std::string& path, unsigned size = 4096, unsigned lineSize = 4096,
                                   bool comments = false) {
  MTextFile file(comments, '!', '}', lineSize);
  EXPECT_TRUE(file.Open(path.c_str(), false));
  std::vector<std::string> lines;
  std::vector<char> buffer(size);
  while (file.Readln(buffer.data(), size) > 0) lines.emplace_back(buffer.data());
  EXPECT_STREQ(buffer.data(), "");
  return lines;
}

using Lines = std::vector<std::string>;

TEST(MTextFileRead, LineEndsWithLfOrCrLf) {
  TempDir dir;
  EXPECT_EQ(ReadLines(dir.Write("f", "one\ntwo\r\nthree\n")), (Lines{"one", "two", "three"}));
}

TEST(MTextFileRead, LastLineNeedsNoEnd) {
  TempDir dir;
  EXPECT_EQ(ReadLines(dir.Write("f", "one\ntwo")), (Lines{"one", "two"}));
}

TEST(MTextFileRead, BlankLinesDoNotEndTheReading) {
  TempDir dir;
  EXPECT_EQ(ReadLines(dir.Write("f", "\n\r\none\n\n\ntwo\n\n")), (Lines{"", "", "one", "", "", "two", ""}));
}

TEST(MTextFileRead, EmptyFileHasNoLine) {
  TempDir dir;
  EXPECT_TRUE(ReadLines(dir.Write("f", "")).empty());
}

TEST(MTextFileRead, LoneCrIsPartOfTheLine) {
  TempDir dir;
  EXPECT_EQ(ReadLines(dir.Write("f", "a\rb\n\r\r\nend\r")), (Lines{"a\rb", "\r", "end\r"}));
}

TEST(MTextFileRead, CountsTheBytesOfALineWithItsEnd) {
  TempDir dir;
  MTextFile file(false, '!', '}', 4096);
  ASSERT_TRUE(file.Open(dir.Write("f", "\nab\r\n0123456789\nxyz").c_str(), false));
  char buffer[6];
  EXPECT_EQ(file.Readln(buffer, sizeof buffer), 1);
  EXPECT_EQ(file.Readln(buffer, sizeof buffer), 4);
  EXPECT_EQ(file.Readln(buffer, sizeof buffer), 11);  // cut to the buffer, counted whole
  EXPECT_EQ(file.Readln(buffer, sizeof buffer), 3);
  EXPECT_EQ(file.Readln(buffer, sizeof buffer), 0);
  EXPECT_STREQ(buffer, "");
}

TEST(MTextFileRead, ByteOrderMarkIsSkipped) {
  TempDir dir;
  EXPECT_EQ(ReadLines(dir.Write("f",
                                "\xEF\xBB\xBF"
                                "star\tStar\nx\n")),
            (Lines{"star\tStar", "x"}));
  EXPECT_TRUE(ReadLines(dir.Write("g", "\xEF\xBB\xBF")).empty());
}

TEST(MTextFileRead, ByteOrderMarkElsewhereIsText) {
  TempDir dir;
  EXPECT_EQ(ReadLines(dir.Write("f",
                                "a\n\xEF\xBB\xBF"
                                "b\n")),
            (Lines{"a",
                   "\xEF\xBB\xBF"
                   "b"}));
  EXPECT_EQ(ReadLines(dir.Write("g", "\xEF\xBB")), Lines{"\xEF\xBB"});
}

TEST(MTextFileRead, LineExactlyAtTheLimitIsWhole) {
  TempDir dir;
  for (const char* end : {"\n", "\r\n", ""}) {
    const std::string path = dir.Write("f", std::string("1234567") + end);
    EXPECT_EQ(ReadLines(path, 8), Lines{"1234567"});
    EXPECT_EQ(ReadLines(path, 7), Lines{"123456"});
  }
}

TEST(MTextFileRead, RestOfALongLineIsDropped) {
  TempDir dir;
  const std::string path = dir.Write("f", "0123456789\nnext\n" + std::string(100000, 'x') + "\r\nlast");
  EXPECT_EQ(ReadLines(path, 5), (Lines{"0123", "next", "xxxx", "last"}));
}

TEST(MTextFileRead, LineSizeLimitsTooWhenTheBufferIsLarger) {
  TempDir dir;
  EXPECT_EQ(ReadLines(dir.Write("f", "0123456789\nab\n"), 100, 5), (Lines{"0123", "ab"}));
}

// A line end at every place around the borders of any power-of-two buffer.
TEST(MTextFileRead, LineEndMayLieOnABufferBorder) {
  TempDir dir;
  for (std::size_t border = 512; border <= 65536; border *= 2) {
    for (std::size_t length = border - 3; length <= border + 1; ++length) {
      const std::string line(length, 'x');
      ASSERT_EQ(ReadLines(dir.Write("f", line + "\r\ny\n"), 100000, 100000), (Lines{line, "y"})) << length;
    }
  }
}

TEST(MTextFileRead, ZeroBytesEndTheTextButNotTheLine) {
  TempDir dir;
  MTextFile file(false, '!', '}', 4096);
  ASSERT_TRUE(file.Open(dir.Write("f", std::string("ab\0cd\nnext\n", 11)).c_str(), false));
  char buffer[16];
  EXPECT_EQ(file.Readln(buffer, sizeof buffer), 6);
  EXPECT_EQ(std::string(buffer, 6), std::string("ab\0cd\0", 6));
  EXPECT_EQ(file.Readln(buffer, sizeof buffer), 5);
  EXPECT_STREQ(buffer, "next");
}

TEST(MTextFileRead, BufferOfOneOrNoByteOnlyPassesTheLine) {
  TempDir dir;
  MTextFile file(true, '!', '}', 4096);
  ASSERT_TRUE(file.Open(dir.Write("f", "one\n!no\ntwo\nthree\n}\n").c_str(), false));
  char buffer[8] = "#######";
  EXPECT_EQ(file.Readln(buffer, 0), 4);
  EXPECT_STREQ(buffer, "#######");
  EXPECT_EQ(file.Readln(buffer, 1), 4);  // the comment is recognised although none of it is copied
  EXPECT_STREQ(buffer, "");
  EXPECT_EQ(file.Readln(buffer, 8), 6);
  EXPECT_STREQ(buffer, "three");
  EXPECT_EQ(file.Readln(buffer, 0), 0);
}

TEST(MTextFileRead, LineSizeOfZeroCopiesNothing) {
  TempDir dir;
  EXPECT_EQ(ReadLines(dir.Write("f", "one\ntwo\n"), 10, 0), (Lines{"", ""}));
}

TEST(MTextFileComments, CommentLinesAreSkippedAndTheEndCharacterEnds) {
  TempDir dir;
  const std::string path = dir.Write("f", "! head\none\n!\n !kept\ntwo ! three\n}\nnot read\n");
  EXPECT_EQ(ReadLines(path, 100, 4096, true), (Lines{"one", " !kept", "two ! three"}));
}

TEST(MTextFileComments, WithoutTheOptionNeitherCharacterMeansAnything) {
  TempDir dir;
  EXPECT_EQ(ReadLines(dir.Write("f", "!a\n}b\nc\n")), (Lines{"!a", "}b", "c"}));
}

TEST(MTextFileComments, EndedReadingStaysEnded) {
  TempDir dir;
  MTextFile file(true, '!', '}', 4096);
  ASSERT_TRUE(file.Open(dir.Write("f", "}\none\n").c_str(), false));
  char buffer[8];
  EXPECT_EQ(file.Readln(buffer, sizeof buffer), 0);
  EXPECT_EQ(file.Readln(buffer, sizeof buffer), 0);
  EXPECT_TRUE(file.Close());
}

TEST(MTextFileReadInteger, ReadsOneNumberALine) {
  TempDir dir;
  MTextFile file(false, '!', '}', 4096);
  ASSERT_TRUE(file.Open(dir.Write("f", "-4712\r\n +9999 and more\n2147483647\n-2147483648").c_str(), false));
  int value = 0;
  EXPECT_TRUE(file.Readln(value));
  EXPECT_EQ(value, -4712);
  EXPECT_TRUE(file.Readln(value));
  EXPECT_EQ(value, 9999);
  EXPECT_TRUE(file.Readln(value));
  EXPECT_EQ(value, 2147483647);
  EXPECT_TRUE(file.Readln(value));
  EXPECT_EQ(value, -2147483647 - 1);
  EXPECT_FALSE(file.Readln(value));
}

TEST(MTextFileReadInteger, OtherLinesLeaveTheValue) {
  TempDir dir;
  MTextFile file(false, '!', '}', 4096);
  const std::string content = "\nyear\n-\n2147483648\n99999999999999999999999\n";
  ASSERT_TRUE(file.Open(dir.Write("f", content).c_str(), false));
  for (int i = 0; i < 6; ++i) {
    int value = 77;
    EXPECT_FALSE(file.Readln(value)) << i;
    EXPECT_EQ(value, 77);
  }
}

TEST(MTextFileOpen, RefusesMissingFilesFoldersAndNothing) {
  TempDir dir;
  DebugCapture capture;
  MTextFile file(false, '!', '}', 4096);
  EXPECT_FALSE(file.Open(dir.Path("absent").c_str(), false));
  EXPECT_FALSE(file.Open(dir.Path().c_str(), false));
  EXPECT_FALSE(file.Open(dir.Path().c_str(), true));
  EXPECT_FALSE(file.Open(nullptr, false));
  EXPECT_FALSE(file.Open("", true));
  EXPECT_TRUE(capture.lines.empty());
}

TEST(MTextFileOpen, WritingIntoAMissingFolderIsRefused) {
  TempDir dir;
  MTextFile file(false, '!', '}', 4096);
  EXPECT_FALSE(file.Open(dir.Path("no/such/folder.txt").c_str(), true));
  EXPECT_FALSE(file.Write("x\n"));
  EXPECT_TRUE(file.Close());
}

std::size_t CountFiles(const std::string& folder) {
  const auto files = std::filesystem::directory_iterator(folder);
  return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

TEST(MTextFileWrite, TargetChangesOnlyWithClose) {
  TempDir dir;
  const std::string path = dir.Write("f.txt", "old");
  MTextFile file(false, '!', '}', 4096);
  ASSERT_TRUE(file.Open(path.c_str(), true));
  EXPECT_TRUE(file.Write("%s\t%d\t%d\n", "Sirius", 1937006962, 32349));
  EXPECT_TRUE(file.Write("end\r\n"));
  EXPECT_EQ(dir.Read("f.txt"), "old");
  EXPECT_TRUE(file.Close());
  EXPECT_EQ(dir.Read("f.txt"), "Sirius\t1937006962\t32349\nend\r\n");
  EXPECT_EQ(CountFiles(dir.Path()), 1u);
}

TEST(MTextFileWrite, NothingWrittenMakesAnEmptyFile) {
  TempDir dir;
  MTextFile file(false, '!', '}', 4096);
  ASSERT_TRUE(file.Open(dir.Path("new.txt").c_str(), true));
  EXPECT_TRUE(file.Close());
  EXPECT_TRUE(std::filesystem::exists(dir.Path("new.txt")));
  EXPECT_EQ(dir.Read("new.txt"), "");
}

TEST(MTextFileWrite, TextMayBeLongerThanAnyBuffer) {
  TempDir dir;
  MTextFile file(false, '!', '}', 16);
  ASSERT_TRUE(file.Open(dir.Path("f").c_str(), true));
  const std::string text(200000, 'x');
  EXPECT_TRUE(file.Write("%s\n", text.c_str()));
  EXPECT_TRUE(file.Close());
  EXPECT_EQ(dir.Read("f"), text + "\n");
}

TEST(MTextFileWrite, DestroyedWithoutCloseKeepsTheOldFile) {
  TempDir dir;
  DebugCapture capture;
  const std::string path = dir.Write("f.txt", "old");
  {
    MTextFile file(false, '!', '}', 4096);
    ASSERT_TRUE(file.Open(path.c_str(), true));
    EXPECT_TRUE(file.Write("new\n"));
  }
  EXPECT_EQ(dir.Read("f.txt"), "old");
  EXPECT_EQ(CountFiles(dir.Path()), 1u);
  EXPECT_EQ(capture.lines, Lines{"File " + path + " could not be written and is left as it was\n"});
}

TEST(MTextFileWrite, CloseThatCannotPutTheFileInPlaceReports) {
  TempDir dir;
  DebugCapture capture;
  const std::string path = dir.Path("f.txt");
  MTextFile file(false, '!', '}', 4096);
  ASSERT_TRUE(file.Open(path.c_str(), true));
  EXPECT_TRUE(file.Write("new\n"));
  std::filesystem::create_directories(dir.Path("f.txt/in the way"));
  EXPECT_FALSE(file.Close());
  EXPECT_EQ(capture.lines, Lines{"File " + path + " could not be written and is left as it was\n"});
  EXPECT_EQ(CountFiles(dir.Path()), 1u);
  EXPECT_TRUE(file.Close());  // nothing is open any more
}

TEST(MTextFileWrite, SecondOpenPutsTheFirstFileInPlace) {
  TempDir dir;
  MTextFile file(false, '!', '}', 4096);
  ASSERT_TRUE(file.Open(dir.Path("one").c_str(), true));
  EXPECT_TRUE(file.Write("1"));
  ASSERT_TRUE(file.Open(dir.Path("two").c_str(), true));
  EXPECT_EQ(dir.Read("one"), "1");
  EXPECT_TRUE(file.Close());
}

TEST(MTextFileWrite, TwoWritersOfOneFileDoNotMix) {
  TempDir dir;
  MTextFile a(false, '!', '}', 4096), b(false, '!', '}', 4096);
  ASSERT_TRUE(a.Open(dir.Path("f").c_str(), true));
  ASSERT_TRUE(b.Open(dir.Path("f").c_str(), true));
  EXPECT_TRUE(a.Write("first"));
  EXPECT_TRUE(b.Write("second"));
  EXPECT_TRUE(a.Close());
  EXPECT_EQ(dir.Read("f"), "first");
  EXPECT_TRUE(b.Close());
  EXPECT_EQ(dir.Read("f"), "second");
}

TEST(MTextFileWrite, OperationsOfTheOtherModeFail) {
  TempDir dir;
  const std::string path = dir.Write("f", "12\n");
  MTextFile file(false, '!', '}', 4096);
  ASSERT_TRUE(file.Open(path.c_str(), false));
  EXPECT_FALSE(file.Write("x"));
  ASSERT_TRUE(file.Open(path.c_str(), true));
  char buffer[4] = "abc";
  EXPECT_EQ(file.Readln(buffer, sizeof buffer), 0);
  EXPECT_STREQ(buffer, "");
  EXPECT_TRUE(file.Close());
}

TEST(MTextFileWrite, NameInUtf8) {
  TempDir dir;
  const std::string path = dir.Path() + "/\xCE\xB1.txt";
  MTextFile file(false, '!', '}', 4096);
  ASSERT_TRUE(file.Open(path.c_str(), true));
  EXPECT_TRUE(file.Write("x"));
  EXPECT_TRUE(file.Close());
  EXPECT_EQ(MFile::GetLength(path.c_str()), 1);
}

TEST(MTextFileWrite, NullFormatWritesNothing) {
  TempDir dir;
  MTextFile file(false, '!', '}', 100);
  ASSERT_TRUE(file.Open(dir.Path("f").c_str(), true));
  bool (MTextFile::*write)(const char*, ...) = &MTextFile::Write;  // the compiler refuses it in a plain call
  EXPECT_FALSE((file.*write)(nullptr));
  EXPECT_TRUE(file.Close());
  EXPECT_EQ(dir.Read("f"), "");
}

}  // namespace
