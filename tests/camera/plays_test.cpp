// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <string>

#include <gtest/gtest.h>

#include "common_interfaces/camera.h"
#include "support/camera_settings.h"
#include "utils/text.h"

namespace {

using namespace CommonInterfaces;

constexpr PlayTypes kView[] = {kPlayView1, kPlayView2, kPlayView3, kPlayView4};
constexpr PlayTypes kLocation[] = {kPlayLocation1, kPlayLocation2, kPlayLocation3, kPlayLocation4,
                                   kPlayLocation5, kPlayLocation6, kPlayLocation7};

class PlaysTest : public testing::Test {
 protected:
  test_support::TempRoots roots;
  Camera camera{1};
};

TEST(PlayTypes, AreTheBitsThatCallersKnow) {
  EXPECT_EQ(kPlayTime, 1);
  const int view[] = {2, 4, 8, 0x40}, location[] = {0x80, 0x100, 0x200, 0x400, 0x800, 0x1000, 0x2000};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(kView[i], view[i]);
  for (int i = 0; i < 7; ++i) EXPECT_EQ(kLocation[i], location[i]);
  EXPECT_EQ(kPlayHeld, 1);
  EXPECT_EQ(kPlayRunning, 2);
  EXPECT_EQ(kPlayStopped, 3);
}

TEST_F(PlaysTest, PlayThatWasNeverSetIsADefaultDescription) {
  const PlayDesc play = camera.GetPlay(kPlayTime);
  EXPECT_EQ(play.type, 0);
  EXPECT_EQ(play.action, 0);
  EXPECT_EQ(play.first, 0.0);
  EXPECT_EQ(play.second, 0.0);
  EXPECT_EQ(play.third, -1.0);
  EXPECT_EQ(play.hasMoreValues, 0);
  EXPECT_TRUE(play.object.IsEmpty());
  EXPECT_EQ(play.reserved, 0);
  EXPECT_FALSE(camera.IsPlay(kPlayTime));
}

TEST_F(PlaysTest, OneValueHasNoMoreValuesAndTheThirdIsMinusOne) {
  camera.SetPlay(kPlayView1, kPlayRunning, 2.5);
  const PlayDesc play = camera.GetPlay(kPlayView1);
  EXPECT_EQ(play.type, 2);
  EXPECT_EQ(play.action, 2);
  EXPECT_EQ(play.first, 2.5);
  EXPECT_EQ(play.second, 0.0);
  EXPECT_EQ(play.third, -1.0);
  EXPECT_EQ(play.hasMoreValues, 0);
}

TEST_F(PlaysTest, TwoValuesRaiseTheFlagAndTheThirdIsMinusOne) {
  camera.SetPlay(kPlayView2, kPlayHeld, 2.5, 3.5);
  const PlayDesc play = camera.GetPlay(kPlayView2);
  EXPECT_EQ(play.second, 3.5);
  EXPECT_EQ(play.third, -1.0);
  EXPECT_EQ(play.hasMoreValues, 1);
  EXPECT_TRUE(play.object.IsEmpty());
}

TEST_F(PlaysTest, ThreeValuesAndAnObjectAreKept) {
  camera.SetPlay(kPlayLocation7, kPlayRunning, 1.0, 2.0, 3.0);
  EXPECT_EQ(camera.GetPlay(kPlayLocation7).third, 3.0);
  EXPECT_EQ(camera.GetPlay(kPlayLocation7).hasMoreValues, 1);
  camera.SetPlay(kPlayLocation7, kPlayRunning, 4.0, 5.0, 6.0, SSO_ID(FourCC("moon"), 301));
  const PlayDesc play = camera.GetPlay(kPlayLocation7);
  EXPECT_EQ(play.first, 4.0);
  EXPECT_EQ(play.third, 6.0);
  EXPECT_EQ(play.object, SSO_ID(FourCC("moon"), 301));
  EXPECT_EQ(play.hasMoreValues, 1);
}

TEST_F(PlaysTest, SettingAPlayAgainReplacesItsDescriptionWhole) {
  camera.SetPlay(kPlayTime, kPlayRunning, 1.0, 2.0, 3.0, SSO_ID(FourCC("moon"), 301));
  camera.SetPlay(kPlayTime, kPlayRunning, 7.0);
  const PlayDesc play = camera.GetPlay(kPlayTime);
  EXPECT_EQ(play.second, 0.0);
  EXPECT_EQ(play.third, -1.0);
  EXPECT_EQ(play.hasMoreValues, 0);
  EXPECT_TRUE(play.object.IsEmpty());
}

TEST_F(PlaysTest, OnlyARunningPlayIsPlaying) {
  for (const int action : {0, 1, 3, 4, -1}) {
    camera.SetPlay(kPlayView1, static_cast<PlayAction>(action), 1.0);
    EXPECT_FALSE(camera.IsPlay(kPlayView1)) << action;
    EXPECT_FALSE(camera.IsViewPlay()) << action;
  }
  camera.SetPlay(kPlayView1, kPlayRunning, 1.0);
  EXPECT_TRUE(camera.IsPlay(kPlayView1));
}

TEST_F(PlaysTest, EachViewPlayIsAViewPlayAndNoOther) {
  for (const PlayTypes type : kView) {
    Camera own(1);
    own.SetPlay(type, kPlayRunning, 1.0);
    EXPECT_TRUE(own.IsViewPlay()) << type;
    EXPECT_FALSE(own.IsLocationPlay()) << type;
    EXPECT_TRUE(own.IsAnyPlay()) << type;
  }
  for (const int other : {1, 0x10, 0x20, 0x80}) {
    Camera own(1);
    own.SetPlay(static_cast<PlayTypes>(other), kPlayRunning, 1.0);
    EXPECT_FALSE(own.IsViewPlay()) << other;
  }
}

TEST_F(PlaysTest, EachLocationPlayIsALocationPlayAndNoOther) {
  for (const PlayTypes type : kLocation) {
    Camera own(1);
    own.SetPlay(type, kPlayRunning, 1.0);
    EXPECT_TRUE(own.IsLocationPlay()) << type;
    EXPECT_FALSE(own.IsViewPlay()) << type;
    EXPECT_TRUE(own.IsAnyPlay()) << type;
  }
  for (const int other : {1, 0x10, 0x20, 0x40, 0x4000}) {
    Camera own(1);
    own.SetPlay(static_cast<PlayTypes>(other), kPlayRunning, 1.0);
    EXPECT_FALSE(own.IsLocationPlay()) << other;
  }
}

TEST_F(PlaysTest, TimePlayCountsWhileTheClockIsNotFollowed) {
  camera.SetPlay(kPlayTime, kPlayRunning, 1.0);
  EXPECT_TRUE(camera.IsAnyPlay());
  camera.SetFST_Mode(1);
  EXPECT_FALSE(camera.IsAnyPlay());
  EXPECT_TRUE(camera.IsPlay(kPlayTime));
  camera.SetPlay(kPlayView3, kPlayRunning, 1.0);
  EXPECT_TRUE(camera.IsAnyPlay());
}

TEST_F(PlaysTest, FlightPlayIsALocationPlayInDeepSpace) {
  camera.SetPlay(kPlayLocation1, kPlayRunning, 1.0);
  EXPECT_FALSE(camera.Is3DFlightPlay());
  SphCoor far;
  far.dist = 1001.0;  // au: beyond the 1000 au where deep space begins
  camera.SetMovingType(10, false);
  camera.SetLocation(far);
  EXPECT_TRUE(camera.Is3DFlightPlay());
  camera.StopAnyPlay();
  EXPECT_FALSE(camera.Is3DFlightPlay());
}

TEST_F(PlaysTest, StopEndsRunningPlaysAndLeavesHeldOnes) {
  camera.SetPlay(kPlayTime, kPlayRunning, 1.0, 2.0);
  camera.SetPlay(kPlayView1, kPlayHeld, 3.0);
  camera.SetPlay(kPlayView2, kPlayNone, 4.0);
  camera.SetPlay(kPlayView3, static_cast<PlayAction>(17), 5.0);
  camera.StopAnyPlay();
  EXPECT_EQ(camera.GetPlay(kPlayTime).action, 3);
  EXPECT_EQ(camera.GetPlay(kPlayTime).second, 2.0);
  EXPECT_EQ(camera.GetPlay(kPlayView1).action, 1);
  EXPECT_EQ(camera.GetPlay(kPlayView2).action, 3);
  EXPECT_EQ(camera.GetPlay(kPlayView3).action, 3);
  EXPECT_EQ(camera.GetPlay(kPlayView4).action, 0);
  EXPECT_FALSE(camera.IsAnyPlay());
}

TEST_F(PlaysTest, FlightObjectIsNoneUntilItIsSet) {
  SSO_ID out(7, 8);
  EXPECT_FALSE(camera.Get3DFlightObject(&out));
  EXPECT_EQ(out, SSO_ID(7, 8));
  camera.Set3DFlightObject(SSO_ID(FourCC("star"), 32349));
  EXPECT_TRUE(camera.Get3DFlightObject(&out));
  EXPECT_EQ(out, SSO_ID(FourCC("star"), 32349));
  camera.Set3DFlightObject(SSO_ID(-1, 5));
  EXPECT_FALSE(camera.Get3DFlightObject(&out));
}

TEST_F(PlaysTest, QuickObjectIsStoredAndReturned) {
  SSO_ID object;
  camera.GetQuickOI_id(object);
  EXPECT_TRUE(object.IsEmpty());
  SSO_ID jupiter(FourCC("plnt"), 5);
  camera.SetQuickOI_id(jupiter);
  camera.GetQuickOI_id(object);
  EXPECT_EQ(object, jupiter);
}

TEST_F(PlaysTest, AssignmentTakesPlaysAndFlightObjectAlong) {
  camera.SetPlay(kPlayTime, kPlayRunning, 1.0);
  camera.Set3DFlightObject(SSO_ID(FourCC("star"), 1));
  Camera other(2);
  other = camera;
  SSO_ID object;
  EXPECT_TRUE(other.IsPlay(kPlayTime));
  EXPECT_TRUE(other.Get3DFlightObject(&object));
  const Camera copy(camera);
  EXPECT_FALSE(copy.IsPlay(kPlayTime));
}

}  // namespace
