// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <cstring>
#include <string>

#include "camera/homes_fixture.h"

namespace {

using namespace test_support;
using namespace CommonInterfaces;

using GoingHome = HomesTest;

TEST_F(GoingHome, OnlyAnEarthSurfaceObserverIsHome) {
  camera.StoreParams(kHomeLocation);
  EXPECT_TRUE(camera.IsHome(1e-3f));
  camera.SetObserver(kMarsId);
  EXPECT_FALSE(camera.IsHome(1e9f));
  camera.SetObserver(kEarthId);
  camera.SetMovingType(1, true);
  EXPECT_FALSE(camera.IsHome(1e9f));
}

TEST_F(GoingHome, ToleranceZeroIsNeverHome) {
  camera.StoreParams(kHomeLocation);
  EXPECT_FALSE(camera.IsHome(0.0f));
}

TEST_F(GoingHome, ToleranceIsTheDistanceInKilometres) {
  camera.SetLocation(Place(0.0, 0.0));
  camera.StoreParams(kHomeLocation);
  camera.SetLocation(Place(180.0, 0.0));
  // Straight through the Earth: twice the equatorial radius, 12756.274 km.
  EXPECT_FALSE(camera.IsHome(12756.2f));
  EXPECT_TRUE(camera.IsHome(12756.3f));
  camera.SetLocation(Place(0.0, 90.0));
  // From the equator to the pole (6356.7523 km from the centre): 9005.0 km.
  EXPECT_FALSE(camera.IsHome(9004.8f));
  EXPECT_TRUE(camera.IsHome(9005.2f));
}

TEST_F(GoingHome, DistancesCountAsHeightsInTheirUnit) {
  SphCoor place = Place(10.0, 50.0, 2.0);
  place.distUnits = 1;  // as kilometres: 2 au of the record count as 2 km
  camera.SetLocation(place);
  camera.StoreParams(kHomeLocation);
  place.dist = 5.0;
  camera.SetLocation(place);
  EXPECT_FALSE(camera.IsHome(2.9f));
  EXPECT_TRUE(camera.IsHome(3.1f));
}

TEST_F(GoingHome, WithoutAHomeThePlaceZeroCountsAndALineSaysSo) {
  camera.SetLocation(Place(0.0, 0.0));
  EXPECT_TRUE(camera.IsHome(0.001f));
  ASSERT_EQ(debug.lines.size(), 1u);
  EXPECT_EQ(debug.lines[0], "Camera::GetHomeParams - home params for (1886154356, 3) not found\n");
}

TEST_F(GoingHome, GoingHomeWithoutAHomeClearsTheFlightObjectAndSaysSo) {
  camera.Set3DFlightObject(kMoonId);
  camera.SetCenterView(kMoonId);
  camera.GoHome(true);
  SSO_ID object;
  EXPECT_TRUE(camera.IsGoingHome());
  EXPECT_FALSE(camera.Get3DFlightObject(&object));
  EXPECT_EQ(camera.GetCenterObject(), kMoonId);
  ASSERT_EQ(debug.lines.size(), 1u);
  EXPECT_EQ(debug.lines[0], "Camera::GoHome - home params for Earth not found\n");
}

TEST_F(GoingHome, NotGoingHomeOnlyClearsTheFlag) {
  camera.StoreParams(7);
  camera.GoHome(true);
  camera.Set3DFlightObject(kMoonId);
  camera.SetZoom(9.0);
  camera.GoHome(false);
  SSO_ID object;
  EXPECT_FALSE(camera.IsGoingHome());
  EXPECT_TRUE(camera.Get3DFlightObject(&object));
  EXPECT_EQ(camera.GetZoom(), 9.0);
}

TEST_F(GoingHome, GoingHomeBringsBackPlaceViewAndTime) {
  camera.SetLocation(Place(13.4, 52.5));
  camera.SetLocationName("Berlin");
  camera.SetTimeZoneName("Europe/Berlin", true);
  camera.SetRA_Dec({0.5, -0.25, 0.125, 0});
  camera.SetZoom(4.0);
  camera.SetUniversalTime({2460000, 0.25, 1});
  camera.StoreParams(7);

  camera.SetMovingType(9, false);
  camera.SetObserver(SSO_ID(FourCC("gala"), 5));
  camera.SetLocation(Place(1.0, 2.0, 1e9));
  camera.SetLocationName("far away");
  camera.SetTimeZoneName("Asia/Tokyo", true);
  camera.SetRA_Dec({1.0, 1.0, 1.0, 0});
  camera.SetZoom(1.0);
  camera.SetUniversalTime({2470000, 0.5, 0});
  camera.SetCenterView(kMoonId);
  camera.SetDirectionLock(true);
  camera.GoHome(true);

  EXPECT_EQ(camera.GetMovingType(), 0);
  EXPECT_EQ(camera.GetObserver(), kEarthId);
  EXPECT_EQ(camera.GetLocation().lat, 52.5 * kDegree);
  EXPECT_EQ(camera.GetLocation().dist, 0.0);
  EXPECT_EQ(camera.GetLocationName(), "Berlin");
  EXPECT_STREQ(camera.GetTimeZoneName(), "Europe/Berlin");
  EXPECT_EQ(camera.GetViewAngles().lon, 0.5);
  EXPECT_EQ(camera.GetViewAngles().lat, -0.25);
  EXPECT_EQ(camera.GetViewAngles().slope, 0.125);
  EXPECT_EQ(camera.GetZoom(), 4.0);
  EXPECT_FALSE(camera.IsDirectionLocked());
  EXPECT_TRUE(camera.GetCenterObject().IsEmpty());
  EXPECT_FALSE(camera.IsFirstLook());
  _Date time;
  camera.GetUniversalTime(time);
  EXPECT_EQ(time.day, 2460000);
  EXPECT_EQ(time.fraction, 0.25);
  EXPECT_EQ(time.type, 1);
}

TEST_F(GoingHome, TheClockKeepsItsTimeWhileItIsFollowed) {
  camera.SetUniversalTime({2460000, 0.25, 1});
  camera.StoreParams(7);
  camera.SetUniversalTime({2470000, 0.5, 1});
  camera.SetFST_Mode(1);
  camera.GoHome(true);
  _Date time;
  camera.GetUniversalTime(time);
  EXPECT_EQ(time.day, 2470000);
}

TEST_F(GoingHome, GoingHomeGivesTheHomesOffsetFromUniversalTime) {
  camera.SetTimeZoneName("Europe/Berlin", true);
  camera.SetUniversalTime({2460000, 0.25, 1});  // February 2023: Central European Time, an hour ahead
  camera.StoreParams(7);
  camera.SetTimeZoneName("Asia/Tokyo", true);
  camera.SetDisplayTimeZoneName("Asia/Tokyo");
  camera.UpdateLocUTCDeltaFromTimeZone();
  ASSERT_NEAR(camera.GetLocUTCdelta(), 9.0 / 24, 1e-12);
  camera.GoHome(true);
  EXPECT_STREQ(camera.GetDisplayTimeZoneName(true), "Europe/Berlin");
  EXPECT_NEAR(camera.GetLocUTCdelta(), 1.0 / 24, 1e-12);
}

TEST_F(GoingHome, GoingHomeTurnsThePictureToTheHomesDirection) {
  camera.SetWinRect({800, 600, 800, 600});
  camera.SetRA_Dec({0.5, 0.0, 0.0, 0});
  camera.StoreParams(3);
  camera.SetRA_Dec({2.0, 1.0, 0.5, 0});
  camera.GoHome(true);
  const double direction[3] = {std::cos(0.5), std::sin(0.5), 0.0};
  tPoint<double> centre;
  camera.RA_Dec2PixD(direction, &centre);
  EXPECT_NEAR(centre.x, 400, 1e-9);
  EXPECT_NEAR(centre.y, 300, 1e-9);
}

TEST_F(GoingHome, ALockedHomeLocksOnItsObjectAgain) {
  camera.SetCenterView(kMoonId);
  camera.SetDirectionLock(true);
  camera.StoreParams(3);
  camera.SetCenterView(kMarsId);
  camera.SetDirectionLock(false);
  camera.GoHome(true);
  EXPECT_TRUE(camera.IsDirectionLocked());
  EXPECT_EQ(camera.GetCenterObject(), kMoonId);
}

TEST_F(GoingHome, AHomeWithoutAPlaceStandsOnTheEarth) {
  camera.SetZoom(4.0);
  camera.StoreParams(kHomeView);
  camera.SetMovingType(4, false);
  camera.SetObserver(kMarsId);
  camera.SetObsLocatType(7);
  camera.GoHome(true);
  EXPECT_EQ(camera.GetMovingType(), 0);
  EXPECT_EQ(camera.GetObserver(), kEarthId);
  EXPECT_EQ(camera.GetObsLocatType(), 2);
  EXPECT_EQ(camera.GetZoom(), 4.0);
}

TEST_F(GoingHome, TheAimingDisplayIsLeftAloneUnlessTheFileNamesOne) {
  camera.SetAimingDispType(2);
  camera.StoreParams(7);
  camera.SetAimingDispType(1);
  camera.GoHome(true);
  EXPECT_EQ(camera.GetAimingDispType(), 1);
  for (const int named : {2, 0}) {
    WriteHomes("3\n0 2 0 0 0 0 2 1886154356 3\n0 0 0 " + std::to_string(named) + "\n1\n0 -1 -1\n");
    Camera later(1);
    StandOn(later, kEarthId);
    later.SetAimingDispType(1);
    later.GoHome(true);
    EXPECT_EQ(later.GetAimingDispType(), named);
  }
}

}  // namespace
