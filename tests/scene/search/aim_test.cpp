// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/search/aim.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "scene/frame_helpers.h"
#include "scene/search/pick.h"
#include "scene/view/base_plane.h"

using namespace scene;

namespace {

class Aim : public testing::Test {
 protected:
  std::optional<Standing> Look(const char* name) {
    std::string error;
    const auto object = search.FindOne(name, error);
    EXPECT_TRUE(object) << error;
    return object ? AimAt(*object, f.catalogs, f.camera) : std::nullopt;
  }
  bool IsInTheMiddle(int kind, int number) {
    f.Compute();
    const auto hits = PickObjects(f.frame.GetDisplayList(), 800.0, 500.0, 1.0);
    return std::any_of(hits.begin(), hits.end(), [&](const Hit& hit) {
      return hit.object.kind == kind && hit.object.number == number;
    });
  }

  host_test::FrameFixture f;
  ObjectSearch search{f.catalogs};
};

}  // namespace

TEST_F(Aim, ObjectIsDrawnInTheMiddleOfThePicture) {
  const struct {
    const char* name;
    int kind, number;
  } objects[] = {{"Sirius", FourCC("star"), 2491},
                 {"Pleiades", FourCC("clst"), 45},
                 {"Jupiter", FourCC("plnt"), 5},
                 {"Vesta", FourCC("astr"), 4}};
  f.SetTime(2026, 1, 15, 23, 0);
  f.camera.SetZoom(20.0);
  for (const auto& object : objects) {
    f.SetLook(10.0, -80.0);
    f.camera.SetBasePlane(kEquatorPlane);
    if (object.kind == FourCC("astr")) f.SetTime(2026, 10, 15, 23, 0);
    ASSERT_TRUE(Look(object.name)) << object.name;
    EXPECT_EQ(f.camera.GetBasePlane(), kHorizonPlane);
    EXPECT_TRUE(IsInTheMiddle(object.kind, object.number)) << object.name;
  }
}

// Canopus culminates 15 degrees below the horizon of Berlin.
TEST_F(Aim, ObjectBelowTheHorizonIsLookedAtAndSaysSo) {
  const auto there = Look("Canopus");
  ASSERT_TRUE(there);
  EXPECT_LT(there->altitude, -15.0);
  EXPECT_NEAR(f.camera.GetViewAngles().lat, there->altitude * kRadiansPerDegree, 1e-12);
}

TEST_F(Aim, TravellersCameraStaysAsItWas) {
  f.camera.SetMovingType(3, false);
  const SphViewCoor before = f.camera.GetViewAngles();
  EXPECT_FALSE(Look("Sirius"));
  EXPECT_EQ(f.camera.GetViewAngles().lon, before.lon);
  EXPECT_EQ(f.camera.GetViewAngles().lat, before.lat);
}

TEST_F(Aim, DirectionCountsFromTheHorizon) {
  f.camera.SetBasePlane(kGalacticPlane);
  LookTo({90.0, 25.0}, f.camera);
  EXPECT_EQ(f.camera.GetBasePlane(), kHorizonPlane);
  EXPECT_DOUBLE_EQ(f.camera.GetViewAngles().lon, 270.0 * kRadiansPerDegree) << "longitudes grow over west";
  EXPECT_DOUBLE_EQ(f.camera.GetViewAngles().lat, 25.0 * kRadiansPerDegree);
}
