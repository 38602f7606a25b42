// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the styles promise of pixels, whatever font and edges do to colours.
#include <gtest/gtest.h>

#include "paint/painted.h"
#include "scene/frame_helpers.h"

using namespace scene;
using host_test::Painted;
using host_test::Pixel;

namespace {

// Orion, at night or at noon, with everything on.
class PaintedStyles : public testing::Test {
 protected:
  PaintedStyles() {
    f.SetWindow(640, 400);
    f.camera.SetZoom(0.6);
    f.shown.lines.equatorialGrid = f.shown.lines.ecliptic = 1;
    f.frame.SetCaption({"a caption"});
    f.frame.ShowLegend(true);
    f.frame.SetFinders({{0.2, 0.0, 0.0, 0.0, "a circle"}});
  }
  const DisplayList& Draw(ChartStyle style) {
    SetChartStyle(style, f.shown);
    f.Compute();
    return f.frame.GetDisplayList();
  }

  host_test::FrameFixture f;
};

}  // namespace

TEST_F(PaintedStyles, NightChartHasNoGreenAndNoBlue) {
  for (const int hour : {21, 11}) {
    f.SetTime(2026, 1, 15, hour, 0);
    const Painted picture(Draw(ChartStyle::kNight));
    int lit = 0;
    for (int y = 0; y < picture.GetHeight(); ++y) {
      for (int x = 0; x < picture.GetWidth(); ++x) {
        const Pixel pixel = picture.At(x, y);
        ASSERT_LE(pixel.green, 2) << x << ", " << y;
        ASSERT_LE(pixel.blue, 2) << x << ", " << y;
        lit += pixel.red > 100;
      }
    }
    EXPECT_GT(lit, 200) << "and something to see";
  }
}

TEST_F(PaintedStyles, PrintIsMostlyWhitePaper) {
  const Painted picture(Draw(ChartStyle::kPrint));
  int white = 0;
  for (int y = 0; y < 300; ++y) {
    for (int x = 0; x < picture.GetWidth(); ++x) white += picture.At(x, y) == Pixel{255, 255, 255};
  }
  EXPECT_GT(white, 640 * 300 * 8 / 10);
  for (const auto& star : f.frame.GetStars()) {
    const auto& place = star.output->m_Place;
    if (place.x < 5.0f || place.x > 380.0f || place.y < 200.0f || place.y > 390.0f) continue;
    const Pixel middle = picture.At(static_cast<int>(place.x), static_cast<int>(400.0f - place.y));
    EXPECT_LT(middle.red, 80) << star.number;
  }
}
