// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/whole_file.h"

#include <sstream>

#include <gtest/gtest.h>

#include "support/debug_capture.h"
#include "support/temp_dir.h"
#include "utils/file.h"

namespace {

using test_support::TempDir;

class WholeFile : public testing::Test {
 protected:
  bool Read(const std::string& path) { return ReadWholeFile(path.c_str(), content, reason); }

  // A file of that length without blocks on the disk, where the file system has such.
  std::string MakeLongFile(const char* name, std::uintmax_t length) {
    const std::string path = dir.Write(name, "");
    std::filesystem::resize_file(path, length);
    return path;
  }

  TempDir dir;
  std::string content = "before", reason;
};

TEST_F(WholeFile, EveryByteIsThere) {
  for (const std::size_t length : {0u, 1u, 65535u, 65536u, 65537u, 1000000u}) {
    std::string bytes(length, '\0');
    for (std::size_t i = 0; i < length; ++i) bytes[i] = static_cast<char>(i * 7 + i / 256);
    ASSERT_TRUE(Read(dir.Write("file", bytes)));
    EXPECT_TRUE(content == bytes) << length;
    std::istringstream stream(bytes);
    ASSERT_TRUE(ReadWholeStream(stream, content, reason));
    EXPECT_TRUE(content == bytes) << length;
  }
}

TEST_F(WholeFile, TakesNotMuchMoreMemoryThanItsBytes) {
  ASSERT_TRUE(Read(dir.Write("file", std::string(1000, 'x'))));
  EXPECT_LT(content.capacity(), 10000u);
  std::istringstream stream(std::string(1000, 'x'));
  ASSERT_TRUE(ReadWholeStream(stream, content, reason));
  EXPECT_LT(content.capacity(), 200000u);
}

TEST_F(WholeFile, MissingFileAndFolderCannotBeRead) {
  for (const std::string& path : {dir.Path("none"), dir.Path(), std::string()}) {
    content = "before";
    EXPECT_FALSE(Read(path));
    EXPECT_EQ(reason, "cannot be read");
    EXPECT_EQ(content, "");
    EXPECT_FALSE(IsBoundedFile(path.c_str(), reason));
    EXPECT_EQ(reason, "cannot be read");
  }
  EXPECT_FALSE(ReadWholeFile(nullptr, content, reason));
  EXPECT_FALSE(IsBoundedFile(nullptr, reason));
}

TEST_F(WholeFile, LongerFileThanTheBoundIsRefusedUnread) {
  EXPECT_EQ(kMostFileBytes, 268435456u);
  const std::string path = MakeLongFile("long", std::uintmax_t{kMostFileBytes} + 1);
  EXPECT_FALSE(Read(path));
  EXPECT_EQ(reason, "holds more than 256 MiB, the most that is read");
  EXPECT_EQ(content.capacity(), std::string().capacity()) << "no memory is kept";
  reason.clear();
  EXPECT_FALSE(IsBoundedFile(path.c_str(), reason));
  EXPECT_EQ(reason, kTooManyBytes);
  EXPECT_TRUE(IsBoundedFile(MakeLongFile("most", kMostFileBytes).c_str(), reason));
}

// A stream that gives zeros and never ends.
class Endless : public std::streambuf {
 protected:
  int_type underflow() override {
    setg(m_Zeros, m_Zeros, m_Zeros + sizeof m_Zeros);
    return 0;
  }

 private:
  char m_Zeros[4096] = {};
};

TEST_F(WholeFile, EndlessStreamIsRefusedAtTheBound) {
  Endless endless;
  std::istream stream(&endless);
  EXPECT_FALSE(ReadWholeStream(stream, content, reason));
  EXPECT_EQ(reason, kTooManyBytes);
  EXPECT_EQ(content, "");
}

TEST_F(WholeFile, LinesEndAtTheBoundAsAtAReadError) {
  const test_support::DebugCapture debug;
  const std::string path = MakeLongFile("long", std::uintmax_t{kMostFileBytes} + 1);
  MTextFile file(false, '!', '}', 256);
  ASSERT_TRUE(file.Open(path.c_str(), false));
  char line[256];
  EXPECT_EQ(file.Readln(line, sizeof line), 0);
  EXPECT_TRUE(file.HasReadFailed());
  EXPECT_EQ(file.Readln(line, sizeof line), 0);
  EXPECT_EQ(debug.lines, std::vector<std::string>{"File " + path + " " + kTooManyBytes + "\n"});
}

// A stream that fails for good after its first bytes.
class BrokenBuffer : public std::streambuf {
 public:
  std::istream stream{this};

 private:
  int_type underflow() override {
    if (m_Given) {
      stream.setstate(std::ios::badbit);
      return traits_type::eof();
    }
    m_Given = true;
    setg(m_Bytes, m_Bytes, m_Bytes + sizeof m_Bytes);
    return traits_type::to_int_type(m_Bytes[0]);
  }
  char m_Bytes[3] = {'a', 'b', 'c'};
  bool m_Given = false;
};

TEST_F(WholeFile, StreamThatBreaksCannotBeRead) {
  BrokenBuffer broken;
  EXPECT_FALSE(ReadWholeStream(broken.stream, content, reason));
  EXPECT_EQ(reason, "cannot be read");
  EXPECT_EQ(content, "");
}

}  // namespace
