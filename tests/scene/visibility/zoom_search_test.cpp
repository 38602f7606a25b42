// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/visibility/zoom_search.h"

#include <gtest/gtest.h>

#include "scene/frame_helpers.h"
#include "skyview/options/option_values.h"

using namespace scene;

class ZoomSearch : public testing::Test {
 protected:
  ZoomSearch() { f.camera.FillMagCorrectionsVector(nullptr); }
  double Find(const char* cls, double magnitude, LimitOf limit = LimitOf::kDrawing) {
    return FindLeastZoom(f.camera, GetFOURCC(cls), static_cast<float>((magnitude + 2.0) * 10.0), limit)
        .value_or(-1.0);
  }
  host_test::FrameFixture f;
};

// The draw limit of stars is 7.5 + 4 log10(zoom), that of clusters three magnitudes more where that is less
// than 12.5 + 3 log10(zoom): up to zoom 100.
TEST_F(ZoomSearch, AnswersTheZoomAtWhichTheLimitReachesTheMagnitude) {
  EXPECT_DOUBLE_EQ(Find("star", 11.5), 10.0);
  EXPECT_DOUBLE_EQ(Find("star", 7.5), 1.0);
  EXPECT_DOUBLE_EQ(Find("clst", 14.5), 10.0);
  EXPECT_DOUBLE_EQ(Find("clst", 21.5), 1000.0);
  EXPECT_DOUBLE_EQ(Find("star", 8.0), 1.34);  // 10 ^ (0.5 / 4) = 1.3335
}

// The label limit of stars is 4 + 4 log10(zoom).
TEST_F(ZoomSearch, LabelsHaveALimitOfTheirOwn) {
  EXPECT_DOUBLE_EQ(Find("star", 8.0, LimitOf::kLabel), 10.0);
  f.camera.SetMagCorrection(1, -15.0f);
  EXPECT_DOUBLE_EQ(Find("star", 6.5, LimitOf::kLabel), 10.0);
}

TEST_F(ZoomSearch, BrightObjectsAreShownFromTheLeastZoomOn) {
  EXPECT_DOUBLE_EQ(Find("star", -1.46), kMinZoom);
}

TEST_F(ZoomSearch, WhatNoZoomShowsHasNone) {
  EXPECT_EQ(Find("star", 25.0), -1.0);
  // The limit of stars with a correction of 20 magnitudes ends at code 254, and 254 - 200 + 35 is magnitude
  // 6.9.
  f.camera.SetMagCorrection(0, 200.0f);
  EXPECT_EQ(Find("star", 8.0), -1.0);
  EXPECT_NE(f.camera.CalcZoomForShowObject(FourCC("star"), 8.0), -1.0) << "it leaves corrections aside";
}

TEST_F(ZoomSearch, CameraKeepsItsZoom) {
  f.camera.SetZoom(2.5);
  Find("star", 9.0);
  EXPECT_EQ(f.camera.GetZoom(), 2.5);
}
