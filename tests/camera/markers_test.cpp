// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "camera/view_helpers.h"
#include "common_interfaces/camera.h"
#include "support/camera_settings.h"

namespace {

using namespace test_support;
using CommonInterfaces::Camera;
using CommonInterfaces::MARKER_INFO;

MARKER_INFO Marker(int id, double lon = 0.0, double lat = 0.0) {
  MARKER_INFO marker;
  marker.id = id;
  marker.lon = lon;
  marker.lat = lat;
  return marker;
}

// A window of 800 x 600 pixels at zoom 1, looking along the first axis.
class MarkersTest : public testing::Test {
 protected:
  MarkersTest() {
    camera.CreateDefault();
    camera.SetZoom(1.0);
    camera.SetWinRect(Window(800, 600));
    LookAt(camera, 0.0, 0.0);
  }

  std::string Ids() {
    std::string ids;
    for (const MARKER_INFO& marker : *camera.GetOIMarkerList()) ids += std::to_string(marker.id) + " ";
    return ids;
  }
  // The angle from the view axis that lies `pixels` from the centre: r = f tan(angle / 2), where the half
  // diagonal of 500 pixels is tan(37 degrees / 2).
  static double AngleAt(double pixels) {
    return 2.0 * std::atan(pixels / 500.0 * std::tan(kZoomOneAngle / 2));
  }

  TempRoots roots;
  Camera camera{1};
};

TEST_F(MarkersTest, AMarkerThatIsThereIsReplacedAndGoesToTheEnd) {
  camera.AddOIMarker(Marker(1));
  camera.AddOIMarker(Marker(2));
  camera.AddOIMarker(Marker(1, 0.5));
  EXPECT_EQ(Ids(), "2 1 ");
  EXPECT_EQ(camera.GetOIMarkerList()->back().lon, 0.5);
}

TEST_F(MarkersTest, AMarkerOfTheListItselfCanBeAddedAgain) {
  camera.AddOIMarker(Marker(1, 0.25));
  camera.AddOIMarker(Marker(2));
  camera.AddOIMarker(camera.GetOIMarkerList()->front());
  EXPECT_EQ(Ids(), "2 1 ");
  EXPECT_EQ(camera.GetOIMarkerList()->back().lon, 0.25);
}

TEST_F(MarkersTest, FinderMarkersAreOnlyEverAdded) {
  EXPECT_FALSE(camera.IsOnScreenFinder());
  camera.AddOIMarker(Marker(-1));
  camera.AddOIMarker(Marker(-1));
  EXPECT_EQ(Ids(), "-1 -1 ");
  EXPECT_TRUE(camera.IsOnScreenFinder());
}

TEST_F(MarkersTest, DeletingTakesTheFirstAndClearsTheFinderFlag) {
  camera.AddOIMarker(Marker(-1));
  camera.AddOIMarker(Marker(3));
  camera.AddOIMarker(Marker(-1));
  camera.DeleteOIMarker(Marker(-1));
  EXPECT_EQ(Ids(), "3 -1 ");
  EXPECT_FALSE(camera.IsOnScreenFinder());
}

TEST_F(MarkersTest, DeletingAnotherMarkerLeavesTheFinderFlag) {
  camera.AddOIMarker(Marker(-1));
  camera.AddOIMarker(Marker(3));
  camera.DeleteOIMarker(Marker(3));
  camera.DeleteOIMarker(Marker(4));
  EXPECT_EQ(Ids(), "-1 ");
  EXPECT_TRUE(camera.IsOnScreenFinder());
}

TEST_F(MarkersTest, ClearingEmptiesTheListAlone) {
  camera.AddOIMarker(Marker(-1));
  camera.AddOIMarker(Marker(3));
  camera.ClearOIMarkerList();
  EXPECT_TRUE(camera.GetOIMarkerList()->empty());
  EXPECT_TRUE(camera.IsOnScreenFinder());
}

TEST_F(MarkersTest, ANewMarkerIsOffScreenUntilTheUpdate) {
  camera.AddOIMarker(Marker(1));
  EXPECT_EQ(camera.GetOIMarkerList()->front().x, -1);
  EXPECT_EQ(camera.GetOIMarkerList()->front().y, -1);
}

TEST_F(MarkersTest, TheCentreOfTheViewIsTheCentreOfTheWindow) {
  camera.AddOIMarker(Marker(1, 0.0, 0.0));
  camera.UpdateOIMarkers();
  EXPECT_EQ(camera.GetOIMarkerList()->front().x, 400);
  EXPECT_EQ(camera.GetOIMarkerList()->front().y, 300);
}

TEST_F(MarkersTest, YIsMirroredAgainstTheProjection) {
  camera.AddOIMarker(Marker(1, 0.0, AngleAt(100.5)));
  camera.UpdateOIMarkers();
  const MARKER_INFO& marker = camera.GetOIMarkerList()->front();
  const Direction direction(0.0, AngleAt(100.5));
  tPoint<double> p;
  camera.RA_Dec2PixD(direction.v, &p);
  EXPECT_NEAR(p.y, 400.5, 1e-9);
  EXPECT_EQ(marker.y, 199);  // 600 - 400.5, whole part
  EXPECT_EQ(marker.x, 400);
}

TEST_F(MarkersTest, PixelsAreCutToTheirWholePart) {
  camera.AddOIMarker(Marker(1, -AngleAt(10.9), 0.0));  // longitudes grow to the left
  camera.UpdateOIMarkers();
  EXPECT_EQ(camera.GetOIMarkerList()->front().x, 410);
}

TEST_F(MarkersTest, TheEdgesOfTheWindowBelongToIt) {
  // A window without width: the centre lies on both its edges, x = W = 0.
  camera.SetWinRect({0, 600, 800, 600});
  camera.AddOIMarker(Marker(1));
  camera.UpdateOIMarkers();
  EXPECT_EQ(camera.GetOIMarkerList()->front().x, 0);
  camera.SetWinRect({800, 0, 800, 600});
  camera.UpdateOIMarkers();
  EXPECT_EQ(camera.GetOIMarkerList()->front().x, 400);
  EXPECT_EQ(camera.GetOIMarkerList()->front().y, 0);
}

TEST_F(MarkersTest, JustPastEachEdgeIsOffScreen) {
  const double lon = AngleAt(400.01), lat = AngleAt(300.01);
  camera.AddOIMarker(Marker(1, lon, 0.0));
  camera.AddOIMarker(Marker(2, -lon, 0.0));
  camera.AddOIMarker(Marker(3, 0.0, lat));
  camera.AddOIMarker(Marker(4, 0.0, -lat));
  camera.UpdateOIMarkers();
  for (const MARKER_INFO& marker : *camera.GetOIMarkerList()) {
    EXPECT_EQ(marker.x, -1) << marker.id;
    EXPECT_EQ(marker.y, -1) << marker.id;
  }
}

TEST_F(MarkersTest, AMarkerThatLeavesTheWindowLosesItsPixels) {
  camera.AddOIMarker(Marker(1));
  camera.UpdateOIMarkers();
  LookAt(camera, kPi / 2, 0.0);
  camera.UpdateOIMarkers();
  EXPECT_EQ(camera.GetOIMarkerList()->front().x, -1);
}

TEST_F(MarkersTest, DirectionsWithoutAPictureAreOffScreen) {
  camera.AddOIMarker(Marker(1, kPi, 0.0));
  camera.AddOIMarker(Marker(2, std::numeric_limits<double>::quiet_NaN(), 0.0));
  camera.AddOIMarker(Marker(3, std::numeric_limits<double>::infinity(), 0.0));
  camera.UpdateOIMarkers();
  for (const MARKER_INFO& marker : *camera.GetOIMarkerList()) EXPECT_EQ(marker.x, -1) << marker.id;
}

TEST_F(MarkersTest, TheFinderKeepsItsPixels) {
  MARKER_INFO finder = Marker(-1, kPi, 0.0);
  finder.x = 12;
  finder.y = 34;
  camera.AddOIMarker(finder);
  camera.UpdateOIMarkers();
  EXPECT_EQ(camera.GetOIMarkerList()->front().x, 12);
  EXPECT_EQ(camera.GetOIMarkerList()->front().y, 34);
}

}  // namespace
