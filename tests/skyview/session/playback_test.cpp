// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/session/playback.h"

#include <gtest/gtest.h>

#include "scene/frame/frame_maker.h"
#include "scene/frame_helpers.h"
#include "support/allocation_counter.h"

using namespace scene;
using namespace skyview;
using host_test::FrameFixture;

namespace {

double GetTime(const CommonInterfaces::Camera& camera) {
  CommonInterfaces::_Date time;
  camera.GetUniversalTime(time);
  return time.day + time.fraction;
}

}  // namespace

TEST(Playback, TimeMovesByItsStepAndNothingElseDoes) {
  FrameFixture f;
  const double start = GetTime(f.camera);
  const SphViewCoor look = f.camera.GetViewAngles();
  StartPlays(*ParsePlay("time=12h"), f.camera);
  for (int i = 0; i < 3; ++i) AdvancePlays(f.camera);
  EXPECT_DOUBLE_EQ(GetTime(f.camera), start + 1.5);
  EXPECT_EQ(f.camera.GetViewAngles().lon, look.lon);
  EXPECT_EQ(f.camera.GetViewAngles().lat, look.lat);
}

TEST(Playback, AzimuthGrowsOverEast) {
  FrameFixture f;
  f.SetLook(350.0, 30.0);
  StartPlays(*ParsePlay("view=20,view=5,view=-3"), f.camera);
  AdvancePlays(f.camera);
  const SphViewCoor& angles = f.camera.GetViewAngles();
  EXPECT_NEAR(std::remainder(angles.lon + 10.0 * kRadiansPerDegree, 2.0 * kPi), 0.0, 1e-12);
  EXPECT_NEAR(angles.lat, 35.0 * kRadiansPerDegree, 1e-12);
  EXPECT_NEAR(angles.slope, -3.0 * kRadiansPerDegree, 1e-12);
}

TEST(Playback, AltitudeStopsAtTheZenith) {
  FrameFixture f;
  StartPlays(*ParsePlay("view=0,view=50"), f.camera);
  for (int i = 0; i < 3; ++i) AdvancePlays(f.camera);
  EXPECT_EQ(f.camera.GetViewAngles().lat, 0.5 * kPi);
}

TEST(Playback, HeldAndStoppedPlaysMoveNothing) {
  FrameFixture f;
  const double start = GetTime(f.camera);
  f.camera.SetPlay(CommonInterfaces::kPlayTime, CommonInterfaces::kPlayHeld, 1.0);
  AdvancePlays(f.camera);
  EXPECT_EQ(GetTime(f.camera), start);
  StartPlays(*ParsePlay("time=1d"), f.camera);
  f.camera.StopAnyPlay();
  AdvancePlays(f.camera);
  EXPECT_EQ(GetTime(f.camera), start);
}

TEST(Playback, TimeStandsWhileTheViewFollowsTheClock) {
  FrameFixture f;
  const double start = GetTime(f.camera);
  StartPlays(*ParsePlay("time=1d,view=1"), f.camera);
  EXPECT_EQ(f.camera.GetFST_Mode(), 0);
  f.camera.SetFST_Mode(1);
  AdvancePlays(f.camera);
  EXPECT_EQ(GetTime(f.camera), start);
}

TEST(Playback, FramesOfASequenceWithMarkersAllocateNothingAfterTheFirst) {
  FrameFixture f;
  const ObjectFilters& filters = ObjectFilters::None();
  SkyMarkers markers;
  for (int i = 0; i < 20; ++i) markers.Add({18.0 * i, 3.0 * i - 30.0, {}}, f.camera);
  FrameMaker maker(f.camera, f.catalogs, f.shown, filters, markers);
  f.camera.SetZoom(0.3);
  maker.GetFrame().SetCaption({"a line", "another"});
  StartPlays(*ParsePlay("time=20m,view=1,view=0.2,view=0.5"), f.camera);
  maker.Prepare();
  maker.Compute();
  const unsigned long long before = host_test::GetAllocationCount();
  ASSERT_GT(before, 0u) << "the counter does not count";
  std::size_t drawn = 0;
  for (int i = 0; i < 100; ++i) {
    AdvancePlays(f.camera);
    maker.Prepare();
    maker.Compute();
    drawn += maker.GetFrame().GetParts().markers.GetDrawn().size();
  }
  EXPECT_EQ(host_test::GetAllocationCount(), before);
  EXPECT_GT(drawn, 100u);
}
