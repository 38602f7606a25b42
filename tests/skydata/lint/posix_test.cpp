// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Files and folders that their owner has locked, and what is neither.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "skydata/files/source_error.h"
#include "skydata/lint/lint.h"
#include "support/temp_dir.h"

namespace skydata {
namespace {

// In a process of its own, because nothing is locked for a privileged one, which therefore becomes another
// user.
template <class Check>
void ExpectUnprivileged(Check check) {
  const auto run = [&check] {
    constexpr uid_t kNobody = 65534;
    const bool isPrivileged = geteuid() == 0 && setuid(kNobody) != 0;
    _exit(!isPrivileged && check() ? 7 : 1);
  };
  EXPECT_EXIT(run(), testing::ExitedWithCode(7), "");
}

// Locked while it lives.
class Lock {
 public:
  explicit Lock(std::string path) : m_Path(std::move(path)) { chmod(m_Path.c_str(), 0); }
  ~Lock() { chmod(m_Path.c_str(), S_IRWXU); }
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;

 private:
  std::string m_Path;
};

TEST(LintLockedDeathTest, LockedFilesAndFoldersAreToldAndTheOthersChecked) {
  const test_support::TempDir dir;
  dir.Write("root/media/find/3d_flight_to_objects.txt", "plnt\t3\n");
  const Lock folder(dir.Path("root/media/find"));
  const Lock file(dir.Write("root/catalogs/satellites.tle", "1\n"));
  dir.Write("root/media/surface/panoramas.ini", "plnt\n");
  ExpectUnprivileged([&dir] {
    std::string lines;
    for (const LintFinding& finding : Lint(dir.Path("root"))) lines += FormatFinding("", finding);
    return lines ==
           "catalogs/satellites.tle:0:0: error: unreadable: the file cannot be read\n"
           "media/find/:0:0: error: unreadable: the folder cannot be read\n"
           "media/surface/panoramas.ini:1:5: error: too-few-fields: the line has 1 fields, wants 7\n";
  });
}

// Nobody opens the pipe for writing: whoever reads it waits.
TEST(LintPlaces, FoldersPipesDevicesAndLinksToNothingInPlacesOfFilesAreTold) {
  const test_support::TempDir dir;
  std::filesystem::create_directories(dir.Path("root/catalogs/milkyway.map"));
  std::filesystem::create_directories(dir.Path("root/catalogs/comets"));     // a folder of the root
  std::filesystem::create_directories(dir.Path("root/media/milkyway.map"));  // nothing looks for it there
  std::filesystem::create_directories(dir.Path("elsewhere"));
  std::filesystem::create_directory_symlink(dir.Path("elsewhere"), dir.Path("root/filters.data"));
  std::filesystem::create_symlink("/dev/null", dir.Path("root/catalogs/stars.prepared"));
  std::filesystem::create_symlink("nowhere", dir.Path("root/catalogs/stars.tiles"));
  std::filesystem::create_symlink("nowhere", dir.Path("root/catalogs/stars.txt"));
  ASSERT_EQ(mkfifo(dir.Path("root/catalogs/satellites.tle").c_str(), S_IRWXU), 0);
  std::string lines;
  for (const LintFinding& finding : Lint(dir.Path("root"))) lines += FormatFinding("", finding);
  EXPECT_EQ(lines,
            "catalogs/milkyway.map:0:0: error: unreadable: a folder stands in the place of the file\n"
            "catalogs/satellites.tle:0:0: error: unreadable: the file is no regular file\n"
            "catalogs/stars.prepared:0:0: error: unreadable: the file is no regular file\n"
            "catalogs/stars.tiles:0:0: error: unreadable: the file cannot be read\n"
            "catalogs/stars.txt:0:0: error: unreadable: the file cannot be read\n"
            "filters.data:0:0: error: unreadable: a folder stands in the place of the file\n");
}

TEST(LintLockedDeathTest, ALockedRootThrows) {
  const test_support::TempDir dir;
  dir.Write("root/media/surface/panoramas.ini", "plnt\n");
  const Lock root(dir.Path("root"));
  ExpectUnprivileged([&dir] {
    try {
      Lint(dir.Path("root"));
    } catch (const SourceError&) {
      return true;
    }
    return false;
  });
}

}  // namespace
}  // namespace skydata
