// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <cstring>
#include <string>

#include "camera/home_fixture.h"

namespace {

using namespace test_support;
using namespace CommonInterfaces;

constexpr double kDegree = 0.017453292519943295;

SphCoor Place(double longitude, double latitude, double distance = 0.0) {
  SphCoor place;
  place.dist = distance;
  place.lon = longitude * kDegree;
  place.lat = latitude * kDegree;
  place.coorSys = 2;
  return place;
}

class HomesTest : public HomeTest {
 protected:
  HomesTest() : camera(1) { StandOn(camera, kEarthId); }
  const HomeParameters& Home(const SSO_ID& observer = kEarthId) {
    static const HomeParameters none;
    const HomeParameters* const home = camera.FindHome(observer);
    EXPECT_NE(home, nullptr);
    return home ? *home : none;
  }
  Camera camera;
};

TEST_F(HomesTest, TravellersStoreNothing) {
  for (char type = 1; type < 12; ++type) {
    camera.SetMovingType(type, false);
    camera.StoreParams(15);
    EXPECT_EQ(camera.FindHome(camera.GetObserver()), nullptr) << static_cast<int>(type);
  }
}

TEST_F(HomesTest, TheLocationPartHoldsPlaceAndWayOfMoving) {
  camera.SetLocation(Place(13.4, 52.5, 0.25));
  camera.SetLocationName("Berlin");
  camera.StoreParams(kHomeLocation);
  EXPECT_EQ(Home().flags, 1);
  EXPECT_EQ(Home().movingType, 0);
  EXPECT_EQ(Home().locationType, 2);
  EXPECT_EQ(Home().observer, kEarthId);
  EXPECT_EQ(Home().location.lat, 52.5 * kDegree);
  EXPECT_EQ(Home().location.dist, 0.25);
  EXPECT_STREQ(Home().locationName, "Berlin");
  EXPECT_EQ(Home().aimingDispType, -1);
  EXPECT_EQ(Home().day, -1);
  EXPECT_EQ(Home().fraction, -1.0);
}

TEST_F(HomesTest, ALocationOnlyRequestIsKeptWithItsFlag) {
  camera.SetLocation(Place(13.4, 52.5));
  camera.SetTimeZoneName("Europe/Berlin", true);
  camera.StoreParams(kHomeLocationOnly);
  EXPECT_EQ(Home().flags, 8);
  EXPECT_EQ(Home().location.lon, 13.4 * kDegree);
  EXPECT_EQ(Home().locationType, 0);
  EXPECT_STREQ(Home().timeZoneName, "Europe/Berlin");
  StandOn(camera, kMarsId);
  camera.StoreParams(kHomeLocationOnly);
  EXPECT_STREQ(Home(kMarsId).timeZoneName, "");
}

TEST_F(HomesTest, TheViewPartHoldsBothAnglesSlopeAndZoom) {
  camera.SetRA_Dec({0.5, -0.25, 0.125, 0});
  camera.SetZoom(4.0);
  camera.StoreParams(kHomeView);
  EXPECT_EQ(Home().flags, 2);
  EXPECT_EQ(Home().alp, 0.5);
  EXPECT_EQ(Home().bet, -0.25);
  EXPECT_EQ(Home().slp, 0.125);
  EXPECT_EQ(Home().zoom, 4.0);
  EXPECT_FALSE(Home().directionLocked);
}

TEST_F(HomesTest, TheCentreObjectIsStoredWhileTheDirectionIsLocked) {
  camera.SetCenterView(kMoonId);
  camera.StoreParams(kHomeView);
  EXPECT_TRUE(Home().centerObject.IsEmpty());
  camera.SetDirectionLock(true);
  camera.StoreParams(kHomeView);
  EXPECT_EQ(Home().centerObject, kMoonId);
  EXPECT_TRUE(Home().directionLocked);
  camera.SetDirectionLock(false);
  camera.StoreParams(kHomeView);
  EXPECT_FALSE(Home().directionLocked);
}

TEST_F(HomesTest, TheTimePartFollowsTheClockMode) {
  camera.SetUniversalTime({2460000, 0.25, 1});
  camera.StoreParams(kHomeTime);
  EXPECT_EQ(Home().day, 2460000);
  EXPECT_EQ(Home().fraction, 0.25);
  EXPECT_EQ(Home().timeType, 1);
  camera.SetFST_Mode(1);
  camera.StoreParams(kHomeTime);
  EXPECT_EQ(Home().day, -1);
  EXPECT_EQ(Home().fraction, -1.0);
  EXPECT_EQ(Home().timeType, 0);
}

TEST_F(HomesTest, TheZoneIsTheEarthsAlone) {
  camera.SetTimeZoneName("Europe/Berlin", true);
  camera.StoreParams(kHomeTime);
  EXPECT_STREQ(Home().timeZoneName, "Europe/Berlin");
  StandOn(camera, kMarsId);
  camera.StoreParams(kHomeTime);
  EXPECT_STREQ(Home(kMarsId).timeZoneName, "");
}

TEST_F(HomesTest, PartsThatAreNotAskedForStay) {
  camera.SetLocation(Place(13.4, 52.5));
  camera.StoreParams(kHomeLocation);
  camera.SetLocation(Place(0.0, 0.0));
  camera.SetZoom(4.0);
  camera.StoreParams(kHomeView);
  EXPECT_EQ(Home().flags, 3);
  EXPECT_EQ(Home().location.lat, 52.5 * kDegree);
  EXPECT_EQ(Home().zoom, 4.0);
}

TEST_F(HomesTest, ANameOfThePlaceGoesIntoTheHomeOfTheObserver) {
  camera.StoreParams(kHomeLocation);
  StandOn(camera, kMarsId);
  camera.StoreParams(kHomeLocation);
  camera.SetLocationName("Gale");
  EXPECT_STREQ(Home(kMarsId).locationName, "Gale");
  EXPECT_STREQ(Home(kEarthId).locationName, "");
  camera.SetLocationName(std::string(300, 'x').c_str());
  EXPECT_EQ(Home(kMarsId).locationName, std::string(255, 'x'));
  camera.SetLocationName(nullptr);
  EXPECT_STREQ(Home(kMarsId).locationName, "");
}

TEST_F(HomesTest, TemporaryStatesAreFoundByObserverAndMovingType) {
  camera.SetZoom(4.0);
  camera.StoreTempParams();
  SSO_ID wanted = kEarthId;
  HomeParameters state;
  EXPECT_TRUE(camera.FindTempParams(&state, wanted));
  EXPECT_EQ(state.flags, 7);
  EXPECT_EQ(state.zoom, 4.0);
  wanted.fourth = 3;
  EXPECT_FALSE(camera.FindTempParams(&state, wanted));
  wanted = kMarsId;
  EXPECT_FALSE(camera.FindTempParams(&state, wanted));
}

TEST_F(HomesTest, ATemporaryStateHoldsPlaceViewAndTime) {
  camera.SetLocation(Place(13.4, 52.5, 0.25));
  camera.SetLocationName("Berlin");
  camera.SetObsLocatType(7);
  camera.SetTimeZoneName("Europe/Berlin", true);
  camera.SetRA_Dec({0.5, -0.25, 0.125, 0});
  camera.SetDirectionLock(true);
  camera.SetUniversalTime({2460000, 0.25, 1});
  camera.StoreTempParams();
  HomeParameters state;
  ASSERT_TRUE(camera.FindTempParams(&state, kEarthId));
  EXPECT_EQ(state.locationType, 7);
  EXPECT_EQ(state.observer, kEarthId);
  EXPECT_EQ(state.location.lat, 52.5 * kDegree);
  EXPECT_EQ(state.location.dist, 0.25);
  EXPECT_STREQ(state.locationName, "Berlin");
  EXPECT_STREQ(state.timeZoneName, "Europe/Berlin");
  EXPECT_EQ(state.alp, 0.5);
  EXPECT_EQ(state.bet, -0.25);
  EXPECT_EQ(state.slp, 0.125);
  EXPECT_TRUE(state.directionLocked);
  EXPECT_EQ(state.day, 2460000);
  EXPECT_EQ(state.fraction, 0.25);
  EXPECT_EQ(state.timeType, 1);
  camera.SetObserver(kMarsId);
  camera.StoreTempParams();
  ASSERT_TRUE(camera.FindTempParams(&state, kMarsId));
  EXPECT_STREQ(state.timeZoneName, "");
}

TEST_F(HomesTest, TheTemporaryStateOfAnotherTypeOrObserverStays) {
  camera.StoreTempParams();
  camera.SetPendingMovingType(4);
  camera.StoreTempParams();
  camera.SetObserver(kMarsId);
  camera.StoreTempParams();
  SSO_ID inOrbit = kEarthId, aroundMars = kMarsId;
  inOrbit.fourth = aroundMars.fourth = 4;
  EXPECT_TRUE(camera.ClearTempParams(inOrbit));
  EXPECT_FALSE(camera.FindTempParams(nullptr, inOrbit));
  EXPECT_TRUE(camera.FindTempParams(nullptr, kEarthId));
  EXPECT_TRUE(camera.FindTempParams(nullptr, aroundMars));
}

TEST_F(HomesTest, ALaterTemporaryStateReplacesTheEarlier) {
  camera.SetZoom(4.0);
  camera.StoreTempParams();
  camera.SetZoom(5.0);
  camera.StoreTempParams();
  HomeParameters state;
  EXPECT_TRUE(camera.FindTempParams(&state, kEarthId));
  EXPECT_EQ(state.zoom, 5.0);
  EXPECT_TRUE(camera.ClearTempParams(kEarthId));
  EXPECT_FALSE(camera.ClearTempParams(kEarthId));
  EXPECT_FALSE(camera.FindTempParams(&state, kEarthId));
}

TEST_F(HomesTest, APendingMovingTypeNamesTheTemporaryState) {
  EXPECT_EQ(camera.GetPendingMovingType(), -1);
  camera.SetPendingMovingType(4);
  camera.StoreTempParams();
  SSO_ID wanted = kEarthId;
  HomeParameters state;
  EXPECT_FALSE(camera.FindTempParams(&state, wanted));
  wanted.fourth = 4;
  EXPECT_TRUE(camera.FindTempParams(&state, wanted));
  EXPECT_EQ(state.movingType, 4);
}

TEST_F(HomesTest, ATemporaryStateHoldsNoTimeWhileTheClockIsFollowed) {
  camera.SetUniversalTime({2460000, 0.25, 1});
  camera.SetFST_Mode(1);
  camera.SetCenterView(kMoonId);
  camera.StoreTempParams();
  HomeParameters state;
  ASSERT_TRUE(camera.FindTempParams(&state, kEarthId));
  EXPECT_EQ(state.day, -1);
  EXPECT_EQ(state.centerObject, kMoonId);
}

TEST_F(HomesTest, OnlyAnEarthSurfaceObserverIsHome) {
  camera.StoreParams(kHomeLocation);
  EXPECT_TRUE(camera.IsHome(1e-3f));
  camera.SetObserver(kMarsId);
  EXPECT_FALSE(camera.IsHome(1e9f));
  camera.SetObserver(kEarthId);
  camera.SetMovingType(1, true);
  EXPECT_FALSE(camera.IsHome(1e9f));
}

TEST_F(HomesTest, ToleranceZeroIsNeverHome) {
  camera.StoreParams(kHomeLocation);
  EXPECT_FALSE(camera.IsHome(0.0f));
}

TEST_F(HomesTest, ToleranceIsTheDistanceInKilometres) {
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

TEST_F(HomesTest, DistancesCountAsHeightsInTheirUnit) {
  SphCoor place = Place(10.0, 50.0, 2.0);
  place.distUnits = 1;  // as kilometres: 2 au of the record count as 2 km
  camera.SetLocation(place);
  camera.StoreParams(kHomeLocation);
  place.dist = 5.0;
  camera.SetLocation(place);
  EXPECT_FALSE(camera.IsHome(2.9f));
  EXPECT_TRUE(camera.IsHome(3.1f));
}

TEST_F(HomesTest, WithoutAHomeThePlaceZeroCountsAndALineSaysSo) {
  camera.SetLocation(Place(0.0, 0.0));
  EXPECT_TRUE(camera.IsHome(0.001f));
  ASSERT_EQ(debug.lines.size(), 1u);
  EXPECT_EQ(debug.lines[0], "Camera::GetHomeParams - home params for (1886154356, 3) not found\n");
}

TEST_F(HomesTest, GoingHomeWithoutAHomeClearsTheFlightObjectAndSaysSo) {
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

TEST_F(HomesTest, NotGoingHomeOnlyClearsTheFlag) {
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

TEST_F(HomesTest, GoingHomeBringsBackPlaceViewAndTime) {
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

TEST_F(HomesTest, TheClockKeepsItsTimeWhileItIsFollowed) {
  camera.SetUniversalTime({2460000, 0.25, 1});
  camera.StoreParams(7);
  camera.SetUniversalTime({2470000, 0.5, 1});
  camera.SetFST_Mode(1);
  camera.GoHome(true);
  _Date time;
  camera.GetUniversalTime(time);
  EXPECT_EQ(time.day, 2470000);
}

TEST_F(HomesTest, GoingHomeGivesTheHomesOffsetFromUniversalTime) {
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

TEST_F(HomesTest, GoingHomeTurnsThePictureToTheHomesDirection) {
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

TEST_F(HomesTest, ALockedHomeLocksOnItsObjectAgain) {
  camera.SetCenterView(kMoonId);
  camera.SetDirectionLock(true);
  camera.StoreParams(3);
  camera.SetCenterView(kMarsId);
  camera.SetDirectionLock(false);
  camera.GoHome(true);
  EXPECT_TRUE(camera.IsDirectionLocked());
  EXPECT_EQ(camera.GetCenterObject(), kMoonId);
}

TEST_F(HomesTest, AHomeWithoutAPlaceStandsOnTheEarth) {
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

TEST_F(HomesTest, TheAimingDisplayIsLeftAloneUnlessTheFileNamesOne) {
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

TEST_F(HomesTest, AHomeOfTheFileIsTheStartOfWhatIsStored) {
  WriteHomes(
      "7\n0 2 0 0.15 0.87 0 2 1886154356 3 1\nHome town\n0.5 0.25 0 1\n2\n0 -1 -1\n2460000 0.25 1\n-\n");
  Camera later(1);
  StandOn(later, kEarthId);
  later.SetZoom(8.0);
  later.StoreParams(kHomeView);
  EXPECT_EQ(later.FindHome(kEarthId)->flags, 7);
  EXPECT_EQ(later.FindHome(kEarthId)->zoom, 8.0);
  EXPECT_EQ(later.FindHome(kEarthId)->aimingDispType, 1);
  EXPECT_STREQ(later.FindHome(kEarthId)->locationName, "Home town");
}

TEST_F(HomesTest, AssignmentTakesHomesAlongAndACopyHasNone) {
  camera.StoreParams(7);
  Camera other(2);
  other = camera;
  EXPECT_NE(other.FindHome(kEarthId), nullptr);
  EXPECT_EQ(Camera(camera).FindHome(kEarthId), nullptr);
}

}  // namespace
