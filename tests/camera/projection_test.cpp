// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <array>
#include <limits>

#include <gtest/gtest.h>

#include "astro/vectors.h"
#include "camera/view_helpers.h"

namespace {

using namespace test_support;
using CommonInterfaces::Camera;

constexpr int kLowestInt = std::numeric_limits<int>::min();
constexpr int kHighestInt = std::numeric_limits<int>::max();

// Looks along the first axis at zoom 1.
void Set(Camera& camera, int width, int height, double zoom = 1.0) {
  camera.SetWinRect(Window(width, height));
  camera.SetZoom(zoom);
  LookAt(camera, 0, 0);
}

tPoint<int> Pixel(const Camera& camera, const Direction& d) {
  tPoint<int> p;
  camera.RA_Dec2Pix(d.v, &p);
  return p;
}

tPoint<double> PixelD(const Camera& camera, const Direction& d) {
  tPoint<double> p;
  camera.RA_Dec2PixD(d.v, &p);
  return p;
}

TEST(Projection, ViewAxisIsTheCentre) {
  Camera camera(1);
  Set(camera, 1920, 1080);
  EXPECT_EQ(Pixel(camera, Direction(0, 0)).x, 960);
  EXPECT_EQ(Pixel(camera, Direction(0, 0)).y, 540);
}

TEST(Projection, LongitudesGrowToTheLeftAndLatitudesUp) {
  Camera camera(1);
  Set(camera, 1920, 1080);
  // Stereographic: a direction at the angle a from the axis lies f tan(a / 2) from the centre.
  const double f = 0.5 * std::sqrt(1920.0 * 1920 + 1080.0 * 1080) / std::tan(kZoomOneAngle / 2);
  EXPECT_NEAR(PixelD(camera, Direction(0.2, 0)).x, 960 - f * std::tan(0.1), 1e-9);
  EXPECT_NEAR(PixelD(camera, Direction(0.2, 0)).y, 540, 1e-9);
  EXPECT_NEAR(PixelD(camera, Direction(0, 0.2)).x, 960, 1e-9);
  EXPECT_NEAR(PixelD(camera, Direction(0, 0.2)).y, 540 + f * std::tan(0.1), 1e-9);
}

TEST(Projection, PositiveSlopeTurnsThePictureCounterClockwise) {
  Camera camera(1);
  Set(camera, 1000, 1000);
  LookAt(camera, 0, 0, kPi / 2);
  const tPoint<double> above = PixelD(camera, Direction(0, 0.1));
  EXPECT_LT(above.x, 500 - 100);
  EXPECT_NEAR(above.y, 500, 1e-9);
}

TEST(Projection, WholePixelsAreTruncatedTowardsTheCentre) {
  Camera camera(1);
  Set(camera, 1920, 1080);
  Random random(3);
  for (int n = 0; n < 1000; ++n) {
    const Direction d(random.Real(-1, 1), random.Real(-1, 1));
    const tPoint<double> exact = PixelD(camera, d);
    const tPoint<int> whole = Pixel(camera, d);
    EXPECT_EQ(whole.x, 960 + static_cast<int>(exact.x - 960));
    EXPECT_EQ(whole.y, 540 + static_cast<int>(exact.y - 540));
  }
}

TEST(Projection, CentresOfAnOddWindowDifferByHalfAPixel) {
  Camera camera(1);
  Set(camera, 801, 601);
  EXPECT_EQ(Pixel(camera, Direction(0, 0)).x, 400);
  EXPECT_EQ(Pixel(camera, Direction(0, 0)).y, 300);
  EXPECT_EQ(PixelD(camera, Direction(0, 0)).x, 400.5);
  EXPECT_EQ(PixelD(camera, Direction(0, 0)).y, 300.5);
}

TEST(Projection, DirectionsBehindTheObserverAreNotRejected) {
  Camera camera(1);
  Set(camera, 1920, 1080);
  const tPoint<int> behind = Pixel(camera, Direction(kPi - 1e-3, 0));
  EXPECT_LT(behind.x, -1000000);
  EXPECT_EQ(behind.y, 540);
}

TEST(Projection, WholePixelsSaturate) {
  Camera camera(1);
  Set(camera, 1920, 1080);
  const double left[3] = {-1.0, 1e-6, 1e-6};
  tPoint<int> p;
  camera.RA_Dec2Pix(left, &p);  // the cosine of the angle to the axis is exactly -1: the scale is infinite
  EXPECT_EQ(p.x, kLowestInt);
  EXPECT_EQ(p.y, kHighestInt);
}

TEST(Projection, DirectionWithoutAPictureIsOffScreen) {
  Camera camera(1);
  Set(camera, 1920, 1080);
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const auto& v : {std::array<double, 3>{-1, 0, 0}, std::array<double, 3>{nan, nan, nan}}) {
    tPoint<int> p = {1, 1};
    camera.RA_Dec2Pix(v.data(), &p);
    EXPECT_EQ(p.x, kLowestInt);
    EXPECT_EQ(p.y, kLowestInt);
    tPoint<double> d = {1, 1};
    camera.RA_Dec2PixD(v.data(), &d);
    EXPECT_TRUE(std::isnan(d.x));
    EXPECT_TRUE(std::isnan(d.y));
  }
}

TEST(Projection, WithoutAWindowNothingIsOnScreenAndNothingBreaks) {
  Camera camera(1);
  camera.SetWinRect({0, 0, 0, 0});
  LookAt(camera, 0, 0);
  tPoint<int> p;
  camera.RA_Dec2Pix(Direction(0.1, 0.1).v, &p);
  EXPECT_EQ(p.x, kLowestInt);
  double v[3];
  camera.Pix2Vec({10, 10}, v);
  EXPECT_TRUE(std::isnan(v[0]));
}

TEST(Projection, J2000DirectionsGoThroughTheReductionFirst) {
  Camera camera(1);
  Set(camera, 1920, 1080, 2.0);
  LookAt(camera, 0.3, 0.2, 0.1);
  const double turn[9] = {0, 1, 0, -1, 0, 0, 0, 0, 1};  // a quarter turn about the third axis
  camera.SetReductionMatrix(turn);
  const Direction catalogue(0.3 + kPi / 2 + 0.05, 0.15);
  tPoint<double> p;
  camera.RA_Dec2K2PixD(catalogue.v, &p);
  const tPoint<double> expected = PixelD(camera, Direction(0.3 + 0.05, 0.15));
  EXPECT_NEAR(p.x, expected.x, 1e-9);
  EXPECT_NEAR(p.y, expected.y, 1e-9);
}

TEST(Projection, TurningTheViewKeepsTheReduction) {
  Camera camera(1);
  Set(camera, 1920, 1080);
  const double turn[9] = {0, 1, 0, -1, 0, 0, 0, 0, 1};
  camera.SetReductionMatrix(turn);
  LookAt(camera, 1.0, 0.5);
  tPoint<double> p;
  camera.RA_Dec2K2PixD(Direction(1.0 + kPi / 2, 0.5).v, &p);
  EXPECT_NEAR(p.x, 960, 1e-9);
  EXPECT_NEAR(p.y, 540, 1e-9);
}

TEST(BackProjection, CentreIsTheViewAxis) {
  Camera camera(1);
  Set(camera, 1920, 1080);
  LookAt(camera, 1.0, 0.5, 0.7);
  double v[3];
  camera.Pix2Vec({960, 540}, v);
  const Direction axis(1.0, 0.5);
  for (int i = 0; i < 3; ++i) EXPECT_NEAR(v[i], axis.v[i], 1e-15);
}

TEST(BackProjection, CountsPixelsFromTheTopWhereTheProjectionCountsFromTheBottom) {
  Camera camera(1);
  Set(camera, 1920, 1080);
  double v[3];
  camera.Pix2Vec({960, 40}, v);  // 500 pixels below the top edge's centre line: above the middle
  EXPECT_GT(v[2], 0.1);
  tPoint<double> p;
  camera.RA_Dec2PixD(v, &p);
  EXPECT_NEAR(p.y, 1080 - 40, 1e-9);
}

TEST(BackProjection, LongitudeAndLatitudeOfAPixel) {
  Camera camera(1);
  camera.SetWinRect(Window(600, 800));  // half-diagonal 500
  camera.SetZoom(1.0);
  LookAt(camera, 2.0, 0);
  double ra = 0, dec = 0;
  camera.Pix2RA_Dec({300 - 500, 400}, ra, dec);
  EXPECT_NEAR(ra, 2.0 + kZoomOneAngle, 1e-14);
  EXPECT_NEAR(dec, 0.0, 1e-15);
  camera.Pix2RA_Dec({300, 400 - 500}, ra, dec);
  EXPECT_NEAR(ra, 2.0, 1e-14);
  EXPECT_NEAR(dec, kZoomOneAngle, 1e-14);
}

TEST(BackProjection, ExtremePixelsDoNotOverflow) {
  Camera camera(1);
  Set(camera, 1920, 1080);
  double v[3];
  camera.Pix2Vec({kLowestInt, kHighestInt}, v);
  EXPECT_NEAR(Vmod(v, 3), 1.0, 1e-6);
}

// Whole pixels of the window, a grid and random ones, to a direction and back: x returns with half a pixel
// more in an odd window, y mirrored.
void ExpectPixelsComeBack(int width, int height, unsigned seed) {
  Camera camera(1);
  camera.SetWinRect(Window(width, height));
  Random random(seed);
  const auto check = [&](tPoint<int> pixel) {
    double v[3];
    camera.Pix2Vec(pixel, v);
    ASSERT_NEAR(Vmod(v, 3), 1.0, 1e-12);
    tPoint<double> back;
    camera.RA_Dec2PixD(v, &back);
    ASSERT_NEAR(back.x, pixel.x + (width % 2) * 0.5, 1e-6) << camera.GetZoom();
    ASSERT_NEAR(back.y, height - (height % 2) * 0.5 - pixel.y, 1e-6) << camera.GetZoom();
  };
  for (int view = 0; view < 100; ++view) {
    LookAt(camera, random.Real(0, 2 * kPi), random.Real(-kPi / 2, kPi / 2), random.Real(0, 2 * kPi));
    camera.SetZoom(0.3 * std::pow(500 / 0.3, view / 99.0));
    for (int x = 0; x < width; x += 120)
      for (int y = 0; y < height; y += 90) check({x, y});
    for (int n = 0; n < 100; ++n) check({random.Whole(0, width - 1), random.Whole(0, height - 1)});
  }
}

TEST(BackProjection, PixelsOfAFullScreenComeBack) { ExpectPixelsComeBack(1920, 1080, 11); }
TEST(BackProjection, PixelsOfAWindowOfOddSizeComeBack) { ExpectPixelsComeBack(1921, 1081, 12); }
TEST(BackProjection, PixelsOfASmallWindowOfOddWidthComeBack) { ExpectPixelsComeBack(799, 600, 13); }
TEST(BackProjection, PixelsOfAWindowOfOddHeightComeBack) { ExpectPixelsComeBack(640, 1001, 14); }

TEST(AngularSize, NothingIsAtLeastOnePixelButExactlyNothingAsADouble) {
  Camera camera(1);
  Set(camera, 1920, 1080);
  EXPECT_EQ(camera.VisRad2Pix(0.0), 1.0);
  EXPECT_EQ(camera.VisRad2PixD(0.0), 0.0);
}

TEST(AngularSize, SmallAnglesCountAsTheirTangentAndLargeOnesFrom035On) {
  Camera camera(1);
  camera.SetWinRect(Window(600, 800));
  camera.SetZoom(1.0);
  const double f = 500 / std::tan(kZoomOneAngle / 2);
  EXPECT_NEAR(camera.VisRad2PixD(0.01), f * 0.005, 1e-10);
  EXPECT_NEAR(camera.VisRad2PixD(0.3499999), f * 0.17499995, 1e-9);
  EXPECT_NEAR(camera.VisRad2PixD(0.35), f * std::tan(0.175), 1e-9);
  EXPECT_NEAR(camera.VisRad2Pix(0.35), f * std::tan(0.175), 1e-9);
}

TEST(AngularSize, WithoutAWindowIsOnePixel) {
  Camera camera(1);
  camera.SetWinRect({0, 0, 0, 0});
  EXPECT_EQ(camera.VisRad2Pix(0.1), 1.0);
}

}  // namespace
