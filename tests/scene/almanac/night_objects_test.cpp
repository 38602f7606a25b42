// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/almanac/night_objects.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "astro/julian_date.h"
#include "astro/meteor_showers.h"
#include "scene/almanac/night_showers.h"
#include "scene/frame_helpers.h"

using namespace scene;

namespace {

const EarthPlace kBerlin = {13.4 * kRadiansPerDegree, 52.5 * kRadiansPerDegree, 0.0},
                 kSouth = {13.4 * kRadiansPerDegree, -70.0 * kRadiansPerDegree, 0.0};

NightPlan Plan(int year, int month, int day, const EarthPlace& place = kBerlin) {
  int number = 0;
  double fraction = 0.0;
  DJ({year, month, day, 12, 0, 0.0}, number, fraction);
  return *MakeNightPlan(MakeMoment(number, fraction), place);
}

class NightObjects : public testing::Test {
 protected:
  std::vector<std::string> FindLabels(const NightPlan& plan, double aperture, int most = 10) {
    std::vector<std::string> labels;
    for (const auto& object : Find(plan, aperture, most))
      labels.emplace_back(f.catalogs.deepsky[static_cast<std::size_t>(object.object.index)].label);
    return labels;
  }
  std::vector<NightObject> Find(const NightPlan& plan, double aperture, int most = 10) {
    return FindBestObjects(plan, kBerlin, f.catalogs, aperture, most);
  }
  NightObject Get(const NightPlan& plan, double aperture, const std::string& label) {
    for (const auto& object : Find(plan, aperture)) {
      if (f.catalogs.deepsky[static_cast<std::size_t>(object.object.index)].label == label) return object;
    }
    ADD_FAILURE() << label << " is not there";
    return {};
  }

  host_test::FrameFixture f;
};

using Labels = std::vector<std::string>;

}  // namespace

// The Moon is new on 18 January 2026; the Pleiades outshine the others.
TEST_F(NightObjects, BestComesFirst) {
  const NightPlan plan = Plan(2026, 1, 18);
  EXPECT_EQ(FindLabels(plan, kEyeAperture), (Labels{"M45", "M31", "M42"}));
  EXPECT_EQ(FindLabels(plan, kEyeAperture, 1), (Labels{"M45"}));
  EXPECT_TRUE(FindLabels(plan, kEyeAperture, 0).empty());
  const auto found = Find(plan, kEyeAperture);
  EXPECT_TRUE(std::is_sorted(found.begin(), found.end(),
                             [](const auto& a, const auto& b) { return a.margin > b.margin; }));
}

// Sirius' neighbour M42 culminates at 32 degrees in Berlin, by its declination of -5.4 degrees.
TEST_F(NightObjects, IsBestWhereItStandsHighestInTheDark) {
  const NightObject orion = Get(Plan(2026, 1, 18), kEyeAperture, "M42");
  EXPECT_NEAR(orion.best.altitude / kRadiansPerDegree, 90.0 - 52.5 - 5.45, 0.3);
  EXPECT_NEAR(orion.best.azimuth / kRadiansPerDegree, 180.0, 4.0);
}

TEST_F(NightObjects, ApertureAddsMagnitudes) {
  const NightPlan plan = Plan(2026, 1, 18);
  const double eye = Get(plan, kEyeAperture, "M42").margin,
               larger = Get(plan, 2.0 * kEyeAperture, "M42").margin;
  EXPECT_NEAR(larger - eye, 5.0 * std::log10(2.0), 0.01);
  EXPECT_DOUBLE_EQ(Get(plan, 1.0, "M42").margin, eye);  // the eye opens no less
}

// 178 minutes of arc in a field of 50 degrees through 200 / 7 magnifications: 105 minutes.
TEST_F(NightObjects, WhatOverflowsTheFieldLoses) {
  const NightPlan plan = Plan(2026, 1, 18);
  const double gain = Get(plan, 200.0, "M31").margin - Get(plan, kEyeAperture, "M31").margin;
  EXPECT_NEAR(gain, 5.0 * std::log10(200.0 / 7.0) - 5.0 * std::log10(178.08 / 105.0), 0.03);
}

// Full Moon of 3 January 2026.
TEST_F(NightObjects, MoonlightTakesFaintSurfaces) {
  const NightObject dark = Get(Plan(2026, 1, 18), 50.0, "M31"), moonlit = Get(Plan(2026, 1, 3), 50.0, "M31");
  EXPECT_GT(dark.margin, moonlit.margin + 2.0);
  EXPECT_GT(moonlit.moonAltitude, 0.0);
  EXPECT_GT(moonlit.fromMoon, 0.3);
}

TEST_F(NightObjects, NothingWithoutANight) {
  const EarthPlace tromso = {18.95 * kRadiansPerDegree, 69.65 * kRadiansPerDegree, 0.0};
  const NightPlan plan = Plan(2026, 6, 21, tromso);
  EXPECT_TRUE(FindBestObjects(plan, tromso, f.catalogs, 50.0, 10).empty());
  EXPECT_TRUE(FindBestSmallBodies(plan, tromso, f.catalogs, 50.0, 10).empty());
  EXPECT_TRUE(FindNightShowers(plan, tromso).empty());
}

// What has not 10 degrees is left out: from 70 degrees south M31 and the Pleiades, at 41 and 24 degrees
// north, never rise that high.
TEST_F(NightObjects, NorthernOnesAreNotForTheFarSouth) {
  const NightPlan plan = Plan(2026, 5, 15, kSouth);
  for (const auto& object : FindBestObjects(plan, kSouth, f.catalogs, 200.0, 10)) {
    EXPECT_STREQ(f.catalogs.deepsky[static_cast<std::size_t>(object.object.index)].label, "M42");
  }
}

TEST_F(NightObjects, SmallBodiesAreRankedByTheirMagnitude) {
  const auto found = FindBestSmallBodies(Plan(2026, 1, 18), kBerlin, f.catalogs, 3000.0, 10);
  ASSERT_FALSE(found.empty());
  for (const auto& object : found) {
    const int kind = GetKind(object.object, f.catalogs);
    EXPECT_TRUE(kind == FourCC("astr") || kind == FourCC("comt"));
    EXPECT_GE(object.margin, 0.0);
    EXPECT_GE(object.best.altitude, 10.0 * kRadiansPerDegree);
  }
}

// Geminids: maximum at a solar longitude of 262.2 degrees, in the morning hours (UT) of 14 December 2026.
TEST(NightShowers, GeminidsLeadInTheirNights) {
  double before = 0.0;
  for (const int day : {9, 11, 13}) {
    const auto showers = FindNightShowers(Plan(2026, 12, day), kBerlin);
    ASSERT_FALSE(showers.empty());
    const NightShower& first = showers.front();
    EXPECT_STREQ(astro::GetVisualShowers()[static_cast<std::size_t>(first.shower)].code, "GEM");
    EXPECT_GT(first.rate, before);
    EXPECT_NEAR(first.toPeak / kRadiansPerDegree, 14.1 - day, 0.6);  // a degree a day, from midnight
    EXPECT_TRUE(std::is_sorted(showers.begin(), showers.end(),
                               [](const auto& a, const auto& b) { return a.rate > b.rate; }));
    before = first.rate;
  }
}

// ZHR 150, under a country sky, two thirds of a day off the maximum.
TEST(NightShowers, RateIsThatOfTheZenithLessHeightDistanceAndSky) {
  const auto showers = FindNightShowers(Plan(2026, 12, 13), kBerlin);
  const double slope = std::pow(10.0, -0.39 * std::fabs(showers[0].toPeak) / kRadiansPerDegree);
  const double most = 150.0 * slope * std::sin(showers[0].radiant.altitude);
  EXPECT_LE(showers[0].rate, 1.3 * most);
  EXPECT_GE(showers[0].rate, 0.5 * most);
}

TEST(NightShowers, RadiantsBelowTheHorizonShowNothing) {
  for (const auto& shower : FindNightShowers(Plan(2026, 8, 12, kSouth), kSouth)) {
    EXPECT_STRNE(astro::GetVisualShowers()[static_cast<std::size_t>(shower.shower)].code, "PER");
    EXPECT_GT(shower.radiant.altitude, 0.0);
  }
}
