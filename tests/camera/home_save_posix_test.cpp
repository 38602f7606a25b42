// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Homes that cannot be saved: what only this kind of system can bring about.
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "camera/home_fixture.h"
#include "support/file_size_limit_posix.h"

namespace {

using namespace test_support;
using namespace CommonInterfaces;

constexpr char kOldHomes[] = "1\n0 2 0 0.15 0.87 1 2 1886154356 3\n";

class HomeSaveTest : public HomeTest {
 protected:
  // A camera that has another home to save than the file's.
  void StoreAnother(Camera& camera) {
    StandOn(camera, kMarsId);
    camera.StoreParams(kHomeLocation | kHomeView | kHomeTime);
  }
  // Besides the homes themselves nothing may be left.
  int CountFiles() const {
    const auto files = std::filesystem::directory_iterator(roots.dir.Path("work"));
    return static_cast<int>(std::distance(begin(files), end(files)));
  }
};

TEST_F(HomeSaveTest, FullDiskKeepsTheOldFileAndOneLineSaysSo) {
  WriteHomes(kOldHomes);
  Camera camera(1);
  StoreAnother(camera);
  {
    const FileSizeLimit full(20);
    camera.SaveHomeParams();
  }
  EXPECT_EQ(ReadHomes(), kOldHomes);
  EXPECT_EQ(CountFiles(), 1);
  ASSERT_EQ(debug.lines.size(), 1u);
  EXPECT_NE(debug.lines[0].find("home_params.ini"), std::string::npos) << debug.lines[0];
}

TEST_F(HomeSaveTest, HomesInMemoryStayAndCanBeSavedLater) {
  WriteHomes(kOldHomes);
  Camera camera(1);
  StoreAnother(camera);
  {
    const FileSizeLimit full(20);
    camera.SaveHomeParams();
  }
  camera.SaveHomeParams();
  EXPECT_NE(Camera(1).FindHome(kMarsId), nullptr);
  EXPECT_NE(Camera(1).FindHome(kEarthId), nullptr);
}

TEST_F(HomeSaveTest, FolderInThePlaceOfTheFileIsOneLine) {
  std::filesystem::create_directories(roots.dir.Path("work/home_params.ini"));
  Camera camera(1);
  StoreAnother(camera);
  camera.SaveHomeParams();
  EXPECT_TRUE(std::filesystem::is_directory(roots.dir.Path("work/home_params.ini")));
  EXPECT_EQ(CountFiles(), 1);
  ASSERT_EQ(debug.lines.size(), 1u);
  EXPECT_NE(debug.lines[0].find("homes not saved"), std::string::npos) << debug.lines[0];
}

TEST_F(HomeSaveTest, HomesBehindADamagedOneAreNotSavedOver) {
  const std::string homes = std::string(kOldHomes) + "1\nno numbers\n1\n0 2 0 0.15 0.87 1 2 1836019566 301\n";
  WriteHomes(homes);
  Camera camera(1);
  StoreAnother(camera);
  debug.lines.clear();
  EXPECT_FALSE(camera.StoreHomeParams());
  EXPECT_EQ(ReadHomes(), homes);
  EXPECT_EQ(debug.lines, std::vector<std::string>{"File " + roots.dir.Path("work/home_params.ini") +
                                                  ": homes not saved, because it could not be read whole\n"});
  std::filesystem::remove(roots.dir.Path("work/home_params.ini"));
  EXPECT_TRUE(camera.StoreHomeParams()) << "with the damaged file out of the way";
  EXPECT_NE(Camera(1).FindHome(kMarsId), nullptr);
}

// In a child that is no privileged user, whom no permission would stop. It answers 0 when the old file is
// there and one line was printed.
TEST_F(HomeSaveTest, WriteProtectedFolderKeepsTheOldFileAndOneLineSaysSo) {
  WriteHomes(kOldHomes);
  const std::string folder = roots.dir.Path("work");
  ASSERT_EQ(chmod(roots.dir.Path().c_str(), 0755), 0);
  ASSERT_EQ(chmod(folder.c_str(), 0555), 0);
  const auto save = [this] {
    if (geteuid() == 0 && setuid(65534) != 0) _exit(2);
    Camera camera(1);
    StoreAnother(camera);
    camera.SaveHomeParams();
    _exit(ReadHomes() == kOldHomes && debug.lines.size() == 1 && CountFiles() == 1 ? 0 : 1);
  };
  EXPECT_EXIT(save(), testing::ExitedWithCode(0), "");
  ASSERT_EQ(chmod(folder.c_str(), 0755), 0);
}

}  // namespace
