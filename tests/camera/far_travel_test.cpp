// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "camera/view_helpers.h"
#include "support/camera_settings.h"

namespace {

using namespace test_support;
using CommonInterfaces::Camera;

constexpr double kParsec = 206264.8062470964;  // au

class FarTravelTest : public testing::Test {
 protected:
  // The moving type comes from files alone; the place is set by hand.
  void Travel(int movingType, double dist, double lon = 0, double lat = 0) {
    TempRoots roots;
    RecordFields fields = CameraFields();
    ReplaceField(fields, Int8("m_ObsMovingType", movingType));
    WriteCameraDefaults(roots, fields);
    Camera loaded(1);
    loaded.CreateDefault();
    ASSERT_EQ(loaded.GetMovingType(), movingType);
    SphCoor location = loaded.GetLocation();
    location.dist = dist;
    location.lon = lon;
    location.lat = lat;
    loaded.SetLocation(location);
    camera = loaded;
  }

  Camera camera{1};
};

TEST_F(FarTravelTest, DeepSpaceIsAroundTheGalaxyOrBeyondAThousandAu) {
  for (int type = 0; type <= 11; ++type) {
    const bool far = type == 3 || type == 10 || type == 11;
    Travel(type, 0.0);
    EXPECT_EQ(camera.IsDeepSpace(), type == 9) << type;
    Travel(type, 1000.0);
    EXPECT_EQ(camera.IsDeepSpace(), type == 9) << type;
    Travel(type, 1000.001);
    EXPECT_EQ(camera.IsDeepSpace(), type == 9 || far) << type;
  }
}

TEST_F(FarTravelTest, OurGalaxyIsShownFrom4000ParsecForTypes9To11) {
  for (int type = 0; type <= 11; ++type) {
    Travel(type, 825059224.9883856);
    EXPECT_FALSE(camera.IsShowOurGalaxy()) << type;
    Travel(type, 825059225.0);
    EXPECT_EQ(camera.IsShowOurGalaxy(), type >= 9) << type;
  }
}

TEST_F(FarTravelTest, EveryClassHasItsRadiusInTypes10And11) {
  struct {
    double radius;
    bool (Camera::*isShown)() const;
  } const classes[] = {{1650118449.976771, &Camera::IsShowStars},
                       {6187944187.412891, &Camera::IsShowClusters},
                       {1237588837.4825783, &Camera::IsShowNebulae},
                       {206264.8062470964, &Camera::IsShowSSObjects}};
  for (int type : {10, 11}) {
    for (const auto& cls : classes) {
      Travel(type, cls.radius * 0.999999);
      EXPECT_TRUE((camera.*cls.isShown)()) << type << " " << cls.radius;
      Travel(type, cls.radius);
      EXPECT_FALSE((camera.*cls.isShown)()) << type << " " << cls.radius;
    }
  }
}

TEST_F(FarTravelTest, AroundTheGalaxyRadiiCountFromThePlaceOfTheSun) {
  Travel(9, 8500 * kParsec, kPi, 0);  // at the Sun
  EXPECT_TRUE(camera.IsShowSSObjects());
  EXPECT_TRUE(camera.IsShowNebulae());
  Travel(9, 8500 * kParsec + 2 * kParsec, kPi, 0);  // two parsec beyond it
  EXPECT_FALSE(camera.IsShowSSObjects());
  EXPECT_TRUE(camera.IsShowStars());
  Travel(9, 0.0);  // at the galactic centre: 8500 parsec from the Sun
  EXPECT_FALSE(camera.IsShowStars());
  EXPECT_FALSE(camera.IsShowNebulae());
  EXPECT_TRUE(camera.IsShowClusters());
  Travel(9, 8500 * kParsec, 0, 0);  // on the other side: 17000 parsec
  EXPECT_FALSE(camera.IsShowStars());
  EXPECT_TRUE(camera.IsShowClusters());
  Travel(9, 8500 * kParsec, kPi, 50 * kDegree);  // 2 * 8500 sin 25 degrees = 7184.5 parsec
  EXPECT_TRUE(camera.IsShowStars());
  EXPECT_FALSE(camera.IsShowNebulae());
}

TEST_F(FarTravelTest, EveryOtherMovingTypeShowsAllClasses) {
  for (int type = 0; type <= 8; ++type) {
    Travel(type, 1e30);
    EXPECT_TRUE(camera.IsShowStars()) << type;
    EXPECT_TRUE(camera.IsShowClusters()) << type;
    EXPECT_TRUE(camera.IsShowNebulae()) << type;
    EXPECT_TRUE(camera.IsShowSSObjects()) << type;
  }
}

TEST_F(FarTravelTest, SkySectorsOfGalaxiesAreFilteredUnlessOurGalaxyIsShown) {
  Travel(10, 0.0);
  EXPECT_TRUE(camera.IsSkySectorsFiltration(FourCC("gala")));
  Travel(10, 5000 * kParsec);
  EXPECT_FALSE(camera.IsSkySectorsFiltration(FourCC("gala")));
  EXPECT_TRUE(camera.IsSkySectorsFiltration(FourCC("star")));
  EXPECT_TRUE(camera.IsSkySectorsFiltration(-1));
}

}  // namespace
