// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/mapped_file.h"

#include <filesystem>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "support/temp_dir.h"

namespace {

using test_support::TempDir;

std::string GetContent(const MappedFile& file) {
  return {reinterpret_cast<const char*>(file.GetBytes()), file.GetSize()};
}

TEST(MappedFile, BytesAreThoseOfTheFile) {
  const TempDir dir;
  const std::string content("a\0\r\n\xFF", 5);
  MappedFile file;
  std::string reason = "untouched";
  ASSERT_TRUE(file.Open(dir.Write("f", content).c_str(), reason));
  EXPECT_EQ(GetContent(file), content);
  EXPECT_EQ(reason, "untouched");
  file.Close();
  EXPECT_EQ(file.GetBytes(), nullptr);
  EXPECT_EQ(file.GetSize(), 0u);
}

TEST(MappedFile, EmptyFileHasNoBytes) {
  const TempDir dir;
  MappedFile file;
  std::string reason;
  ASSERT_TRUE(file.Open(dir.Write("f", "").c_str(), reason)) << reason;
  EXPECT_EQ(file.GetSize(), 0u);
}

TEST(MappedFile, WhatIsNoFileIsRefusedAndClosesTheOldOne) {
  const TempDir dir;
  MappedFile file;
  std::string reason;
  ASSERT_TRUE(file.Open(dir.Write("f", "content").c_str(), reason));
  for (const std::string& path : {dir.Path("missing"), dir.Path(), std::string()}) {
    reason.clear();
    EXPECT_FALSE(file.Open(path.c_str(), reason)) << path;
    EXPECT_FALSE(reason.empty()) << path;
    EXPECT_EQ(reason.find('\n'), std::string::npos);
    EXPECT_EQ(file.GetBytes(), nullptr);
  }
  EXPECT_FALSE(file.Open(nullptr, reason));
}

TEST(MappedFile, NameInUtf8) {
  const TempDir dir;
  const std::filesystem::path path = std::filesystem::path(dir.Path()) / u8"\u03B1.bin";
  std::filesystem::copy_file(dir.Write("f", "1234"), path);
  MappedFile file;
  std::string reason;
  const std::u8string name = path.u8string();
  ASSERT_TRUE(file.Open(reinterpret_cast<const char*>(name.c_str()), reason)) << reason;
  EXPECT_EQ(GetContent(file), "1234");
}

TEST(MappedFile, MovesWithItsBytes) {
  const TempDir dir;
  MappedFile file;
  std::string reason;
  ASSERT_TRUE(file.Open(dir.Write("f", "content").c_str(), reason));
  const unsigned char* const bytes = file.GetBytes();
  MappedFile other = std::move(file);
  EXPECT_EQ(other.GetBytes(), bytes);
  file = std::move(other);
  EXPECT_EQ(GetContent(file), "content");
}

}  // namespace
