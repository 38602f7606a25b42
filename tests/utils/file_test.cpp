// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <climits>
#include <string>

#include <gtest/gtest.h>

#include "support/debug_capture.h"
#include "support/temp_dir.h"
#include "utils/file.h"

namespace {

using test_support::DebugCapture;
using test_support::TempDir;

unsigned WriteText(MFile& file, const std::string& text) {
  return file.Write(text.data(), static_cast<unsigned>(text.size()));
}

std::string ReadText(MFile& file, unsigned size) {
  std::string text(size, '\0');
  text.resize(file.Read(text.data(), size));
  return text;
}

bool SearchText(MFile& file, const std::string& key) {
  return file.Search(key.data(), static_cast<unsigned>(key.size()));
}

TEST(MFileOpen, ReadModeNeedsTheFile) {
  TempDir dir;
  MFile file;
  EXPECT_FALSE(file.Open(dir.Path("absent").c_str(), MFile::kRead));
  EXPECT_FALSE(std::filesystem::exists(dir.Path("absent")));
}

TEST(MFileOpen, WriteModeCreatesTheFile) {
  TempDir dir;
  MFile file;
  ASSERT_TRUE(file.Open(dir.Path("new").c_str(), MFile::kWrite));
  EXPECT_EQ(file.GetLength(), 0);
  EXPECT_TRUE(std::filesystem::exists(dir.Path("new")));
}

TEST(MFileOpen, WriteModeKeepsWhatTheFileHolds) {
  TempDir dir;
  const std::string path = dir.Write("f", "SREV....blocks");
  MFile file;
  ASSERT_TRUE(file.Open(path.c_str(), MFile::kWrite));
  EXPECT_EQ(file.Tell(), 0);
  EXPECT_EQ(file.GetLength(), 14);
  EXPECT_EQ(WriteText(file, "SREV\1\2\3\4"), 8u);
  ASSERT_TRUE(file.Seek(2, 0));
  EXPECT_EQ(file.Tell(), 14);
  EXPECT_EQ(WriteText(file, "+one more"), 9u);
  file.Close();
  EXPECT_EQ(dir.Read("f"), "SREV\1\2\3\4blocks+one more");
}

TEST(MFileOpen, RefusesFoldersUnknownModesAndNothing) {
  TempDir dir;
  DebugCapture capture;
  const std::string path = dir.Write("f", "x");
  MFile file;
  EXPECT_FALSE(file.Open(dir.Path().c_str(), MFile::kRead));
  EXPECT_FALSE(file.Open(dir.Path().c_str(), MFile::kWrite));
  EXPECT_FALSE(file.Open(path.c_str(), 0));
  EXPECT_FALSE(file.Open(path.c_str(), MFile::kRead | MFile::kWrite));
  EXPECT_FALSE(file.Open(nullptr, MFile::kRead));
  EXPECT_FALSE(file.Open("", MFile::kWrite));
  EXPECT_FALSE(file.Open(dir.Path("no/folder/f").c_str(), MFile::kWrite));
  EXPECT_TRUE(capture.lines.empty());
}

TEST(MFileOpen, FailedOpenClosesTheOldFile) {
  TempDir dir;
  MFile file;
  ASSERT_TRUE(file.Open(dir.Write("f", "abc").c_str(), MFile::kRead));
  EXPECT_FALSE(file.Open(dir.Path("absent").c_str(), MFile::kRead));
  EXPECT_EQ(file.GetLength(), -1);
}

TEST(MFileOpen, SecondOpenStartsAtTheBeginning) {
  TempDir dir;
  MFile file;
  ASSERT_TRUE(file.Open(dir.Write("f", "abc").c_str(), MFile::kRead));
  EXPECT_EQ(ReadText(file, 2), "ab");
  ASSERT_TRUE(file.Open(dir.Write("g", "xyz").c_str(), MFile::kRead));
  EXPECT_EQ(file.Tell(), 0);
  EXPECT_EQ(ReadText(file, 9), "xyz");
}

TEST(MFileOpen, FileOf2GiBIsRefused) {
  TempDir dir;
  const std::string path = dir.Write("long", "x");
  std::error_code sparse;
  std::filesystem::resize_file(path, (1ull << 31) - 1, sparse);
  if (sparse) GTEST_SKIP() << "the file system has no room for a file of holes";
  EXPECT_EQ(MFile::GetLength(path.c_str()), INT_MAX);
  std::filesystem::resize_file(path, 1ull << 31);
  MFile file;
  EXPECT_FALSE(file.Open(path.c_str(), MFile::kRead));
  EXPECT_FALSE(file.Open(path.c_str(), MFile::kWrite));
  EXPECT_EQ(MFile::GetLength(path.c_str()), 0);
}

TEST(MFileWrite, StopsAtTheLargestLength) {
  TempDir dir;
  DebugCapture capture;
  const std::string path = dir.Path("long");
  MFile file;
  ASSERT_TRUE(file.Open(path.c_str(), MFile::kWrite));
  ASSERT_TRUE(file.Seek(0, INT_MAX - 2));
  EXPECT_EQ(WriteText(file, "abcd"), 2u);
  EXPECT_EQ(file.Tell(), INT_MAX);
  EXPECT_EQ(WriteText(file, "e"), 0u);
  file.Close();
  EXPECT_EQ(capture.lines, std::vector<std::string>{"Not everything could be written to " + path + "\n"});
}

TEST(MFileClosed, EveryOperationFails) {
  MFile file;
  char byte = 'x';
  EXPECT_EQ(file.Read(&byte, 1), 0u);
  EXPECT_EQ(file.Write(&byte, 1), 0u);
  EXPECT_FALSE(file.Seek(0, 0));
  EXPECT_EQ(file.Tell(), -1);
  EXPECT_EQ(file.GetLength(), -1);
  EXPECT_FALSE(file.Search("x", 1));
  EXPECT_FALSE(file.Search("", 0));
  file.Close();
  EXPECT_EQ(byte, 'x');
}

TEST(MFileRead, GivesWhatIsLeftAndLeavesTheRestOfTheBuffer) {
  TempDir dir;
  MFile file;
  ASSERT_TRUE(file.Open(dir.Write("f", "abc").c_str(), MFile::kRead));
  char out[] = "#####";
  EXPECT_EQ(file.Read(out, 5), 3u);
  EXPECT_STREQ(out, "abc##");
  EXPECT_EQ(file.Read(out, 5), 0u);
  EXPECT_EQ(file.Tell(), 3);
}

TEST(MFileWrite, InReadModeWritesNothing) {
  TempDir dir;
  DebugCapture capture;
  MFile file;
  ASSERT_TRUE(file.Open(dir.Write("f", "abc").c_str(), MFile::kRead));
  EXPECT_EQ(WriteText(file, "x"), 0u);
  file.Close();
  EXPECT_EQ(dir.Read("f"), "abc");
}

TEST(MFileWrite, ReadingAndWritingMayAlternate) {
  TempDir dir;
  MFile file;
  ASSERT_TRUE(file.Open(dir.Write("f", "abcdef").c_str(), MFile::kWrite));
  EXPECT_EQ(ReadText(file, 2), "ab");
  EXPECT_EQ(WriteText(file, "X"), 1u);
  EXPECT_EQ(ReadText(file, 1), "d");
  EXPECT_EQ(WriteText(file, "YZ!"), 3u);
  EXPECT_EQ(file.GetLength(), 7);
  ASSERT_TRUE(file.Seek(0, 0));
  EXPECT_EQ(ReadText(file, 100), "abXdYZ!");
}

TEST(MFileSeek, CountsFromStartPositionAndEnd) {
  TempDir dir;
  MFile file;
  ASSERT_TRUE(file.Open(dir.Write("f", "0123456789").c_str(), MFile::kRead));
  ASSERT_TRUE(file.Seek(0, 4));
  EXPECT_EQ(ReadText(file, 1), "4");
  ASSERT_TRUE(file.Seek(1, 2));
  EXPECT_EQ(ReadText(file, 1), "7");
  ASSERT_TRUE(file.Seek(1, -8));
  EXPECT_EQ(ReadText(file, 1), "0");
  ASSERT_TRUE(file.Seek(2, -1));
  EXPECT_EQ(ReadText(file, 1), "9");
}

TEST(MFileSeek, PlaceBeforeTheStartIsRefusedAndThePositionStays) {
  TempDir dir;
  MFile file;
  ASSERT_TRUE(file.Open(dir.Write("f", "abc").c_str(), MFile::kRead));
  ASSERT_TRUE(file.Seek(0, 2));
  EXPECT_FALSE(file.Seek(0, -1));
  EXPECT_FALSE(file.Seek(1, -3));
  EXPECT_FALSE(file.Seek(2, INT_MIN));
  EXPECT_FALSE(file.Seek(1, INT_MAX));
  EXPECT_FALSE(file.Seek(3, 0));
  EXPECT_FALSE(file.Seek(-1, 0));
  EXPECT_EQ(file.Tell(), 2);
  EXPECT_EQ(ReadText(file, 1), "c");
}

TEST(MFileSeek, PastTheEndReadsNothingAndWritingFillsTheGap) {
  TempDir dir;
  MFile file;
  ASSERT_TRUE(file.Open(dir.Write("f", "a").c_str(), MFile::kWrite));
  ASSERT_TRUE(file.Seek(0, 3));
  EXPECT_EQ(ReadText(file, 1), "");
  EXPECT_EQ(file.Tell(), 3);
  EXPECT_EQ(WriteText(file, "b"), 1u);
  file.Close();
  EXPECT_EQ(dir.Read("f"), std::string("a\0\0b", 4));
}

TEST(MFileGetLength, CountsWhatIsWrittenAndNotYetInTheFile) {
  TempDir dir;
  MFile file;
  ASSERT_TRUE(file.Open(dir.Path("f").c_str(), MFile::kWrite));
  WriteText(file, "abc");
  EXPECT_EQ(file.GetLength(), 3);
  EXPECT_EQ(MFile::GetLength(dir.Path("f").c_str()), 3);
  EXPECT_EQ(MFile::GetLength(dir.Path("absent").c_str()), 0);
  EXPECT_EQ(MFile::GetLength(dir.Path().c_str()), 0);
}

TEST(MFileSearch, LeavesThePositionRightAfterTheKey) {
  TempDir dir;
  MFile file;
  ASSERT_TRUE(file.Open(dir.Write("f", "xxKEYyyKEYzz").c_str(), MFile::kRead));
  ASSERT_TRUE(SearchText(file, "KEY"));
  EXPECT_EQ(file.Tell(), 5);
  ASSERT_TRUE(SearchText(file, "KEY"));
  EXPECT_EQ(ReadText(file, 2), "zz");
}

TEST(MFileSearch, UnsuccessfulSearchLeavesThePosition) {
  TempDir dir;
  MFile file;
  ASSERT_TRUE(file.Open(dir.Write("f", "KEY" + std::string(50000, '.')).c_str(), MFile::kRead));
  ASSERT_TRUE(file.Seek(0, 1));
  EXPECT_FALSE(SearchText(file, "KEY"));
  EXPECT_EQ(file.Tell(), 1);
  EXPECT_EQ(ReadText(file, 2), "EY");
}

TEST(MFileSearch, BeginsAtThePosition) {
  TempDir dir;
  MFile file;
  ASSERT_TRUE(file.Open(dir.Write("f", "aab").c_str(), MFile::kRead));
  ReadText(file, 1);
  EXPECT_TRUE(SearchText(file, "ab"));
  EXPECT_FALSE(SearchText(file, "b"));
}

// The search reads blocks of a fixed size that this test does not know: the key is tried at every place
// around every power of two up to 64 KiB.
TEST(MFileSearch, MatchAcrossABlockBorderIsFound) {
  TempDir dir;
  const std::string key = "8-byte-k";
  for (int border = 512; border <= 65536; border *= 2) {
    for (int place = border - 9; place <= border + 1; ++place) {
      std::string content(static_cast<std::size_t>(place), '8');
      const std::string path = dir.Write("f", content + key + "8-byte");
      MFile file;
      ASSERT_TRUE(file.Open(path.c_str(), MFile::kRead));
      ASSERT_TRUE(SearchText(file, key)) << place;
      ASSERT_EQ(file.Tell(), place + 8);
      ASSERT_EQ(ReadText(file, 100), "8-byte");
    }
  }
}

TEST(MFileSearch, MatchInsideAFailedAttemptIsFound) {
  TempDir dir;
  const struct {
    const char *content, *key;
    int end;
  } cases[] = {{"aaab", "aab", 4},
               {"TLTLTLFD", "TLFD", 8},
               {"ababac", "abac", 6},
               {"aabaabaaab", "aabaaab", 10},
               {"abcabcabd", "abcabd", 9}};
  for (const auto& c : cases) {
    MFile file;
    ASSERT_TRUE(file.Open(dir.Write("f", c.content).c_str(), MFile::kRead));
    EXPECT_TRUE(SearchText(file, c.key)) << c.content;
    EXPECT_EQ(file.Tell(), c.end) << c.content;
  }
}

// Every text and every key of two letters, against the standard library's search.
TEST(MFileSearch, AgreesWithStringFind) {
  TempDir dir;
  for (unsigned bits = 0; bits < 256; ++bits) {
    std::string content;
    for (unsigned i = 0; i < 8; ++i) content += bits >> i & 1 ? 'b' : 'a';
    MFile file;
    ASSERT_TRUE(file.Open(dir.Write("f", content).c_str(), MFile::kRead));
    for (unsigned length = 1; length <= 5; ++length) {
      for (unsigned keyBits = 0; keyBits < 1u << length; ++keyBits) {
        std::string key;
        for (unsigned i = 0; i < length; ++i) key += keyBits >> i & 1 ? 'b' : 'a';
        const std::size_t place = content.find(key);
        file.Seek(0, 0);
        ASSERT_EQ(SearchText(file, key), place != std::string::npos) << content << " " << key;
        ASSERT_EQ(file.Tell(), place == std::string::npos ? 0 : static_cast<int>(place + length));
      }
    }
  }
}

TEST(MFileSearch, KeyMayHoldZeroBytesAndBeLongerThanABlock) {
  TempDir dir;
  const std::string key = std::string(40000, '\0') + "\x01";
  MFile file;
  ASSERT_TRUE(file.Open(dir.Write("f", std::string(30000, '\0') + key).c_str(), MFile::kRead));
  ASSERT_TRUE(SearchText(file, key));
  EXPECT_EQ(file.Tell(), 70001);
}

TEST(MFileSearch, KeyLongerThanTheRestIsNotFound) {
  TempDir dir;
  MFile file;
  ASSERT_TRUE(file.Open(dir.Write("f", "abc").c_str(), MFile::kRead));
  EXPECT_FALSE(SearchText(file, "abcd"));
  EXPECT_FALSE(file.Search("abcd", UINT_MAX));
  EXPECT_EQ(file.Tell(), 0);
}

TEST(MFileSearch, EmptyKeyIsFoundAtOnce) {
  TempDir dir;
  MFile file;
  ASSERT_TRUE(file.Open(dir.Write("f", "abc").c_str(), MFile::kRead));
  ReadText(file, 1);
  EXPECT_TRUE(file.Search(nullptr, 0));
  EXPECT_EQ(file.Tell(), 1);
}

TEST(MFileSearch, FindsWhatWasJustWritten) {
  TempDir dir;
  MFile file;
  ASSERT_TRUE(file.Open(dir.Path("f").c_str(), MFile::kWrite));
  WriteText(file, "....KEY");
  ASSERT_TRUE(file.Seek(0, 0));
  EXPECT_TRUE(SearchText(file, "KEY"));
  EXPECT_EQ(WriteText(file, "!"), 1u);
  file.Close();
  EXPECT_EQ(dir.Read("f"), "....KEY!");
}

TEST(MmFopen, OpensAPathInUtf8) {
  TempDir dir;
  const std::string path = dir.Path() + "/\xCE\xB1 Ori.txt";
  std::FILE* file = mm_fopen(path.c_str(), "wb");
  ASSERT_TRUE(file);
  std::fclose(file);
  EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(std::u8string(path.begin(), path.end()))));
}

TEST(MmFopen, NullGivesNothing) {
  EXPECT_FALSE(mm_fopen(nullptr, "rb"));
  EXPECT_FALSE(mm_fopen("x", nullptr));
}

TEST(MFileWrite, NullWritesNothing) {
  TempDir dir;
  MFile file;
  ASSERT_TRUE(file.Open(dir.Path("f").c_str(), MFile::kWrite));
  EXPECT_EQ(file.Write(nullptr, 3), 0u);
  EXPECT_TRUE(file.Close());
  EXPECT_EQ(dir.Read("f"), "");
}

TEST(MFileSearch, NullIsFoundOnlyAsTheEmptyKey) {
  TempDir dir;
  MFile file;
  ASSERT_TRUE(file.Open(dir.Write("f", "abc").c_str(), MFile::kRead));
  EXPECT_FALSE(file.Search(nullptr, 1));
  EXPECT_TRUE(file.Search(nullptr, 0));
  EXPECT_EQ(file.Tell(), 0);
}

}  // namespace
