// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/incomplete_files.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "support/debug_capture.h"
#include "support/temp_dir.h"

namespace {

class IncompleteFilesTest : public testing::Test {
 protected:
  test_support::TempDir dir;
  test_support::DebugCapture debug;
  IncompleteFiles files;
};

TEST_F(IncompleteFilesTest, RefuseWhatWasAddedWithOneLine) {
  const std::string path = dir.Write("f", "1");
  EXPECT_TRUE(files.MayReplace(path, "homes"));
  EXPECT_TRUE(debug.lines.empty());
  files.Add(path);
  EXPECT_TRUE(files.Has(path));
  EXPECT_FALSE(files.IsEmpty());
  EXPECT_FALSE(files.MayReplace(path, "homes"));
  EXPECT_EQ(debug.lines, std::vector<std::string>{"File " + path +
                                                  ": homes not saved, because it could not be read whole\n"});
  EXPECT_TRUE(files.MayReplace(dir.Write("g", "1"), "homes"));
  files.Clear();
  EXPECT_TRUE(files.IsEmpty());
  EXPECT_TRUE(files.MayReplace(path, "homes"));
}

TEST_F(IncompleteFilesTest, FileThatHasGoneHasNothingToLose) {
  const std::string path = dir.Write("f", "1");
  files.Add(path);
  std::filesystem::remove(path);
  EXPECT_TRUE(files.MayReplace(path, "homes"));
  files.Add(dir.Path());
  EXPECT_TRUE(files.MayReplace(dir.Path(), "homes")) << "a folder";
  EXPECT_TRUE(debug.lines.empty());
}

}  // namespace
