// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/landscape.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "support/temp_dir.h"
#include "utils/path.h"
#include "utils/text.h"

using namespace scene;

namespace {

// 40 degrees over 80 pixels: 0 degrees are 60 pixels down, 2 pixels a degree.
constexpr const char* kHead = "<svg viewBox=\"0 0 360 80\">";

std::string MakePicture(const std::string& points, const std::string& fill = "#102030") {
  return kHead + ("<polygon fill=\"" + fill) + "\" points=\"" + points + "\"/></svg>";
}

Direction At(double azimuth) { return MakeDirection(-azimuth * kRadiansPerDegree, 0.0); }

}  // namespace

TEST(Landscape, SkylineIsWhereThePictureHasIt) {
  Landscape landscape;
  std::string error;
  ASSERT_TRUE(
      ParseLandscape(MakePicture("0,80 0,50 90,50 180,40 270,50 360,50 360,80"), 0.0, landscape, error))
      << error;
  ASSERT_EQ(landscape.layers.size(), 1u);
  const LandscapeLayer& layer = landscape.layers[0];
  EXPECT_TRUE(layer.red == 0x10 && layer.green == 0x20 && layer.blue == 0x30);
  EXPECT_NEAR(landscape.GetSkyline(At(180.0)) / kRadiansPerDegree, 10.0, 1e-9);
  EXPECT_NEAR(landscape.GetSkyline(At(90.0)) / kRadiansPerDegree, 5.0, 1e-9);
  EXPECT_NEAR(landscape.GetSkyline(At(0.0)) / kRadiansPerDegree, 5.0, 1e-9);
  const double between = landscape.GetSkyline(At(135.0)) / kRadiansPerDegree;
  EXPECT_GT(between, 7.0);
  EXPECT_LT(between, 8.5);
}

TEST(Landscape, LeftEdgeStandsInItsAzimuth) {
  Landscape landscape;
  std::string error;
  ASSERT_TRUE(ParseLandscape(MakePicture("0,50 90,50 180,40 270,50 360,50"), 100.0, landscape, error));
  EXPECT_NEAR(landscape.GetSkyline(At(280.0)) / kRadiansPerDegree, 10.0, 1e-9);
}

TEST(Landscape, HighestSkylineCounts) {
  Landscape landscape;
  std::string error;
  const std::string two = std::string(kHead) + "<polygon fill=\"#000000\" points=\"0,58 360,58\"/>" +
                          "<polygon fill=\"#ffffff\" points=\"0,54 180,62 360,54\"/></svg>";
  ASSERT_TRUE(ParseLandscape(two, 0.0, landscape, error)) << error;
  EXPECT_NEAR(landscape.GetSkyline(At(0.0)) / kRadiansPerDegree, 3.0, 1e-9);
  EXPECT_NEAR(landscape.GetSkyline(At(180.0)) / kRadiansPerDegree, 1.0, 1e-9);
  EXPECT_LT(Landscape().GetSkyline(At(0.0)), -1.6) << "nothing hides anything";
}

// Neighbours near enough for the ground to be drawn of them.
TEST(Landscape, SkylineGoesAllAroundInSmallSteps) {
  Landscape landscape;
  std::string error;
  ASSERT_TRUE(ParseLandscape(MakePicture("0,50 180,50 360,50"), 0.0, landscape, error));
  const auto& skyline = landscape.layers[0].skyline;
  for (std::size_t i = 0; i < skyline.size(); ++i)
    EXPECT_GT(Dot(skyline[i], skyline[(i + 1) % skyline.size()]), std::cos(kRadiansPerDegree)) << i;
}

TEST(Landscape, DamagedPicturesAreRefusedAndChangeNothing) {
  const std::string cases[] = {
      "",
      "<svg></svg>",
      "<svg viewBox=\"0 0 0 80\"><polygon fill=\"#000000\" points=\"0,1 2,1\"/></svg>",
      std::string(kHead) + "</svg>",
      MakePicture("0,50 360,50", "green"),
      MakePicture("0,50 360,50", "#12345g"),
      MakePicture(""),
      MakePicture("0,50"),
      MakePicture("0,50 300,50"),   // not to the right edge
      MakePicture("10,50 360,50"),  // not from the left one
      MakePicture("0,50 200,50 100,50 360,50"),
      MakePicture("0,50 360,-5"),
      MakePicture("0,50 360,nan"),
      MakePicture("0,50 360"),
      MakePicture("0,80 360,80")};
  for (const std::string& svg : cases) {
    Landscape landscape;
    landscape.layers.resize(1);
    std::string error;
    EXPECT_FALSE(ParseLandscape(svg, 0.0, landscape, error)) << svg;
    EXPECT_NE(error, "") << svg;
    EXPECT_EQ(error.find('\n'), std::string::npos);
    EXPECT_EQ(landscape.layers.size(), 1u) << svg;
  }
}

TEST(Landscape, ShippedPicturesAreRead) {
  int read = 0;
  for (const auto& file : std::filesystem::directory_iterator(CI_DATA_SOURCE "/surface")) {
    if (file.path().extension() != ".svg") continue;
    std::ifstream in(file.path(), std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    Landscape landscape;
    std::string error;
    EXPECT_TRUE(ParseLandscape(text.str(), 0.0, landscape, error)) << file.path() << error;
    EXPECT_GE(landscape.layers.size(), 1u);
    ++read;
  }
  EXPECT_EQ(read, 4);
}

class LoadedLandscape : public testing::Test {
 protected:
  LoadedLandscape() {
    dir.Write("media/surface/panoramas.ini",
              "plnt\t3\thills.svg\t1\t7\tHills\t0\nplnt\t3\tsea.svg\t0\t8\tSea\t0\nplnt\t4\tbad."
              "svg\t1\t9\tBad\t0\n");
    dir.Write("media/surface/hills.svg", MakePicture("0,50 360,50"));
    dir.Write("media/surface/sea.svg", MakePicture("0,60 360,60"));
    dir.Write("media/surface/bad.svg", "no picture");
    ZentharPath::SetRoots(dir.Path("").c_str(), nullptr);
  }
  ~LoadedLandscape() override { ZentharPath::SetRoots(nullptr, nullptr); }

  bool Load(int planet, int choice) {
    return LoadLandscape(SSO_ID(FourCC("plnt"), planet), choice, landscape, error);
  }

  test_support::TempDir dir;
  Landscape landscape;
  std::string error;
};

TEST_F(LoadedLandscape, DefaultIsWhatTheListSays) {
  ASSERT_TRUE(Load(3, kDefaultLandscape)) << error;
  EXPECT_NEAR(landscape.GetSkyline(At(0.0)) / kRadiansPerDegree, 5.0, 1e-9);
  ASSERT_TRUE(Load(3, 8)) << error;
  EXPECT_NEAR(landscape.GetSkyline(At(0.0)), 0.0, 1e-9);
}

TEST_F(LoadedLandscape, BodyWithoutLandscapesHasPlainGround) {
  ASSERT_TRUE(Load(5, kDefaultLandscape));
  EXPECT_TRUE(landscape.layers.empty());
}

TEST_F(LoadedLandscape, UnknownChoiceAndBadPictureAreOneLineEach) {
  EXPECT_FALSE(Load(3, 9));
  EXPECT_EQ(error, "media:surface:panoramas.ini has no landscape 9");
  EXPECT_FALSE(Load(4, kDefaultLandscape));
  EXPECT_NE(error.find("bad.svg: is no SVG"), std::string::npos) << error;
}
