// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/configurations/sky_track.h"

#include <gtest/gtest.h>

#include <utility>
#include <variant>
#include <vector>

#include "astro/planet_events.h"
#include "astro/planets.h"
#include "astro/vectors.h"
#include "tests/astro/helpers/measure.h"
#include "tests/astro/helpers/sky_place.h"

using astro_internal::ModelObject;
using astro_internal::SkyTrack;
using astro_test::Largest;
using astro_test::Planet;

namespace {

std::vector<ModelObject> Everything() {
  std::vector<ModelObject> objects;
  const auto add = [&objects](const SSO_ID& id, const void* data) {
    ModelObject object;
    EXPECT_TRUE(astro_internal::MakeModelObject(id, data, object)) << id.number;
    objects.push_back(std::move(object));
  };
  for (const int number : {1, 2, 4, 5, 6, 7, 8, 9, 10}) add(Planet(number), nullptr);
  add(astro::kMoon, nullptr);
  for (const astro::SkyTarget& star : astro::GetEclipticStars()) add(star.id, star.star);
  return objects;
}

const void* RecordOf(const ModelObject& object) { return std::get_if<StarRecord>(&object.record); }

}  // namespace

// Against the model itself, which asks the series at every moment. The cubic between two days leaves most of
// Mercury at its perihelion: 0.3 au times the fourth power of 0.11 a day, over 384, which is 0.03 arc second
// from 0.7 au.
TEST(SkyTrack, SeesWhatTheModelSees) {
  Largest direction("quick places against the model", "arc second");
  Largest distance("their distances, of themselves", ""), magnitude("their magnitudes", "");
  SkyTrack track;
  CQXSolSys model;
  for (double date = 2415020.3; date < 2488000.0; date += 1234.567) {
    model.SetMoment(date, 60.0);
    for (const ModelObject& object : Everything()) {
      ObservedBody seen, expected;
      ASSERT_TRUE(track.Observe(object, date, seen));
      ASSERT_TRUE(model.Observe(object.id, RecordOf(object), expected));
      direction.Note(VectorsAngle(seen.apparent, expected.apparent) / astro_test::kArcSecond, date);
      if (expected.distance > 0.0) distance.Note(seen.distance / expected.distance - 1.0, date);
      if (!(object.id == astro::kMoon)) magnitude.Note(seen.magnitude - expected.magnitude, date);
      EXPECT_NEAR(seen.elongation, expected.elongation, 1e-6);
      EXPECT_NEAR(seen.angularRadius, expected.angularRadius, 1e-9);
    }
  }
  direction.Expect(0.04);
  distance.Expect(2e-7);
  magnitude.Expect(1e-5);
}

TEST(SkyTrack, SeesNothingOutsideTheRangesAndNotTheEarth) {
  SkyTrack track;
  ObservedBody seen;
  ModelObject earth, jupiter, pluto;
  ASSERT_TRUE(astro_internal::MakeModelObject(astro::kEarth, nullptr, earth));
  ASSERT_TRUE(astro_internal::MakeModelObject(Planet(5), nullptr, jupiter));
  ASSERT_TRUE(astro_internal::MakeModelObject(Planet(9), nullptr, pluto));
  EXPECT_FALSE(track.Observe(earth, 2451545.0, seen));
  EXPECT_FALSE(track.Observe(jupiter, 100000.0, seen));
  EXPECT_FALSE(track.Observe(pluto, 2200000.0, seen));
  EXPECT_EQ(seen.distance, 0.0);
  EXPECT_TRUE(track.Observe(jupiter, 2451545.0, seen));
}

// At the first date of the series the light left the Moon before it.
TEST(SkyTrack, TheMoonsLightMustLieWithinTheSeriesToo) {
  SkyTrack track;
  ModelObject moon;
  ASSERT_TRUE(astro_internal::MakeModelObject(astro::kMoon, nullptr, moon));
  ObservedBody seen;
  EXPECT_FALSE(track.Observe(moon, kFirstPlanetDate, seen));
  EXPECT_EQ(seen.distance, 0.0);
  EXPECT_TRUE(track.Observe(moon, kFirstPlanetDate + 0.1, seen));
}
