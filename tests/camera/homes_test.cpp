// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <cstring>
#include <string>

#include "camera/homes_fixture.h"

namespace {

using namespace test_support;
using namespace CommonInterfaces;

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
