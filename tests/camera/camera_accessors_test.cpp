// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cstring>
#include <string>

#include <gtest/gtest.h>

#include "astro/delta_t.h"
#include "common_interfaces/camera.h"
#include "support/temp_dir.h"
#include "utils/text.h"

namespace {

using CommonInterfaces::_Date;
using CommonInterfaces::Camera;
using CommonInterfaces::CameraStep;

class CameraAccessorsTest : public testing::Test {
 protected:
  test_support::TempRoots roots;
  Camera camera{1};
};

SSO_ID Named(const char (&kind)[5], int number, const char* name) {
  SSO_ID id(FourCC(kind), number);
  std::strncpy(id.name, name, sizeof id.name - 1);
  return id;
}

TEST_F(CameraAccessorsTest, SetTimeAndSetUniversalTimeStoreTheSame) {
  _Date t{2460000, 0.25, 2}, first, second;
  camera.SetTime(t);
  camera.GetUniversalTime(first);
  EXPECT_TRUE(camera.IsTimeChanged());
  Camera other(1);
  other.SetUniversalTime(t);
  other.GetUniversalTime(second);
  EXPECT_TRUE(other.IsTimeChanged());
  EXPECT_EQ(first.day, 2460000);
  EXPECT_EQ(first.fraction, 0.25);
  EXPECT_EQ(first.type, 2);
  EXPECT_EQ(second.day, first.day);
  EXPECT_EQ(second.fraction, first.fraction);
  EXPECT_EQ(second.type, first.type);
}

TEST_F(CameraAccessorsTest, GetTimeAddsDeltaTAndLeavesTheTypeToTheCaller) {
  camera.SetUniversalTime({2460000, 0.25, 0});
  _Date t;
  t.type = 77;
  camera.GetTime(t);
  EXPECT_EQ(t.day, 2460000);
  EXPECT_EQ(t.fraction, 0.25 + ET_UT::Get(2460000, 0.25) / 86400.0);
  EXPECT_NEAR((t.fraction - 0.25) * 86400, 69.2, 0.1);  // delta T of February 2023, IERS
  EXPECT_EQ(t.type, 77);
}

TEST_F(CameraAccessorsTest, TimeChangedIsClearedByItsConsumer) {
  EXPECT_FALSE(camera.IsTimeChanged());
  camera.SetTime({2460000, 0.0, 1});
  camera.ClearTimeChanged();
  EXPECT_FALSE(camera.IsTimeChanged());
}

TEST_F(CameraAccessorsTest, SetObserverTakesTheWholeIdentifierAndRaisesTheFlag) {
  SSO_ID mars = Named("plnt", 4, "Mars");
  mars.third = 5;
  mars.fourth = 6;
  camera.SetObserver(mars);
  EXPECT_TRUE(camera.IsObserverChanged());
  EXPECT_EQ(camera.GetObserver(), mars);
  EXPECT_STREQ(camera.GetObserver().name, "Mars");
  EXPECT_EQ(camera.GetObserver().third, 5);
  EXPECT_EQ(camera.GetObserver().fourth, 6);
}

TEST_F(CameraAccessorsTest, ObserverAlreadySetDoesNotRaiseTheFlag) {
  camera.SetObserver(Named("plnt", 4, "Mars"));
  camera.SetObserverName("Red planet");
  EXPECT_FALSE(camera.IsObserverChanged());
  camera.SetObserver(Named("plnt", 4, "Mars"));
  EXPECT_FALSE(camera.IsObserverChanged());
  EXPECT_STREQ(camera.GetObserver().name, "Red planet");
}

TEST_F(CameraAccessorsTest, ObserverNameIsCutAt79Bytes) {
  camera.SetObserverName(std::string(200, 'x').c_str());
  EXPECT_EQ(camera.GetObserver().name, std::string(79, 'x'));
  camera.SetObserverName(camera.GetObserver().name + 70);
  EXPECT_EQ(camera.GetObserver().name, std::string(9, 'x'));
  camera.SetObserverName(nullptr);
  EXPECT_STREQ(camera.GetObserver().name, "");
}

TEST_F(CameraAccessorsTest, LocationIsStoredWhole) {
  camera.SetLocation({2.5, 1.0, -0.5, 4, 3});
  const SphCoor& location = camera.GetLocation();
  EXPECT_EQ(location.dist, 2.5);
  EXPECT_EQ(location.lon, 1.0);
  EXPECT_EQ(location.lat, -0.5);
  EXPECT_EQ(location.distUnits, 4);
  EXPECT_EQ(location.coorSys, 3);
}

TEST_F(CameraAccessorsTest, LocationNameIsKept) {
  const std::string& name = camera.GetLocationName();
  EXPECT_EQ(name, "");
  camera.SetLocationName("Greenwich");
  EXPECT_EQ(name, "Greenwich");
  camera.SetLocationName(name.c_str() + 5);
  EXPECT_EQ(name, "wich");
  camera.SetLocationName(nullptr);
  EXPECT_EQ(name, "");
}

TEST_F(CameraAccessorsTest, SetCenterViewTakesTheObject) {
  EXPECT_FALSE(camera.IsCenterObjectSet());
  EXPECT_TRUE(camera.SetCenterView(Named("star", 424, "Polaris")));
  EXPECT_EQ(camera.GetCenterObject(), SSO_ID(FourCC("star"), 424));
  EXPECT_STREQ(camera.GetCenterObject().name, "Polaris");
  EXPECT_TRUE(camera.IsCenterObjectSet());
  camera.ClearCenterObjectSet();
  EXPECT_FALSE(camera.IsCenterObjectSet());
}

TEST_F(CameraAccessorsTest, SetCenterViewRefusesWhileLocked) {
  camera.SetCenterView(Named("star", 424, "Polaris"));
  camera.ClearCenterObjectSet();
  camera.SetCenterViewLock(true);
  EXPECT_FALSE(camera.SetCenterView(Named("plnt", 4, "Mars")));
  EXPECT_EQ(camera.GetCenterObject(), SSO_ID(FourCC("star"), 424));
  EXPECT_FALSE(camera.IsCenterObjectSet());
  camera.SetCenterViewLock(false);
  EXPECT_TRUE(camera.SetCenterView(Named("plnt", 4, "Mars")));
}

TEST_F(CameraAccessorsTest, PlainValuesAreKept) {
  camera.SetFST_Mode(1);
  EXPECT_EQ(camera.GetFST_Mode(), 1);
  camera.SetFST_Offered(true);
  EXPECT_TRUE(camera.IsFST_Offered());
  camera.SetObsLocatType(3);
  EXPECT_EQ(camera.GetObsLocatType(), 3);
  camera.SetBelowSurface(true);
  EXPECT_TRUE(camera.IsBelowSurface());
  camera.SetDirectionLock(true);
  EXPECT_TRUE(camera.IsDirectionLocked());
  camera.SetBasePlane(2);
  EXPECT_EQ(camera.GetBasePlane(), 2);
  camera.SetAimingDispType(1);
  EXPECT_EQ(camera.GetAimingDispType(), 1);
  camera.SetFinderSize(-3);
  EXPECT_EQ(camera.GetFinderSize(), -3);
}

TEST_F(CameraAccessorsTest, EveryStepHasItsValueAndUnit) {
  for (int step = 0; step < CommonInterfaces::kCameraSteps; ++step)
    camera.SetStep(static_cast<CameraStep>(step), {step + 0.5, step + 1});
  for (int step = 0; step < CommonInterfaces::kCameraSteps; ++step) {
    EXPECT_EQ(camera.GetStep(static_cast<CameraStep>(step)).value, step + 0.5);
    const bool isZoom = static_cast<CameraStep>(step) == CameraStep::kZoom;
    EXPECT_EQ(camera.GetStep(static_cast<CameraStep>(step)).unit, isZoom ? 0 : step + 1);
  }
}

}  // namespace
