// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <string>

#include <gtest/gtest.h>

#include "astro/delta_t.h"
#include "camera/view_helpers.h"
#include "support/camera_settings.h"
#include "support/debug_capture.h"

namespace {

using namespace test_support;
using CommonInterfaces::_Date;
using CommonInterfaces::Camera;
using CommonInterfaces::CameraStep;

class CameraTest : public testing::Test {
 protected:
  TempRoots roots;
};

void ExpectStep(const Camera& camera, CameraStep step, double value, int unit) {
  EXPECT_NEAR(camera.GetStep(step).value, value, 1e-15);
  EXPECT_EQ(camera.GetStep(step).unit, unit);
}

// A camera that differs from a new one in everything that can be set.
void ChangeEverything(Camera& camera) {
  camera.SetWinRect({1001, 701, 1600, 900});
  camera.SetZoom(12.5);
  camera.SetSecondZoom(3.0);
  camera.SetFinderSize(33);
  camera.SetTime({2460000, 0.125, 2});
  camera.SetTimeZoneName("Asia/Tokyo", true);
  camera.SetDisplayTimeZoneName("Asia/Kolkata");
  camera.UpdateLocUTCDeltaFromTimeZone();
  camera.SetFST_Mode(1);
  camera.SetFST_Offered(true);
  camera.GetDST()->StartYear = 1995;
  camera.SetObserver(SSO_ID(FourCC("moon"), 301));
  camera.SetObsLocatType(5);
  camera.SetLocation({0.25, 1.5, -0.75, 6, 4});
  camera.SetLocationName("Tycho");
  camera.SetBelowSurface(true);
  camera.SetCenterView(SSO_ID(FourCC("plnt"), 3));
  camera.SetCenterViewLock(true);
  camera.SetDirectionLock(true);
  camera.SetBasePlane(2);
  camera.SetAimingDispType(1);
  camera.SetRA_Dec({1.0, 0.5, 0.25, 0});
  camera.SetRA_Dec2K(0.5, 0.25);
  const double quarterTurn[9] = {0, 1, 0, -1, 0, 0, 0, 0, 1};
  camera.SetReductionMatrix(quarterTurn);
  for (int step = 0; step < CommonInterfaces::kCameraSteps; ++step)
    camera.SetStep(static_cast<CameraStep>(step), {step + 0.5, step});
  camera.SetMagCorrection(7, -9.0f);
  camera.RefreshLimitingMagnitudes();
}

void ExpectSameTime(const Camera& a, const Camera& b) {
  _Date ta, tb;
  a.GetUniversalTime(ta);
  b.GetUniversalTime(tb);
  EXPECT_EQ(ta.day, tb.day);
  EXPECT_EQ(ta.fraction, tb.fraction);
  EXPECT_EQ(ta.type, tb.type);
  a.GetTime(ta);
  b.GetTime(tb);
  EXPECT_EQ(ta.fraction, tb.fraction);
  EXPECT_EQ(a.IsTimeChanged(), b.IsTimeChanged());
  EXPECT_STREQ(a.GetTimeZoneName(), b.GetTimeZoneName());
  EXPECT_STREQ(a.GetDisplayTimeZoneName(true), b.GetDisplayTimeZoneName(true));
  EXPECT_EQ(a.GetLocUTCdelta(), b.GetLocUTCdelta());
  EXPECT_EQ(a.GetFST_Mode(), b.GetFST_Mode());
  EXPECT_EQ(a.IsFST_Offered(), b.IsFST_Offered());
}

void ExpectSamePlace(const Camera& a, const Camera& b) {
  EXPECT_EQ(a.GetMovingType(), b.GetMovingType());
  EXPECT_EQ(a.GetObserver(), b.GetObserver());
  EXPECT_EQ(a.IsObserverChanged(), b.IsObserverChanged());
  EXPECT_EQ(a.GetObsLocatType(), b.GetObsLocatType());
  EXPECT_EQ(a.GetLocation().dist, b.GetLocation().dist);
  EXPECT_EQ(a.GetLocation().lon, b.GetLocation().lon);
  EXPECT_EQ(a.GetLocation().lat, b.GetLocation().lat);
  EXPECT_EQ(a.GetLocation().distUnits, b.GetLocation().distUnits);
  EXPECT_EQ(a.GetLocation().coorSys, b.GetLocation().coorSys);
  EXPECT_EQ(a.GetLocationName(), b.GetLocationName());
  EXPECT_EQ(a.IsBelowSurface(), b.IsBelowSurface());
}

void ExpectSameDirection(const Camera& a, const Camera& b) {
  EXPECT_EQ(a.GetCenterObject(), b.GetCenterObject());
  EXPECT_EQ(a.IsCenterObjectSet(), b.IsCenterObjectSet());
  EXPECT_EQ(a.IsFirstLook(), b.IsFirstLook());
  EXPECT_EQ(a.IsDirectionLocked(), b.IsDirectionLocked());
  EXPECT_EQ(a.GetBasePlane(), b.GetBasePlane());
  EXPECT_EQ(a.GetAimingDispType(), b.GetAimingDispType());
  EXPECT_EQ(a.GetViewAngles().lon, b.GetViewAngles().lon);
  EXPECT_EQ(a.GetViewAngles().lat, b.GetViewAngles().lat);
  EXPECT_EQ(a.GetViewAngles().slope, b.GetViewAngles().slope);
  double raA, decA, raB, decB;
  a.GetRA_Dec2K(raA, decA);
  b.GetRA_Dec2K(raB, decB);
  EXPECT_EQ(raA, raB);
  EXPECT_EQ(decA, decB);
}

void ExpectSamePicture(const Camera& a, const Camera& b) {
  EXPECT_EQ(a.GetZoom(), b.GetZoom());
  EXPECT_EQ(a.IsZoomChanged(), b.IsZoomChanged());
  EXPECT_EQ(a.GetSecondZoom(), b.GetSecondZoom());
  EXPECT_EQ(a.GetFinderSize(), b.GetFinderSize());
  EXPECT_EQ(a.GetWinDiag(), b.GetWinDiag());
  EXPECT_EQ(a.GetFieldOfView(), b.GetFieldOfView());
  EXPECT_EQ(a.GetWinSize().x, b.GetWinSize().x);
  EXPECT_EQ(a.GetWinSize().y, b.GetWinSize().y);
  tPoint<double> pa, pb;
  a.RA_Dec2K2PixD(Direction(1.2, 0.3).v, &pa);
  b.RA_Dec2K2PixD(Direction(1.2, 0.3).v, &pb);
  EXPECT_EQ(pa.x, pb.x);
  EXPECT_EQ(pa.y, pb.y);
  for (int row = 0; row < 20; ++row) EXPECT_EQ(a.GetMagCorrection(row), b.GetMagCorrection(row));
  for (const auto& desc : Camera::s_ZoomDependDesc) {
    const int cls = static_cast<int>(desc.objectClass);
    EXPECT_EQ(a.GetDarkMagObjectF(cls), b.GetDarkMagObjectF(cls));
    EXPECT_EQ(a.GetDarkMagLabelF(cls), b.GetDarkMagLabelF(cls));
  }
  for (int step = 0; step < CommonInterfaces::kCameraSteps; ++step) {
    EXPECT_EQ(a.GetStep(static_cast<CameraStep>(step)).value, b.GetStep(static_cast<CameraStep>(step)).value);
    EXPECT_EQ(a.GetStep(static_cast<CameraStep>(step)).unit, b.GetStep(static_cast<CameraStep>(step)).unit);
  }
}

void ExpectSame(Camera& a, Camera& b) {
  ExpectSameTime(a, b);
  ExpectSamePlace(a, b);
  ExpectSameDirection(a, b);
  ExpectSamePicture(a, b);
  EXPECT_EQ(a.GetDST()->StartYear, b.GetDST()->StartYear);
}

TEST_F(CameraTest, ConstructionGivesJ2000AndNothingElse) {
  const Camera camera(1);
  _Date t;
  camera.GetUniversalTime(t);
  EXPECT_EQ(t.day, 2451545);
  EXPECT_EQ(t.fraction, 0.0);
  EXPECT_EQ(t.type, 1);
  EXPECT_FALSE(camera.IsTimeChanged());
  EXPECT_EQ(camera.GetLocation().coorSys, 2);
  EXPECT_EQ(camera.GetObserver(), SSO_ID());
  EXPECT_FALSE(camera.IsObserverChanged());
  EXPECT_EQ(camera.GetCenterObject(), SSO_ID());
  EXPECT_EQ(camera.GetFST_Mode(), 0);
  EXPECT_STREQ(camera.GetTimeZoneName(), "");
  EXPECT_EQ(camera.GetZoom(), 0.0);
  EXPECT_FALSE(camera.IsZoomChanged());
  EXPECT_EQ(camera.GetStep(CameraStep::kHeight).value, 0.0);
}

TEST_F(CameraTest, ConstructionPrintsNothingWithoutASettingsFile) {
  DebugCapture debug;
  Camera camera(1);
  camera.CreateDefault();
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(CameraTest, CreateDefaultWithoutARecordSetsTheBuiltInDefaults) {
  Camera camera(1);
  camera.SetTime({2460000, 0.5, 0});
  camera.CreateDefault();
  EXPECT_EQ(camera.GetFinderSize(), 20);
  EXPECT_EQ(camera.GetZoom(), 1.0);
  EXPECT_EQ(camera.GetSecondZoom(), 10.0);
  EXPECT_EQ(camera.GetLocation().lon, 0.6457718232379019);
  EXPECT_EQ(camera.GetLocation().lat, 0.9948376736367679);
  EXPECT_EQ(camera.GetLocation().dist, 0.0);
  EXPECT_EQ(camera.GetViewAngles().lon, 4.6355944932969395);
  EXPECT_EQ(camera.GetViewAngles().lat, -0.5047492196767601);
  EXPECT_EQ(camera.GetViewAngles().slope, 0.0);
  EXPECT_TRUE(camera.IsFST_Offered());
  EXPECT_EQ(camera.GetObserver(), SSO_ID(FourCC("plnt"), 3));
  EXPECT_TRUE(camera.IsObserverChanged());
  EXPECT_EQ(camera.GetObsLocatType(), 2);
  EXPECT_FALSE(camera.IsDirectionLocked());
  EXPECT_EQ(camera.GetCenterObject(), SSO_ID());
  EXPECT_EQ(camera.GetAimingDispType(), 0);
}

TEST_F(CameraTest, CreateDefaultGoesBackToJ2000WithItsDeltaT) {
  Camera camera(1);
  camera.SetTime({2400000, 0.5, 0});
  camera.CreateDefault();
  _Date t;
  camera.GetUniversalTime(t);
  EXPECT_EQ(t.day, 2451545);
  EXPECT_EQ(t.fraction, 0.0);
  EXPECT_EQ(t.type, 1);
  camera.GetTime(t);
  EXPECT_EQ(t.fraction, ET_UT::Get(2451545, 0.0) / 86400.0);
}

TEST_F(CameraTest, CreateDefaultSetsEveryStepButTheHeight) {
  Camera camera(1);
  camera.SetStep(CameraStep::kHeight, {7.0, 3});
  camera.CreateDefault();
  ExpectStep(camera, CameraStep::kTime, 0.1, 0);
  ExpectStep(camera, CameraStep::kPosLon, kDegree, 0);
  ExpectStep(camera, CameraStep::kPosLat, kDegree, 0);
  ExpectStep(camera, CameraStep::kAimAlp, kDegree, 0);
  ExpectStep(camera, CameraStep::kAimBet, kDegree, 0);
  ExpectStep(camera, CameraStep::kRotate, kDegree, 0);
  ExpectStep(camera, CameraStep::kHeight, 7.0, 3);
  ExpectStep(camera, CameraStep::kZoom, 1.2, 0);
  ExpectStep(camera, CameraStep::k3DFlight, 100000.0, 4);
}

TEST_F(CameraTest, BuiltInDefaultsLookAlongTheirAnglesAtTheirScale) {
  Camera camera(1);
  camera.SetWinRect(Window(600, 800));
  camera.CreateDefault();
  tPoint<double> p;
  camera.RA_Dec2PixD(Direction(265.6 * kDegree, -28.92 * kDegree).v, &p);
  EXPECT_NEAR(p.x, 300, 1e-9);
  EXPECT_NEAR(p.y, 400, 1e-9);
  camera.RA_Dec2PixD(Direction(265.6 * kDegree, -28.92 * kDegree + kZoomOneAngle).v, &p);
  EXPECT_NEAR(p.y, 400 + 500, 1e-9);
  EXPECT_EQ(camera.GetDarkMagObject(FourCC("star")), 60);
}

TEST_F(CameraTest, CreateDefaultWithARecordTakesTheRecordAlone) {
  RecordFields fields = CameraFields();
  ReplaceField(fields, Double("m_Zoom", 0.65));
  WriteCameraDefaults(roots, fields);
  Camera camera(1);
  camera.CreateDefault();
  EXPECT_EQ(camera.GetZoom(), 0.65);
  EXPECT_EQ(camera.GetSecondZoom(), 0.0);
  EXPECT_FALSE(camera.IsFST_Offered());
}

TEST_F(CameraTest, CopyConstructionCopiesNothing) {
  Camera camera(1);
  camera.CreateDefault();
  ChangeEverything(camera);
  const Camera copy(camera);
  _Date t;
  copy.GetUniversalTime(t);
  EXPECT_EQ(t.day, 0);
  EXPECT_EQ(copy.GetZoom(), 0.0);
  EXPECT_EQ(copy.GetObserver(), SSO_ID());
  EXPECT_EQ(copy.GetCenterObject(), SSO_ID());
  EXPECT_STREQ(copy.GetTimeZoneName(), "");
  EXPECT_EQ(copy.GetLocationName(), "");
  EXPECT_EQ(copy.GetWinSize().x, 0);
  EXPECT_EQ(copy.GetMagCorrection(7), 0.0f);
}

TEST_F(CameraTest, CopyHasNoSettingsToReadOrWrite) {
  WriteCameraDefaults(roots);
  Camera camera(1);
  ASSERT_TRUE(camera.ReadSelf(nullptr, kCAMR));
  const std::string view = roots.dir.Path("view.data");
  camera.WriteSelfAll(view.c_str(), 1);
  Camera copy(camera);
  EXPECT_FALSE(copy.ReadSelf(nullptr, kCAMR));
  EXPECT_FALSE(copy.ReadSelf(view.c_str(), kCAMR));
  EXPECT_FALSE(copy.ReadSelf(view.c_str(), 1));
  EXPECT_EQ(copy.GetZoom(), 0.0);
  const std::string other = roots.dir.Path("other.data");
  copy.WriteSelf(other.c_str(), 1);
  copy.WriteSelfAll(other.c_str(), 1);
  EXPECT_EQ(roots.dir.Read("other.data"), "");
  copy.CreateDefault();
  EXPECT_EQ(copy.GetZoom(), 1.0);
}

TEST_F(CameraTest, AssignmentCopiesEverythingButTheSettings) {
  WriteCameraDefaults(roots);
  Camera camera(1);
  camera.CreateDefault();
  ChangeEverything(camera);
  Camera copy(camera);
  EXPECT_EQ(&(copy = camera), &copy);
  ExpectSame(copy, camera);
  EXPECT_FALSE(copy.SetCenterView(SSO_ID(FourCC("star"), 1)));  // the lock came along
  EXPECT_FALSE(copy.ReadSelf(nullptr, kCAMR));                  // the settings did not
}

TEST_F(CameraTest, TargetOfAnAssignmentKeepsItsOwnSettings) {
  WriteCameraDefaults(roots);
  Camera camera(1), empty(camera);
  ASSERT_TRUE(camera.ReadSelf(nullptr, kCAMR));
  camera = empty;
  EXPECT_EQ(camera.GetZoom(), 0.0);
  EXPECT_TRUE(camera.ReadSelf(nullptr, kCAMR));
  EXPECT_EQ(camera.GetZoom(), 1.0);
}

TEST_F(CameraTest, AssignmentToItselfChangesNothing) {
  Camera camera(1);
  camera.CreateDefault();
  ChangeEverything(camera);
  Camera reference(1);
  reference = camera;
  const Camera& self = camera;
  camera = self;
  ExpectSame(camera, reference);
}

}  // namespace
