// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/path.h"

#include <gtest/gtest.h>

#include "support/temp_dir.h"

namespace {

using test_support::TempRoots;

TEST(GetPath, AllThreeSeparatorsSeparate) {
  TempRoots roots;
  roots.dir.Write("data/media/find/table.bin", "x");
  const std::string expected = roots.dir.Path("data") + "/media/find/table.bin";
  EXPECT_EQ(ZentharPath::GetPath("media:find:table.bin"), expected);
  EXPECT_EQ(ZentharPath::GetPath("media\\find\\table.bin"), expected);
  EXPECT_EQ(ZentharPath::GetPath("media/find/table.bin"), expected);
  EXPECT_EQ(ZentharPath::GetPath("media:find\\table.bin"), expected);
}

TEST(GetPath, RepeatedSeparatorsCountOnce) {
  TempRoots roots;
  roots.dir.Write("data/media/a.txt", "x");
  EXPECT_EQ(ZentharPath::GetPath("media::a.txt"), roots.dir.Path("data") + "/media/a.txt");
  EXPECT_EQ(ZentharPath::GetPath("media:\\a.txt"), roots.dir.Path("data") + "/media/a.txt");
}

TEST(GetPath, WorkAreaHidesTheDataRoot) {
  TempRoots roots;
  roots.dir.Write("data/catalogs/favourites.txt", "shipped");
  EXPECT_EQ(ZentharPath::GetPath("catalogs:favourites.txt"),
            roots.dir.Path("data") + "/catalogs/favourites.txt");
  roots.dir.Write("work/catalogs/favourites.txt", "own");
  EXPECT_EQ(ZentharPath::GetPath("catalogs:favourites.txt"),
            roots.dir.Path("work") + "/catalogs/favourites.txt");
}

TEST(GetPath, FindsFolders) {
  TempRoots roots;
  roots.dir.Write("data/media/surface/panoramas.ini", "x");
  EXPECT_EQ(ZentharPath::GetPath("media:surface"), roots.dir.Path("data") + "/media/surface");
}

TEST(GetPath, AbsentNamesGiveNothing) {
  TempRoots roots;
  EXPECT_EQ(ZentharPath::GetPath("no:such:file"), "");
  EXPECT_EQ(ZentharPath::GetPath(""), "");
  EXPECT_EQ(ZentharPath::GetPath(nullptr), "");
  EXPECT_EQ(ZentharPath::GetPath(":"), "");
}

TEST(GetPath, NamesThatLeaveTheRootGiveNothing) {
  TempRoots roots;
  roots.dir.Write("secret.txt", "x");
  roots.dir.Write("data/a/b.txt", "x");
  EXPECT_EQ(ZentharPath::GetPath("..:secret.txt"), "");
  EXPECT_EQ(ZentharPath::GetPath("a:..:..:secret.txt"), "");
  EXPECT_EQ(ZentharPath::GetPath("a\\..\\a\\b.txt"), "");
  EXPECT_EQ(ZentharPath::GetWorkPath("..:secret.txt"), "");
}

TEST(GetPath, AbsolutePathStandsForItself) {
  TempRoots roots;
  const std::string path = roots.dir.Write("elsewhere/x.txt", "x");
  EXPECT_EQ(ZentharPath::GetPath(path.c_str()), path);
  EXPECT_EQ(ZentharPath::GetPath((path + ".absent").c_str()), "");
}

TEST(GetPath, AbsolutePathNeedsNoRoots) {
  test_support::TempDir dir;
  const std::string path = dir.Write("x.txt", "x");
  EXPECT_EQ(ZentharPath::GetPath(path.c_str()), path);
}

TEST(GetPath, DriveLetterMakesAPathAbsolute) {
  TempRoots roots;
  roots.dir.Write("data/q/x.txt", "x");
  EXPECT_EQ(ZentharPath::GetPath("q:x.txt"), roots.dir.Path("data") + "/q/x.txt");
  EXPECT_EQ(ZentharPath::GetPath("q:/x.txt"), "");
  EXPECT_EQ(ZentharPath::GetPath("q:\\x.txt"), "");
}

TEST(GetPath, WithoutRootsNothingIsFound) {
  ZentharPath::SetRoots(nullptr, "");
  EXPECT_EQ(ZentharPath::GetPath("tmp"), "");
  EXPECT_EQ(ZentharPath::GetWorkPath("tmp"), "");
}

TEST(SetRoots, EndSeparatorOfARootIsNotDoubled) {
  TempRoots roots;
  roots.dir.Write("data/x.txt", "x");
  ZentharPath::SetRoots((roots.dir.Path("data") + "//").c_str(), nullptr);
  EXPECT_EQ(ZentharPath::GetPath("x.txt"), roots.dir.Path("data") + "/x.txt");
}

TEST(SetRoots, NamesInUtf8) {
  TempRoots roots;
  const char name[] = "\xD0\xBD\xD0\xB5\xD0\xB1\xD0\xBE.txt";  // nebo, "sky" in Russian
  const std::string path = ZentharPath::GetWorkPath(name);
  EXPECT_EQ(ZentharPath::GetPath(name), "");
  std::ofstream(std::filesystem::path(std::u8string(path.begin(), path.end()))) << "x";
  EXPECT_EQ(ZentharPath::GetPath(name), path);
}

TEST(SetLanguageRoot, IsLookedInBetweenTheWorkAreaAndTheDataRoot) {
  TempRoots roots;
  const std::string german = roots.dir.Path("data/languages/de");
  roots.dir.Write("data/qxstrings.txt", "default");
  roots.dir.Write("data/filters.data", "shipped");
  roots.dir.Write("data/languages/de/qxstrings.txt", "German");
  ZentharPath::SetLanguageRoot(german.c_str());
  EXPECT_EQ(ZentharPath::GetPath("qxstrings.txt"), german + "/qxstrings.txt");
  EXPECT_EQ(ZentharPath::GetPath("filters.data"), roots.dir.Path("data") + "/filters.data");
  roots.dir.Write("work/qxstrings.txt", "own");
  EXPECT_EQ(ZentharPath::GetPath("qxstrings.txt"), roots.dir.Path("work") + "/qxstrings.txt");
}

TEST(SetLanguageRoot, NullAndEmptyAreNoRoot) {
  TempRoots roots;
  roots.dir.Write("data/x.txt", "x");
  roots.dir.Write("data/languages/de/x.txt", "x");
  for (const char* none : {static_cast<const char*>(nullptr), ""}) {
    ZentharPath::SetLanguageRoot(roots.dir.Path("data/languages/de").c_str());
    ZentharPath::SetLanguageRoot(none);
    EXPECT_EQ(ZentharPath::GetPath("x.txt"), roots.dir.Path("data") + "/x.txt");
  }
}

TEST(SetLanguageRoot, DoesNotMoveTheWorkArea) {
  TempRoots roots;
  roots.dir.Write("data/languages/de/x.txt", "x");
  ZentharPath::SetLanguageRoot(roots.dir.Path("data/languages/de").c_str());
  EXPECT_EQ(ZentharPath::GetWorkPath("x.txt"), roots.dir.Path("work") + "/x.txt");
  EXPECT_EQ(ZentharPath::GetWorkPath("x.txt", true), "");
}

TEST(SetLanguageRoot, NamesThatLeaveItGiveNothing) {
  TempRoots roots;
  roots.dir.Write("data/languages/secret.txt", "x");
  roots.dir.Write("data/languages/de/x.txt", "x");
  ZentharPath::SetLanguageRoot(roots.dir.Path("data/languages/de").c_str());
  EXPECT_EQ(ZentharPath::GetPath("..:secret.txt"), "");
}

TEST(SetLanguageRoot, GoesWithTheRootsItBelongsTo) {
  TempRoots roots;
  roots.dir.Write("data/languages/de/x.txt", "x");
  ZentharPath::SetLanguageRoot(roots.dir.Path("data/languages/de").c_str());
  ZentharPath::SetRoots(roots.dir.Path("data").c_str(), nullptr);
  EXPECT_EQ(ZentharPath::GetPath("x.txt"), "");
}

TEST(GetWorkPath, NamesAFileThatIsNotThere) {
  TempRoots roots;
  EXPECT_EQ(ZentharPath::GetWorkPath("home_params.ini"), roots.dir.Path("work") + "/home_params.ini");
}

TEST(GetWorkPath, MustExistAsksTheWorkAreaOnly) {
  TempRoots roots;
  roots.dir.Write("data/x.txt", "x");
  EXPECT_EQ(ZentharPath::GetWorkPath("x.txt", true), "");
  roots.dir.Write("work/x.txt", "x");
  EXPECT_EQ(ZentharPath::GetWorkPath("x.txt", true), roots.dir.Path("work") + "/x.txt");
}

TEST(GetWorkPath, CreateMakesTheFoldersAndNotTheFile) {
  TempRoots roots;
  const std::string path = ZentharPath::GetWorkPath("catalogs:comets:new:list.txt", false, true);
  EXPECT_EQ(path, roots.dir.Path("work") + "/catalogs/comets/new/list.txt");
  EXPECT_TRUE(std::filesystem::is_directory(roots.dir.Path("work/catalogs/comets/new")));
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(GetWorkPath, CreateMakesTheWorkAreaItself) {
  test_support::TempDir dir;
  ZentharPath::SetRoots(nullptr, dir.Path("not/yet/there").c_str());
  EXPECT_EQ(ZentharPath::GetWorkPath("x.txt"), dir.Path("not/yet/there") + "/x.txt");
  EXPECT_TRUE(std::filesystem::is_directory(dir.Path("not/yet/there")));
  ZentharPath::SetRoots(nullptr, nullptr);
}

TEST(GetWorkPath, WithoutCreateNoFolderIsMade) {
  TempRoots roots;
  EXPECT_EQ(ZentharPath::GetWorkPath("catalogs:list.txt", false, false),
            roots.dir.Path("work") + "/catalogs/list.txt");
  EXPECT_EQ(ZentharPath::GetWorkPath("catalogs:list.txt", true, true), "");
  EXPECT_FALSE(std::filesystem::exists(roots.dir.Path("work/catalogs")));
}

TEST(GetWorkPath, FileInTheWayOfAFolderGivesNothing) {
  TempRoots roots;
  roots.dir.Write("work/catalogs", "a file");
  EXPECT_EQ(ZentharPath::GetWorkPath("catalogs:comets:list.txt"), "");
  EXPECT_EQ(roots.dir.Read("work/catalogs"), "a file");
}

TEST(GetWorkPath, AbsolutePathStandsForItself) {
  TempRoots roots;
  const std::string path = roots.dir.Path("elsewhere/x.txt");
  EXPECT_EQ(ZentharPath::GetWorkPath(path.c_str(), true), "");
  EXPECT_EQ(ZentharPath::GetWorkPath(path.c_str()), path);
}

TEST(GetWorkPath, NameOfVeryManyFoldersGivesNothingAndMakesNone) {
  TempRoots roots;
  std::string name;
  for (int i = 0; i < 3000; ++i) name += "f:";
  EXPECT_EQ(ZentharPath::GetWorkPath((name + "x.txt").c_str()), "");
  EXPECT_TRUE(std::filesystem::is_empty(roots.dir.Path("work")));
}

TEST(GetWorkPath, NoNameGivesNothing) {
  TempRoots roots;
  EXPECT_EQ(ZentharPath::GetWorkPath(nullptr), "");
  EXPECT_EQ(ZentharPath::GetWorkPath(""), "");
  EXPECT_EQ(ZentharPath::GetWorkPath(":/"), "");
  EXPECT_EQ(ZentharPath::GetWorkPath("a:..:b"), "");
}

TEST(GetPath, PointIsTheSameFolder) {
  TempRoots roots;
  roots.dir.Write("data/a/b.txt", "x");
  EXPECT_EQ(ZentharPath::GetPath("./a/./b.txt"), roots.dir.Path("data") + "/a/b.txt");
  EXPECT_EQ(ZentharPath::GetPath("."), "");
}

TEST(SetRoots, RootFolderOfTheSystemKeepsItsSeparator) {
  const TempRoots restored;
  ZentharPath::SetRoots(nullptr, "/");
  EXPECT_EQ(ZentharPath::GetWorkPath("a:b.txt", false, false), "/./a/b.txt");
}

}  // namespace
