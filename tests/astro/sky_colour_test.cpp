// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/sky_colour.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "astro/constants.h"

using namespace astro;

namespace {

constexpr double kDegree = kRadiansPerDegree;

// Of a direction by altitude and azimuth from the Sun's, degrees.
Chromaticity ColourAt(double sun, double altitude, double azimuth) {
  const double h = altitude * kDegree, s = sun * kDegree;
  const double cosine = std::sin(h) * std::sin(s) + std::cos(h) * std::cos(s) * std::cos(azimuth * kDegree);
  return SkyColour(s, 1.0).Get(h, std::acos(std::fmax(-1.0, std::fmin(1.0, cosine)))).colour;
}

double Apart(const Chromaticity& a, const Chromaticity& b) { return std::hypot(a.x - b.x, a.y - b.y); }

}  // namespace

// Preetham et al., appendix A.2, worked through for the Sun 50 degrees from the zenith (0.8726646 rad) and a
// turbidity of 2.5: the rows of x give 0.00014940, -0.00319560 and 0.23791... with T^2, T and 1.
TEST(SkyColour, ZenithByDayIsThePublishedOne) {
  const double t = 0.8726646, t2 = t * t, t3 = t2 * t;
  const double x = 6.25 * (0.00166 * t3 - 0.00375 * t2 + 0.00209 * t) +
                   2.5 * (-0.02903 * t3 + 0.06377 * t2 - 0.03202 * t + 0.00394) +
                   (0.11693 * t3 - 0.21196 * t2 + 0.06052 * t + 0.25886);
  const double y = 6.25 * (0.00275 * t3 - 0.00610 * t2 + 0.00317 * t) +
                   2.5 * (-0.04214 * t3 + 0.08970 * t2 - 0.04153 * t + 0.00516) +
                   (0.15346 * t3 - 0.26756 * t2 + 0.06670 * t + 0.26688);
  const Chromaticity zenith = ColourAt(40.0, 90.0, 0.0);
  EXPECT_NEAR(zenith.x, x, 1e-5);
  EXPECT_NEAR(zenith.y, y, 1e-5);
  EXPECT_LT(x, 0.27) << "blue";
}

// The same formulas worked out for further heights of the Sun by a program of their own. From 30 degrees
// down the zenith leaves the model, which turns it pale, for the deep blue of sunset: not far at first.
TEST(SkyColour, ZenithFollowsThePublishedModelThroughTheDay) {
  constexpr struct {
    double sun, x, y, apart;
  } kModel[] = {{90.0, 0.26871, 0.27978, 2e-5}, {80.0, 0.26556, 0.27462, 2e-5},
                {70.0, 0.25952, 0.26659, 2e-5}, {60.0, 0.25235, 0.25776, 2e-5},
                {50.0, 0.24579, 0.25022, 2e-5}, {40.0, 0.24158, 0.24605, 2e-5},
                {30.0, 0.24147, 0.24733, 2e-5}, {20.0, 0.24721, 0.25615, 0.003},
                {10.0, 0.26055, 0.27459, 0.02}, {5.0, 0.27061, 0.28807, 0.04}};
  for (const auto& row : kModel)
    EXPECT_LT(Apart(ColourAt(row.sun, 90.0, 0.0), {row.x, row.y}), row.apart) << row.sun;
}

TEST(SkyColour, GlowsRedUnderTheSunAfterSunset) {
  const Chromaticity below = ColourAt(-4.0, 1.0, 0.0), above = ColourAt(-4.0, 60.0, 0.0);
  EXPECT_GT(below.x, 0.42);
  EXPECT_GT(below.x, below.y);
  EXPECT_LT(above.x, 0.26);
  EXPECT_LT(ColourAt(-4.0, 1.0, 180.0).x, 0.32) << "not opposite of it";
}

TEST(SkyColour, TurnsDeepBlueAtTheBlueHour) {
  const Chromaticity zenith = ColourAt(-7.0, 90.0, 0.0);
  EXPECT_LT(zenith.x, 0.245);
  EXPECT_LT(zenith.y, 0.24);
}

// Sun at -3: the shadow ends 5.7 degrees above the horizon and the arch stands over it.
TEST(SkyColour, ArchStandsOverTheShadowOfTheEarth) {
  const Chromaticity arch = ColourAt(-3.0, 10.7, 180.0), shadow = ColourAt(-3.0, 1.0, 180.0),
                     above = ColourAt(-3.0, 35.0, 180.0);
  EXPECT_GT(arch.x, shadow.x + 0.03);
  EXPECT_GT(arch.x, above.x + 0.03);
  EXPECT_GT(arch.x - arch.y, shadow.x - shadow.y + 0.02) << "pink";
  const SkyColour colour(-3.0 * kDegree, 1.0);
  EXPECT_LT(colour.Get(1.0 * kDegree, kPi).shade, 0.6);
  EXPECT_GT(colour.Get(10.7 * kDegree, 166.0 * kDegree).shade, 1.05);
  EXPECT_NEAR(colour.Get(60.0 * kDegree, 70.0 * kDegree).shade, 1.0, 0.05);
}

TEST(SkyColour, TotalEclipseHasSunsetAllAround) {
  const SkyColour total(30.0 * kDegree, 1e-4), day(30.0 * kDegree, 1.0);
  for (const double from : {40.0, 90.0, 140.0}) {
    EXPECT_GT(total.Get(0.0, from * kDegree).colour.x, 0.40);
    EXPECT_LT(day.Get(0.0, from * kDegree).colour.x, 0.36);
    EXPECT_GT(total.Get(0.0, from * kDegree).shade, 3.0);
    EXPECT_EQ(day.Get(60.0 * kDegree, from * kDegree).shade, 1.0);
  }
}

TEST(SkyColour, JumpsNowhereAndStaysAColour) {
  constexpr double kStep = 0.05;  // degrees
  for (double sun = -25.0; sun < 89.0; sun += 0.4) {
    for (const double azimuth : {0.0, 70.0, 180.0}) {
      for (double altitude = 0.0; altitude < 90.0; altitude += 4.5) {
        const Chromaticity here = ColourAt(sun, altitude, azimuth);
        ASSERT_TRUE(here.x > 0.15 && here.x < 0.6 && here.y > 0.15 && here.y < 0.5) << sun << " " << altitude;
        EXPECT_LT(Apart(here, ColourAt(sun + kStep, altitude, azimuth)), 0.003) << sun << " " << altitude;
        EXPECT_LT(Apart(here, ColourAt(sun, altitude + kStep, azimuth)), 0.006) << sun << " " << altitude;
        EXPECT_LT(Apart(here, ColourAt(sun, altitude, azimuth + kStep)), 0.003) << sun << " " << altitude;
      }
    }
  }
}

TEST(SkyColour, HasAnAnswerForEveryNumber) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double bad : {std::numeric_limits<double>::quiet_NaN(), infinity, -infinity, 1e300}) {
    for (const SkyTint& tint : {SkyColour(bad, 1.0).Get(0.5, 0.5), SkyColour(0.1, bad).Get(0.5, 0.5),
                                SkyColour(0.1, 1.0).Get(bad, 0.5), SkyColour(0.1, 1.0).Get(0.5, bad)}) {
      EXPECT_TRUE(std::isfinite(tint.colour.x) && std::isfinite(tint.colour.y) && std::isfinite(tint.shade));
    }
  }
}
