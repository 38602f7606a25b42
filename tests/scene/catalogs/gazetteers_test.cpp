// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/gazetteers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "astro/rotation.h"
#include "common_interfaces/gazetteers.h"
#include "scene/frame_helpers.h"
#include "scene/names_files.h"

using namespace scene;

namespace {

const SSO_ID kMoon(FourCC("moon"), 301), kMars(FourCC("plnt"), 4);

class GazetteersTest : public testing::Test {
 protected:
  GazetteersTest() { host_test::WriteNames(f.sky.dir); }

  host_test::FrameFixture f;
  Gazetteers gazetteers;
};

}  // namespace

// What is as long as a mare is wide but narrow comes behind craters that are smaller.
TEST_F(GazetteersTest, TheMostProminentComeFirst) {
  std::string names;
  for (const SurfaceFeature& feature : gazetteers.Get(kMoon)) names += feature.name + "; ";
  EXPECT_EQ(names, "Mare Imbrium; Tsiolkovskiy; Copernicus; Tycho; Vega; Rima Long; Tycho A; Luna 9; ");
}

// Half axes of Mars: 3396.19 and 3376.20 km (Archinal et al. 2018). At planetocentric latitude 18.65 degrees
// the spheroid's radius is ac / sqrt(c^2 cos^2 + a^2 sin^2).
TEST_F(GazetteersTest, FeaturesLieOnTheSpheroid) {
  const SurfaceFeature& olympus = gazetteers.GetFeature(Gazetteers::MakeIndex(kMars, 0));
  ASSERT_EQ(olympus.name, "Olympus Mons");
  const double radius = std::hypot(olympus.surface[0], olympus.surface[1], olympus.surface[2]);
  EXPECT_NEAR(radius, 3394.13, 0.05);
  EXPECT_NEAR(std::asin(olympus.surface[2] / radius), 0.3255, 1e-6);
  EXPECT_NEAR(std::atan2(olympus.surface[1], olympus.surface[0]), -2.3352, 1e-6);
}

TEST_F(GazetteersTest, AnIndexSaysBodyAndFeatureAndItsNumberStaysWithTheName) {
  const int tycho = Gazetteers::MakeIndex(kMoon, 3);
  EXPECT_EQ(Gazetteers::GetBody(tycho), kMoon);
  EXPECT_EQ(gazetteers.GetFeature(tycho).name, "Tycho");
  const int number = gazetteers.GetFeature(tycho).number;
  EXPECT_EQ(number, GetUniqueID("moon Tycho"));
  EXPECT_NE(gazetteers.GetFeature(Gazetteers::MakeIndex(kMoon, 2)).number,
            gazetteers.GetFeature(Gazetteers::MakeIndex(kMars, 1)).number)
      << "two craters Copernicus";
}

TEST_F(GazetteersTest, FilesAreThoseOfTheLibraryAndEveryBodyHasShapeAndRotation) {
  for (const SSO_ID& body : Gazetteers::GetBodies()) {
    EXPECT_TRUE(astro::GetBodyShape(body) && astro::ComputeRotation(body, 2451545.0)) << body.number;
  }
  for (const SSO_ID& body : {kMoon, kMars, SSO_ID(FourCC("plnt"), 1), SSO_ID(FourCC("plnt"), 2)}) {
    EXPECT_EQ("gazetteers/" + std::string(Gazetteers::FindName(body)) + "_features.txt",
              CommonInterfaces::GetGazetteersFileName(body));
  }
  EXPECT_EQ(Gazetteers::FindName(SSO_ID(FourCC("plnt"), 5)), nullptr);
}

TEST_F(GazetteersTest, BodiesWithoutAFileHaveNone) {
  EXPECT_TRUE(gazetteers.Get(SSO_ID(FourCC("moon"), 501)).empty());
  EXPECT_TRUE(gazetteers.Get(SSO_ID(FourCC("plnt"), 6)).empty());
}
