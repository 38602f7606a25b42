// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Saving where the disk is full, through a link, and into a file with a mode of its own.
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

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

TEST_F(SettingsSavePosix, ProgramsThatSaveAtOnceLoseNoBlock) {
  constexpr unsigned kPrograms = 4;
  constexpr int kSaves = 10;
  const std::string name = WriteFile(Header(5) + Block(kOwner, 99, {}, {}));
  std::vector<pid_t> programs;
  for (unsigned id = 1; id <= kPrograms; ++id) {
    programs.push_back(fork());
    if (programs.back() != 0) continue;
    SettingsData own(id, kOwner, "filters.data");
    bool saved = Create(own, Int(kPlnt, 1, 10)) == 0;
    for (int i = 0; i < kSaves; ++i) saved = own.Save(name.c_str()) && saved;
    _exit(saved ? 0 : 1);
  }
  for (const pid_t program : programs) {
    int status = -1;
    EXPECT_EQ(waitpid(program, &status, 0), program);
    EXPECT_EQ(status, 0);
  }
  for (unsigned id = 1; id <= kPrograms; ++id)
    EXPECT_TRUE(SettingsData::HoldsBlock(name.c_str(), kOwner, id)) << id;
  EXPECT_TRUE(SettingsData::HoldsBlock(name.c_str(), kOwner, 99));
  const std::size_t block = Block(kOwner, 1, {Section(kPlnt, 0, 0, 0)}, {Int(kPlnt, 1, 10)}).size();
  EXPECT_EQ(roots.dir.Read("named.data").size(),
            Header(0).size() + Block(kOwner, 99, {}, {}).size() + kPrograms * block);
}

TEST_F(SettingsSavePosix, FileThatIsNotToldAboutStays) {
  const std::string link = roots.dir.Path("work/circle.data");
  std::filesystem::create_symlink("circle.data", link);
  EXPECT_FALSE(settings.Read("circle.data"));
  Create(settings, Int(kPlnt, 1, 10));
  EXPECT_FALSE(settings.Save("circle.data"));
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(debug.lines.size(), 1u);
}

}  // namespace
}  // namespace test_support
