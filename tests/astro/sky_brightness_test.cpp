// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/sky_brightness.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace astro;

namespace {

constexpr double kDegree = kRadiansPerDegree;
constexpr double kNan = std::numeric_limits<double>::quiet_NaN(),
                 kInfinity = std::numeric_limits<double>::infinity();

SkyLights WithSun(double altitude) {
  SkyLights lights;
  lights.sunAltitude = altitude * kDegree;
  return lights;
}

SkyLights WithMoon(double altitude, double phaseAngle) {
  SkyLights lights;
  lights.moonAltitude = altitude * kDegree;
  lights.moonPhaseAngle = phaseAngle * kDegree;
  return lights;
}

double ZenithLuminance(const SkyLights& lights) {
  return SkyBrightness(lights).GetLuminance(0.5 * kPi, 0.5 * kPi - lights.sunAltitude,
                                            0.5 * kPi - lights.moonAltitude);
}

// Magnitudes per square arcsecond.
double Zenith(const SkyLights& lights) { return GetSurfaceMagnitude(ZenithLuminance(lights)); }

// What falls on level ground from the whole sky, lux: the sum over small patches.
double FindIlluminance(double sunAltitude) {
  constexpr int kRings = 90, kSectors = 180;
  const SkyBrightness sky(WithSun(sunAltitude));
  const double sun = sunAltitude * kDegree, ring = 0.5 * kPi / kRings, sector = 2.0 * kPi / kSectors;
  double sum = 0.0;
  for (int i = 0; i < kRings; ++i) {
    const double h = (i + 0.5) * ring;
    for (int k = 0; k < kSectors; ++k) {
      const double cosine = std::sin(h) * std::sin(sun) + std::cos(h) * std::cos(sun) * std::cos(k * sector);
      sum += sky.GetLuminance(h, std::acos(std::clamp(cosine, -1.0, 1.0)), kPi) * std::sin(h) * std::cos(h);
    }
  }
  return sum * ring * sector;
}

// The largest step of a function between that many points of a range.
template <class Function>
double FindLargestStep(const Function& at, double from, double to, int steps) {
  double most = 0.0, before = at(from);
  for (int i = 1; i <= steps; ++i) {
    const double now = at(from + (to - from) * i / steps);
    if (!std::isfinite(now)) return kInfinity;
    most = std::max(most, std::fabs(now - before));
    before = now;
  }
  return most;
}

// What is continuous has steps that shrink with the distance of the points.
template <class Function>
void ExpectContinuous(const Function& at, double from, double to) {
  const double coarse = FindLargestStep(at, from, to, 2000), fine = FindLargestStep(at, from, to, 20000);
  EXPECT_LT(fine, 0.2 * coarse + 1e-12);
}

}  // namespace

// Once the Sun lights the air above, each three degrees that it rises bring less than those before.
TEST(SkyBrightness, DawnSlowsDownAsTheSunRises) {
  double before = kInfinity;
  for (const double altitude : {-6.0, -3.0, 0.0, 3.0, 6.0}) {
    const double gain = Zenith(WithSun(altitude)) - Zenith(WithSun(altitude + 3.0));
    EXPECT_GT(gain, 0.3) << altitude;
    EXPECT_LT(gain, before) << altitude;
    before = gain;
  }
}

// 13.6 mag/arcsec2 are 0.39 cd/m2, 21.6 are 2.47e-4 (Garstang 1989, PASP 101, 306: 34.08 nL exp(20.7233 -
// 0.92104 V), and a nanolambert is 3.183e-6 cd/m2).
TEST(SkyBrightness, ConvertsMagnitudesToLuminance) {
  const auto garstang = [](double magnitude) {
    return 34.08 * std::exp(20.7233 - 0.92104 * magnitude) * 3.1831e-6;
  };
  for (const double magnitude : {3.0, 13.6, 21.6}) {
    EXPECT_NEAR(GetLuminance(magnitude) / garstang(magnitude), 1.0, 0.006) << magnitude;
    EXPECT_NEAR(GetSurfaceMagnitude(GetLuminance(magnitude)), magnitude, 1e-12);
  }
}

// Kasten & Young 1989, table II.
TEST(SkyBrightness, AirMassIsThatOfTheTable) {
  EXPECT_NEAR(GetAirMass(0.5 * kPi), 1.0, 0.0005);
  EXPECT_NEAR(GetAirMass(30.0 * kDegree), 1.9939, 0.001);
  EXPECT_NEAR(GetAirMass(10.0 * kDegree), 5.5841, 0.01);
  EXPECT_NEAR(GetAirMass(5.0 * kDegree), 10.3163, 0.02);
  EXPECT_NEAR(GetAirMass(1.0 * kDegree), 26.3079, 0.05);
  EXPECT_NEAR(GetAirMass(0.0), 37.9196, 0.05);
  EXPECT_EQ(GetAirMass(-0.3), GetAirMass(0.0));
}

TEST(SkyBrightness, DarkZenithIsAsDarkAsThePlace) {
  for (const double darkness : {18.0, 20.5, 21.8, 22.0}) {
    SkyLights lights;
    lights.darkness = darkness;
    EXPECT_NEAR(Zenith(lights), darkness, 0.001);
  }
}

// Patat et al. 2006, table 3: V = 11.84 + 1.518 (d - 5) - 0.057 (d - 5)^2 at the zenith over Paranal, 5 to 15
// degrees below the horizon, with a scatter of 0.18; a sky at sea level is 30 percent brighter. Their nights
// have 21.6.
TEST(SkyBrightness, ZenithInTwilightIsTheMeasuredOne) {
  for (int depth = 6; depth <= 15; ++depth) {
    SkyLights lights = WithSun(-depth);
    lights.darkness = 21.6;
    const double t = depth - 5.0, measured = 11.84 + 1.518 * t - 0.057 * t * t;
    EXPECT_NEAR(Zenith(lights), measured, 0.3) << depth;
  }
}

// Explanatory Supplement to the Astronomical Almanac 1992, section 9.33: log10 lux on level ground from the
// Sun and the sky, as a cubic in x = altitude / 90 degrees. The Sun's own share is small below the horizon.
TEST(SkyBrightness, IlluminanceOfTwilightIsTheAlmanacs) {
  const auto almanac = [](double h) {
    const double x = h / 90.0;
    const double log = h > -0.8   ? 2.88 + x * (22.26 + x * (-207.64 + x * 1034.30))
                       : h > -5.0 ? 2.88 + x * (21.81 + x * (-258.11 - x * 858.36))
                                  : 2.70 + x * (12.17 + x * (-431.69 - x * 1899.83));
    return std::pow(10.0, log);
  };
  for (const double h : {-0.5, -2.0, -4.0, -6.0, -8.0, -10.0}) {
    const double ratio = FindIlluminance(h) / almanac(h);
    EXPECT_GT(ratio, 0.5) << h << " " << ratio;
    EXPECT_LT(ratio, 2.0) << h << " " << ratio;
  }
}

// The sky alone gives 7000 to 20000 lux under a Sun 20 to 60 degrees high (CIE clear skies, Kittler 1985:
// zenith luminances of 2000 to 7000 cd/m2).
TEST(SkyBrightness, DaylightIsThatOfClearSkies) {
  EXPECT_GT(FindIlluminance(20.0), 5000.0);
  EXPECT_LT(FindIlluminance(60.0), 30000.0);
  EXPECT_GT(ZenithLuminance(WithSun(40.0)), 1000.0);
  EXPECT_LT(ZenithLuminance(WithSun(60.0)), 10000.0);
}

// Zenith luminance of clear skies, cd/m2: Preetham, Shirley & Smits 1999, appendix A.2, at turbidity 2.5,
// worked out by a program of its own. Both are models; a factor of 2 is what is promised by day.
TEST(SkyBrightness, ZenithByDayAgreesWithAnotherModel) {
  constexpr struct {
    double sun, luminance;
  } kModel[] = {{60.0, 8193.0}, {50.0, 6570.0}, {40.0, 5334.0},
                {30.0, 4324.0}, {20.0, 3447.0}, {10.0, 2646.0}};
  for (const auto& row : kModel) {
    const double ratio = ZenithLuminance(WithSun(row.sun)) / row.luminance;
    EXPECT_GT(ratio, 0.5) << row.sun << " " << ratio;
    EXPECT_LT(ratio, 2.0) << row.sun << " " << ratio;
  }
}

// Krisciunas & Schaefer 1991, equations 15, 20 and 21 worked through by hand for a place with k = 0.172 mag
// per air mass: full Moon at altitude 60, the zenith 30 degrees from it. I* = 10^(-0.4 * 3.84) = 0.02911;
// f(30) = 229087 * (1.06 + 0.75) + 10^5.4 = 665837 (+ 62e6 / 900 = 68889 in Schaefer's form); the Moon's
// light comes through 1.155 air masses with 0.8328 of it; scattered at the zenith 1 - 10^(-0.4 * 0.172) =
// 0.1465. Together 2609 nL, and 0.02911 * 0.1465 * 440000 * 0.1672 = 314 nL for what was scattered before:
// 2923 nL = 0.0093 cd/m2.
TEST(SkyBrightness, FullMoonBrightensTheZenithAsPublished) {
  SkyLights lights = WithMoon(60.0, 0.0);
  lights.extinction = 0.172;
  EXPECT_NEAR(SkyBrightness(lights).GetParts(0.5 * kPi, kPi, 30.0 * kDegree).scattered, 0.0093, 0.0003);
}

// A Moon 90 degrees old is 2.6 magnitudes fainter than a full one (0.026 * 90 + 4e-9 * 90^4), and so is its
// sky.
TEST(SkyBrightness, HalfMoonGivesATenth) {
  const auto scattered = [](double phase) {
    return SkyBrightness(WithMoon(45.0, phase)).GetParts(0.5 * kPi, kPi, 45.0 * kDegree).scattered;
  };
  EXPECT_NEAR(scattered(90.0) / scattered(0.0), std::pow(10.0, -0.4 * 2.6024), 1e-3);
  EXPECT_LT(scattered(170.0) / scattered(0.0), 2e-3);
}

TEST(SkyBrightness, EclipsesTakeTheirShare) {
  SkyLights lights = WithSun(40.0);
  const double day = ZenithLuminance(lights);
  lights.sunlight = 0.5;
  EXPECT_NEAR(ZenithLuminance(lights) / day, 0.5, 1e-6);
  lights.sunlight = 1.5e-4;  // total: as bright as in civil twilight
  EXPECT_GT(Zenith(lights), 12.0);
  EXPECT_LT(Zenith(lights), 14.5);
}

TEST(SkyBrightness, GrowsWithTheSunsAltitude) {
  double before = ZenithLuminance(WithSun(-90.0));
  for (int h = -89; h <= 85; ++h) {
    const double now = ZenithLuminance(WithSun(h));
    EXPECT_GE(now, before * (1.0 - 1e-12)) << h;
    before = now;
  }
}

TEST(SkyBrightness, IsBrighterTowardsTheSunAndTheHorizon) {
  for (const double h : {-9.0, -3.0, 20.0}) {
    const SkyBrightness sky(WithSun(h));
    for (int from = 10; from < 90; from += 5) {
      EXPECT_GT(sky.GetParts(0.3, from * kDegree, kPi).scattered,
                sky.GetParts(0.3, (from + 5) * kDegree, kPi).scattered);
      EXPECT_GT(sky.GetParts((90 - from) * kDegree, 1.5, kPi).scattered,
                sky.GetParts((95 - from) * kDegree, 1.5, kPi).scattered);
    }
  }
}

TEST(SkyBrightness, JumpsNowhere) {
  const auto log = [](const SkyLights& lights, double altitude, double fromSun, double fromMoon) {
    return std::log10(SkyBrightness(lights).GetLuminance(altitude, fromSun, fromMoon));
  };
  SkyLights moonlit = WithMoon(30.0, 40.0);
  ExpectContinuous([&](double h) { return log(WithSun(h), 0.7, 1.0, kPi); }, -90.0, 90.0);
  ExpectContinuous([&](double h) { return log(WithMoon(h, 20.0), 0.7, kPi, 1.0); }, -90.0, 90.0);
  ExpectContinuous([&](double a) { return log(WithMoon(30.0, a), 0.7, kPi, 1.0); }, 0.0, 180.0);
  ExpectContinuous([&](double h) { return log(WithSun(10.0), h, 1.0, kPi); }, -0.2, 0.5 * kPi);
  ExpectContinuous([&](double rho) { return log(WithSun(10.0), 0.4, rho, kPi); }, 0.0, kPi);
  ExpectContinuous([&](double rho) { return log(moonlit, 0.4, kPi, rho); }, 0.0, kPi);
  ExpectContinuous(
      [&](double part) {
        SkyLights l = WithSun(30.0);
        l.sunlight = part;
        return log(l, 0.4, 1.0, kPi);
      },
      1e-3, 1.0);
}

TEST(SkyBrightness, HasAnAnswerForEveryNumber) {
  for (const double bad : {kNan, kInfinity, -kInfinity, 1e300, -1e300}) {
    for (int field = 0; field < 7; ++field) {
      SkyLights lights = WithSun(5.0);
      double* const fields[] = {&lights.sunAltitude,    &lights.sunlight,  &lights.moonAltitude,
                                &lights.moonPhaseAngle, &lights.moonlight, &lights.extinction,
                                &lights.darkness};
      *fields[field] = bad;
      const double luminance = SkyBrightness(lights).GetLuminance(0.5, 0.5, 0.5);
      EXPECT_TRUE(std::isfinite(luminance) && luminance > 0.0) << field << " " << bad;
    }
    const SkyBrightness sky(WithSun(5.0));
    EXPECT_TRUE(std::isfinite(sky.GetLuminance(bad, 0.5, 0.5)));
    EXPECT_TRUE(std::isfinite(sky.GetLuminance(0.5, bad, 0.5)));
    EXPECT_TRUE(std::isfinite(sky.GetLuminance(0.5, 0.5, bad)));
    EXPECT_TRUE(std::isfinite(GetNakedEyeLimit(bad)));
    EXPECT_TRUE(std::isfinite(GetAirMass(bad)));
    EXPECT_TRUE(std::isfinite(GetLuminance(bad)));
    EXPECT_TRUE(std::isfinite(GetSurfaceMagnitude(bad)));
  }
}

// Dark skies show stars to 6.5 (Schaefer 1990, PASP 102, 212), suburban ones of 19 to about 5, a bright
// town's of 17.5 to 4; full daylight hides all but Venus, and that one barely.
TEST(NakedEyeLimit, IsTheUsualOne) {
  const auto limit = [](double magnitude) { return GetNakedEyeLimit(GetLuminance(magnitude)); };
  EXPECT_NEAR(limit(22.0), 6.6, 0.15);
  EXPECT_NEAR(limit(21.6), 6.5, 0.15);
  EXPECT_NEAR(limit(19.0), 4.9, 0.4);
  EXPECT_NEAR(limit(17.5), 3.9, 0.4);
  const double day = GetNakedEyeLimit(2500.0);
  EXPECT_GT(day, -4.4) << "Venus at its brightest";
  EXPECT_LT(day, -1.5) << "Sirius";
}

TEST(NakedEyeLimit, FallsWithoutJumps) {
  double before = GetNakedEyeLimit(0.0);
  for (double log = -9.0; log < 6.0; log += 0.001) {
    const double now = GetNakedEyeLimit(std::pow(10.0, log));
    EXPECT_LE(now, before);
    EXPECT_LT(before - now, 0.01);
    before = now;
  }
}

// The bounds of the classes as they are read from sky quality meters lie between neighbours.
TEST(SkyBrightnessOfSites, ClassesOfBortleGrowBrighter) {
  constexpr double kBounds[] = {21.99, 21.89, 21.69, 20.49, 19.50, 18.94, 18.38, 17.8};
  for (int bortle = 1; bortle < 9; ++bortle) {
    EXPECT_GE(astro::GetDarknessOfBortle(bortle), kBounds[bortle - 1]) << bortle;
    EXPECT_LE(astro::GetDarknessOfBortle(bortle + 1), kBounds[bortle - 1]) << bortle;
  }
  EXPECT_EQ(astro::GetDarknessOfBortle(0), astro::GetDarknessOfBortle(1));
  EXPECT_EQ(astro::GetDarknessOfBortle(99), astro::GetDarknessOfBortle(9));
}

TEST(SkyBrightnessOfSites, LimitOfTheEyeAndDarknessUndoEachOther) {
  for (const double limit : {2.0, 4.0, 5.5, 6.5}) {
    const double darkness = astro::GetDarknessOfLimit(limit);
    EXPECT_NEAR(astro::GetNakedEyeLimit(astro::GetLuminance(darkness)), limit, 1e-6) << limit;
  }
  EXPECT_NEAR(astro::GetDarknessOfLimit(-30.0), 10.0, 1e-6) << "the ends of the range";
  EXPECT_NEAR(astro::GetDarknessOfLimit(30.0), 23.0, 1e-6);
}
