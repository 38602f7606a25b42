// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/data_root.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "scene/catalogs/texts.h"
#include "scene/small_root.h"
#include "support/debug_capture.h"

using namespace scene;

namespace {

class DataRoot : public testing::Test {
 protected:
  bool Open(const std::string& data, const std::string& language = "en") {
    return OpenDataRoot(data, "", language, catalogs, error);
  }
  // One line, without an end, that has the part.
  void ExpectLineWith(const std::string& part) const {
    EXPECT_NE(error.find(part), std::string::npos) << error;
    EXPECT_EQ(error.find('\n'), std::string::npos) << error;
  }

  host_test::SmallRoot sky;
  test_support::DebugCapture diagnostics;
  SkyCatalogs catalogs;
  std::string error;
};

}  // namespace

TEST_F(DataRoot, GoodOneIsOpenedInOneCall) {
  ASSERT_TRUE(Open(sky.dir.Path("data"))) << error;
  EXPECT_EQ(error, "");
  EXPECT_EQ(catalogs.stars.GetCount(), 10);
  EXPECT_EQ(catalogs.deepsky.size(), 3u);
  EXPECT_EQ(catalogs.constellations.size(), 1u);
  EXPECT_EQ(diagnostics.lines, std::vector<std::string>());
}

TEST_F(DataRoot, LanguageIsThatOfTheCall) {
  ASSERT_TRUE(Open(sky.dir.Path("data"), "de")) << error;
  EXPECT_EQ(GetBodyLabel(catalogs.bodies[kSunBody]), "Sonne");
  ASSERT_TRUE(Open(sky.dir.Path("data"), "ru")) << error;
  EXPECT_EQ(GetBodyLabel(catalogs.bodies[kSunBody]), "Солнце");
}

TEST_F(DataRoot, SecondCallReplacesTheCatalogs) {
  ASSERT_TRUE(Open(sky.dir.Path("data"))) << error;
  sky.dir.Write("data/catalogs/stars.txt", "RA:f64\tDec:f64\tVisMagnitude:f32\n1.46\t0.0\t7.0\n");
  ASSERT_TRUE(Open(sky.dir.Path("data"))) << error;
  EXPECT_EQ(catalogs.stars.GetCount(), 1);
  EXPECT_EQ(catalogs.deepsky.size(), 3u);
}

TEST_F(DataRoot, MissingFolderIsNamed) {
  EXPECT_FALSE(Open(sky.dir.Path("nowhere")));
  ExpectLineWith((std::filesystem::path(sky.dir.Path("nowhere")) / "qxstrings.txt").string());
}

TEST_F(DataRoot, MissingTableIsNamed) {
  for (const char* table :
       {"stars.txt", "deepsky.txt", "constellations.txt", "constellation_lines.txt", "milkyway.map"}) {
    const std::string path = std::string("data/catalogs/") + table, content = sky.dir.Read(path);
    std::filesystem::remove(sky.dir.Path(path));
    EXPECT_FALSE(Open(sky.dir.Path("data"))) << table;
    ExpectLineWith(table);
    sky.dir.Write(path, content);
  }
  EXPECT_TRUE(Open(sky.dir.Path("data"))) << error;
}

TEST_F(DataRoot, UnknownLanguageIsNamed) {
  EXPECT_FALSE(Open(sky.dir.Path("data"), "xx"));
  ExpectLineWith("language 'xx': ");
}

TEST_F(DataRoot, IsFoundBesideTheProgramInstalledOrBuilt) {
  std::string root = "unchanged";
  sky.dir.Write("built/data/qxstrings.txt", "");
  sky.dir.Write("installed/share/common_interfaces/data/qxstrings.txt", "");
  EXPECT_FALSE(FindDataRoot(sky.dir.Path("elsewhere/bin"), root, error));
  EXPECT_EQ(root, "unchanged");
  ExpectLineWith((std::filesystem::path(sky.dir.Path("elsewhere")) / "data" / "qxstrings.txt").string());
  ASSERT_TRUE(FindDataRoot(sky.dir.Path("built/bin"), root, error)) << error;
  EXPECT_TRUE(std::filesystem::equivalent(root, sky.dir.Path("built/data")));
  ASSERT_TRUE(FindDataRoot(sky.dir.Path("installed/bin"), root, error)) << error;
  EXPECT_TRUE(std::filesystem::equivalent(root, sky.dir.Path("installed/share/common_interfaces/data")));
}
