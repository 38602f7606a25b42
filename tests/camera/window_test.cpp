// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <limits>

#include <gtest/gtest.h>

#include "camera/view_helpers.h"
#include "support/temp_dir.h"
#include "utils/text.h"

namespace {

using namespace test_support;
using CommonInterfaces::Camera;

class WindowTest : public testing::Test {
 protected:
  TempRoots roots;
  Camera camera{1};
};

TEST_F(WindowTest, RectIsWidthHeightAndTheReferenceSize) {
  camera.SetWinRect({1920, 1080, 1600, 900});
  tRect<int> r;
  camera.GetWinRect(&r);
  EXPECT_EQ(r.left, 1920);
  EXPECT_EQ(r.top, 1080);
  EXPECT_EQ(r.right, 1600);
  EXPECT_EQ(r.bottom, 900);
  EXPECT_EQ(camera.GetWinSize().x, 1920);
  EXPECT_EQ(camera.GetWinSize().y, 1080);
  EXPECT_EQ(camera.GetWinCentre().x, 960);
  EXPECT_EQ(camera.GetWinCentre().y, 540);
}

TEST_F(WindowTest, StartsEmpty) {
  tRect<int> r;
  camera.GetWinRect(&r);
  EXPECT_EQ(r.left, 0);
  EXPECT_EQ(r.top, 0);
  EXPECT_EQ(r.right, 0);
  EXPECT_EQ(r.bottom, 0);
  EXPECT_EQ(camera.GetWinDiag(), 0.0);
}

TEST_F(WindowTest, DiagonalIsHalvedAsWholePixelsBySetWinRect) {
  camera.SetWinRect(Window(6, 8));
  EXPECT_EQ(camera.GetWinDiag(), 5.0);
  camera.SetWinRect(Window(7, 9));  // halves 3 and 4 again: the odd pixels are lost
  EXPECT_EQ(camera.GetWinDiag(), 5.0);
}

TEST_F(WindowTest, HalvingRoundsTowardsMinusInfinity) {
  camera.SetWinRect(Window(-5, -7));  // halves -3 and -4
  EXPECT_EQ(camera.GetWinDiag(), 5.0);
  EXPECT_EQ(camera.GetWinCentre().x, -3);
  EXPECT_EQ(camera.GetWinCentre().y, -4);
}

TEST_F(WindowTest, DiagonalAfterTheBuiltInDefaultsIsTheWholeOneUntilTheNextSetWinRect) {
  camera.SetWinRect(Window(6, 8));
  camera.CreateDefault();
  EXPECT_EQ(camera.GetWinDiag(), 10.0);
  camera.SetWinRect(Window(6, 8));
  EXPECT_EQ(camera.GetWinDiag(), 5.0);
}

TEST_F(WindowTest, FieldOfViewFollowsTheWholeDiagonalAfterTheBuiltInDefaults) {
  camera.SetWinRect(Window(600, 800));
  camera.CreateDefault();
  EXPECT_NEAR(camera.GetFieldOfView(), 2 * std::atan(2 * std::tan(kZoomOneAngle / 2)), 1e-15);
}

TEST_F(WindowTest, FieldOfViewOfZoomOneAcrossTheHalfDiagonalIsTheDefiningAngle) {
  camera.SetWinRect(Window(1920, 1080));
  camera.SetZoom(1.0);
  EXPECT_NEAR(camera.GetFieldOfView(), kZoomOneAngle, 1e-15);
  EXPECT_NEAR(camera.GetFieldOfView(), 37 * kDegree, 1e-12);
  camera.SetZoom(10.0);
  EXPECT_NEAR(camera.GetFieldOfView(), kZoomOneAngle / 10, 1e-15);
}

TEST_F(WindowTest, FieldOfViewScalesWithTheWindowAgainstTheReference) {
  camera.SetWinRect({60, 80, 600, 800});
  camera.SetZoom(2.0);
  EXPECT_NEAR(camera.GetFieldOfView(), 2 * std::atan(0.1 * std::tan(kZoomOneAngle / 4)), 1e-16);
}

TEST_F(WindowTest, FinderAngleIsThatOfItsPixels) {
  camera.SetWinRect(Window(600, 800));  // reference half-diagonal 500
  camera.SetZoom(4.0);
  camera.SetFinderSize(50);
  EXPECT_EQ(camera.GetFinderSize(), 50);
  EXPECT_NEAR(camera.GetFinderSizeAngle(), 2 * std::atan(0.1 * std::tan(kZoomOneAngle / 8)), 1e-16);
}

TEST_F(WindowTest, ReferenceHalfDiagonalLiesOneZoomthOfTheAngleFromTheAxis) {
  for (double zoom : {0.5, 1.0, 3.0, 200.0}) {
    camera.SetWinRect({1920, 1080, 600, 800});
    camera.SetZoom(zoom);
    LookAt(camera, 0, 0);
    tPoint<double> p;
    camera.RA_Dec2PixD(Direction(0, kZoomOneAngle / zoom).v, &p);
    EXPECT_NEAR(p.x, 960.0, 1e-9);
    EXPECT_NEAR(p.y, 540.0 + 500.0, 1e-9) << "zoom " << zoom;
  }
}

TEST_F(WindowTest, SetWinRectBringsTheScaleUpToTheNewReference) {
  camera.SetZoom(1.0);
  camera.SetWinRect(Window(600, 800));
  const double before = camera.VisRad2PixD(0.01);
  camera.SetWinRect(Window(1200, 1600));
  EXPECT_NEAR(camera.VisRad2PixD(0.01), 2 * before, 1e-12);
}

TEST_F(WindowTest, SetZoomRaisesItsFlagAndRefreshesTheLimits) {
  camera.SetZoom(10.0);
  EXPECT_EQ(camera.GetZoom(), 10.0);
  EXPECT_TRUE(camera.IsZoomChanged());
  EXPECT_EQ(camera.GetDarkMagObject(FourCC("star")), 100);
  camera.ClearZoomChanged();
  EXPECT_FALSE(camera.IsZoomChanged());
}

TEST_F(WindowTest, SetZoomWithinTenToTheMinusTenChangesNothing) {
  camera.SetZoom(1.0);
  camera.ClearZoomChanged();
  camera.SetZoom(1.0 + 0.9e-10);
  EXPECT_EQ(camera.GetZoom(), 1.0);
  EXPECT_FALSE(camera.IsZoomChanged());
  camera.SetZoom(1.0 - 1.1e-10);
  EXPECT_EQ(camera.GetZoom(), 1.0 - 1.1e-10);
  EXPECT_TRUE(camera.IsZoomChanged());
}

TEST_F(WindowTest, ZoomThatIsNotANumberIsNoOtherZoom) {
  camera.SetZoom(1.0);
  camera.ClearZoomChanged();
  camera.SetZoom(std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(camera.GetZoom(), 1.0);
  EXPECT_FALSE(camera.IsZoomChanged());
}

TEST_F(WindowTest, SecondZoomIsKeptForTheOwner) {
  EXPECT_EQ(camera.GetSecondZoom(), 0.0);
  camera.CreateDefault();
  EXPECT_EQ(camera.GetSecondZoom(), 10.0);
  camera.SetSecondZoom(25.0);
  EXPECT_EQ(camera.GetSecondZoom(), 25.0);
  EXPECT_EQ(camera.GetZoom(), 1.0);
}

}  // namespace
