// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Saving where the disk is full, through a link, and into a file with a mode of its own.
#include <sys/stat.h>

#include <filesystem>

#include "settings/settings_bytes.h"
#include "support/file_size_limit_posix.h"

namespace test_support {
namespace {

class SettingsSavePosix : public SettingsTest {
 protected:
  SettingsSavePosix() { Create(settings, Int(kPlnt, 1, 10)); }
  std::string Saved() const {
    return Header(0) + Block(kOwner, kId, {Section(kPlnt, 0, 0, 0)}, {Int(kPlnt, 1, 10)});
  }

  SettingsData settings{kId, kOwner, "filters.data"};
};

TEST_F(SettingsSavePosix, FullDiskKeepsTheOldFileWithOneLine) {
  const std::string name = WriteFile(Header(5));
  for (const rlim_t bytes : {2u, 8u, 20u}) {
    debug.lines.clear();
    const FileSizeLimit full(bytes);
    EXPECT_FALSE(settings.Save(name.c_str()));
    EXPECT_EQ(debug.lines, std::vector<std::string>{"Settings cannot be saved in file " + name + "\n"});
  }
  EXPECT_EQ(roots.dir.Read("named.data"), Header(5));
  EXPECT_TRUE(settings.Save(name.c_str()));
  EXPECT_EQ(roots.dir.Read("named.data"), Saved());
}

TEST_F(SettingsSavePosix, LinkAndModeAreKept) {
  const std::string real = WriteFile(Header(5));
  ASSERT_EQ(chmod(real.c_str(), 0640), 0);
  std::filesystem::create_symlink("named.data", roots.dir.Path("link.data"));
  EXPECT_TRUE(settings.Save(roots.dir.Path("link.data").c_str()));
  EXPECT_EQ(roots.dir.Read("named.data"), Saved());
  EXPECT_TRUE(std::filesystem::is_symlink(roots.dir.Path("link.data")));
  struct stat info;
  ASSERT_EQ(stat(real.c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 07777, 0640u);
}

}  // namespace
}  // namespace test_support
