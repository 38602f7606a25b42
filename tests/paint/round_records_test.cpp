// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <numbers>
#include <string>
#include <utility>

#include "paint/picture_file.h"
#include "paint/record_fixture.h"

using namespace scene;
using namespace host_test;

namespace {

class RoundRecords : public Records {
 protected:
  // A disc of radius 40 in the middle of the picture.
  void AddDisc(float sunX, float sunY, float cosPhase) {
    list.Add(Layer::kBodies, DiscRecord{100.0f, 50.0f, 40.0f, sunX, sunY, cosPhase, kRed, kBlue, {}, {}});
  }
};

}  // namespace

TEST_F(RoundRecords, PointIsAFilledCircle) {
  list.Add(Layer::kStars, PointRecord{100.5f, 50.5f, 10.0f, {255, 128, 0, 255}, {}, {}});
  const Painted picture(list);
  EXPECT_EQ(picture.At(100, 50), (Pixel{255, 128, 0}));
  EXPECT_EQ(picture.At(108, 50), (Pixel{255, 128, 0}));
  EXPECT_EQ(picture.At(112, 50), kBlack);
  EXPECT_EQ(picture.At(106, 56), (Pixel{255, 128, 0}));  // 8.5 from the middle
  EXPECT_EQ(picture.At(108, 58), kBlack);                // 11.3
}

// A stroke of the width of the circle around one place.
TEST_F(RoundRecords, PointIsARoundEndInSvg) {
  list.Add(Layer::kStars, PointRecord{100.5f, 50.5f, 10.0f, {255, 128, 0, 255}, {}, {}});
  std::string bytes, error;
  ASSERT_TRUE(paint::MakeSvg(list, bytes, error)) << error;
  EXPECT_NE(bytes.find("stroke-width:20;stroke-linecap:round"), std::string::npos) << bytes;
  EXPECT_NE(bytes.find("M 100.5 50.5 L 100.5 50.5"), std::string::npos) << bytes;
}

// White of opacity 1 in the middle, 0.4 at half of the way, nothing at 40 pixels.
TEST_F(RoundRecords, GlowFadesFromStopToStopAndLiesBelowItsPoint) {
  const Glow glow = {0.0f, 40.0f, 0.5f, kWhite, {255, 255, 255, 102}};
  list.Add(Layer::kStars, PointRecord{100.5f, 50.5f, 4.0f, kRed, glow, {}});
  const Painted picture(list);
  EXPECT_EQ(picture.At(100, 50), kRedPixel);
  EXPECT_NEAR(picture.At(110, 50).red, 178.5, 2.0);
  EXPECT_NEAR(picture.At(120, 50).red, 102.0, 2.0);
  EXPECT_NEAR(picture.At(130, 50).green, 51.0, 2.0);
  EXPECT_NEAR(picture.At(100, 15).green, 25.5, 2.0);
  EXPECT_EQ(picture.At(141, 50), kBlack);
}

TEST_F(RoundRecords, GlowIsWholeInsideItsInnerRadius) {
  const Glow glow = {20.0f, 40.0f, 0.5f, kWhite, {255, 255, 255, 102}};
  list.Add(Layer::kStars, PointRecord{100.5f, 50.5f, 2.0f, kRed, glow, {}});
  const Painted picture(list);
  EXPECT_EQ(picture.At(110, 50), (Pixel{255, 255, 255}));
  EXPECT_NEAR(picture.At(130, 50).red, 102.0, 2.0);
}

// At the end: half-way it is half red and half blue, and at its end blue. At the beginning: blue there.
TEST_F(RoundRecords, GlowMayHaveItsMiddleColourAtAnEnd) {
  const auto paint = [this](float middle) {
    list.Begin(200, 100, 1.0);
    const Glow glow = {0.0f, 40.0f, middle, kRed, kBlue};
    list.Add(Layer::kStars, PointRecord{100.5f, 50.5f, 2.0f, kWhite, glow, {}});
    return std::pair(Painted(list).At(120, 50), Painted(list).At(138, 50));
  };
  const auto [halfWay, atEnd] = paint(1.0f);
  ExpectNear(halfWay, {127, 0, 128}, 3);
  ExpectNear(atEnd, {13, 0, 242}, 3);
  EXPECT_GT(paint(0.0f).first.blue, 60);
}

TEST_F(RoundRecords, GlowHasFadedWhollyAtItsEnd) {
  const Glow glow = {0.0f, 40.0f, 0.5f, kWhite, {255, 255, 255, 0}};
  list.Add(Layer::kStars, PointRecord{100.5f, 50.5f, 2.0f, kRed, glow, {}});
  const Painted picture(list);
  for (int x = 122; x < 142; ++x) EXPECT_EQ(picture.At(x, 50), kBlack) << x;
}

TEST_F(RoundRecords, HalfMoonIsLitOnTheSideOfTheSun) {
  AddDisc(1.0f, 0.0f, 0.0f);
  const Painted picture(list);
  EXPECT_EQ(picture.At(102, 50), kRedPixel);
  EXPECT_EQ(picture.At(135, 50), kRedPixel);
  EXPECT_EQ(picture.At(97, 50), kBluePixel);
  EXPECT_EQ(picture.At(65, 50), kBluePixel);
  for (const int y : {10, 89}) EXPECT_EQ(picture.At(97, y).red, 0) << "nor at the horns";
  EXPECT_EQ(picture.At(102, 85), kRedPixel);
  EXPECT_EQ(picture.At(97, 15), kBluePixel);
  EXPECT_EQ(picture.At(145, 50), kBlack);
}

TEST_F(RoundRecords, SunBelowLightsTheLowerHalf) {
  AddDisc(0.0f, 1.0f, 0.0f);
  const Painted picture(list);
  EXPECT_EQ(picture.At(100, 60), kRedPixel);
  EXPECT_EQ(picture.At(100, 40), kBluePixel);
}

// The terminator crosses the middle line at the cosine of the phase angle, on the dark side.
TEST_F(RoundRecords, PhaseMovesTheTerminator) {
  AddDisc(1.0f, 0.0f, 0.5f);
  const Painted gibbous(list);
  EXPECT_EQ(gibbous.At(82, 50), kRedPixel);  // it lies at 80
  EXPECT_EQ(gibbous.At(77, 50), kBluePixel);
  list.Begin(200, 100, 1.0);
  AddDisc(1.0f, 0.0f, -0.5f);
  const Painted crescent(list);
  EXPECT_EQ(crescent.At(122, 50), kRedPixel);  // at 120
  EXPECT_EQ(crescent.At(117, 50), kBluePixel);
}

TEST_F(RoundRecords, FullDiscIsLitAllOverAndNewOneNowhere) {
  AddDisc(0.6f, 0.8f, 1.0f);
  const Painted full(list);
  list.Begin(200, 100, 1.0);
  AddDisc(0.6f, 0.8f, -1.0f);
  const Painted dark(list);
  for (const int x : {65, 85, 100, 115, 135}) {
    EXPECT_EQ(full.At(x, 50), kRedPixel) << x;
    EXPECT_EQ(dark.At(x, 50), kBluePixel) << x;
  }
}

// A shadow around (60, 50), whole up to 20 pixels, a half at 30, gone at 40, on a disc around (80, 50).
TEST_F(RoundRecords, ShadowFallsOnItsDiscAlone) {
  list.Add(Layer::kBodies, PointRecord{100.0f, 50.0f, 100.0f, kWhite, {}, {}});
  list.Add(Layer::kBodies, ShadowRecord{60.5f,
                                        50.5f,
                                        20.0f,
                                        40.0f,
                                        0.5f,
                                        80.0f,
                                        50.0f,
                                        30.0f,
                                        {0, 0, 0, 255},
                                        {0, 0, 0, 128},
                                        {0, 0, 0, 0},
                                        {}});
  const Painted picture(list);
  EXPECT_EQ(picture.At(45, 50), (Pixel{255, 255, 255})) << "in the shadow, beside the disc";
  EXPECT_EQ(picture.At(55, 50), kBlack);
  EXPECT_EQ(picture.At(75, 50), kBlack);
  EXPECT_NEAR(picture.At(90, 50).red, 127.0, 2.0);
  EXPECT_NEAR(picture.At(95, 50).red, 191.0, 2.0);
  EXPECT_EQ(picture.At(105, 50), (Pixel{255, 255, 255})) << "on the disc, beside the shadow";
}

TEST_F(RoundRecords, EllipseIsAnOutlineOfOneWidth) {
  list.Add(Layer::kDeepsky, EllipseRecord{100.0f, 50.0f, 80.0f, 30.0f, 0.0f, 4.0f, 0.0f, kRed, {}});
  const Painted picture(list);
  EXPECT_EQ(picture.At(179, 50), kRedPixel);
  EXPECT_EQ(picture.At(20, 49), kRedPixel);
  EXPECT_EQ(picture.At(100, 79), kRedPixel);
  EXPECT_EQ(picture.At(100, 18), kRedPixel);
  EXPECT_EQ(picture.At(100, 83), kBlack);
  EXPECT_EQ(picture.At(175, 50), kBlack);
  EXPECT_EQ(picture.At(100, 50), kBlack) << "it is not filled";
}

TEST_F(RoundRecords, EllipseTurnsFromTheXAxisTowardsTheYAxis) {
  const float turn = static_cast<float>(std::numbers::pi / 4.0);
  list.Add(Layer::kDeepsky, EllipseRecord{100.0f, 50.0f, 40.0f, 10.0f, turn, 4.0f, 0.0f, kRed, {}});
  const Painted picture(list);
  EXPECT_EQ(picture.At(128, 78), kRedPixel);  // 40 pixels to the right and down
  EXPECT_EQ(picture.At(71, 21), kRedPixel);
  EXPECT_EQ(picture.At(128, 21), kBlack);
}

// A circle of 32 pixels: an eighth of a turn is 25.13 pixels. The first dash begins on the right and goes
// down.
TEST_F(RoundRecords, EllipseIsDashed) {
  const float dash = static_cast<float>(8.0 * std::numbers::pi);
  list.Add(Layer::kDeepsky, EllipseRecord{100.0f, 50.0f, 32.0f, 32.0f, 0.0f, 4.0f, dash, kRed, {}});
  const Painted picture(list);
  for (int i = 0; i < 8; ++i) {
    const double angle = (i + 0.5) * std::numbers::pi / 4.0;
    const int x = static_cast<int>(std::floor(100.0 + 32.0 * std::cos(angle)));
    const int y = static_cast<int>(std::floor(50.0 + 32.0 * std::sin(angle)));
    EXPECT_EQ(picture.At(x, y), i % 2 == 0 ? kRedPixel : kBlack) << i;
  }
}
