// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/libration.h"

#include <gtest/gtest.h>

#include <cmath>

#include "astro/physical_ephemeris.h"
#include "astro/solar_system.h"
#include "tests/astro/helpers/measure.h"
#include "tests/astro/helpers/sky_place.h"
#include "tests/astro/helpers/tsv.h"

namespace {

using astro::FindLibration;
using astro::Libration;
using astro_test::kDegree;
using astro_test::kTurn;
using astro_test::Largest;
using astro_test::Moon;

Libration LibrationAt(double julianDateTT) {
  CQXSolSys model;
  model.SetMoment(julianDateTT, 60.0);
  ObservedBody seen;
  EXPECT_TRUE(model.Observe(Moon(), nullptr, seen));
  const auto found = FindLibration(seen, julianDateTT);
  EXPECT_TRUE(found.has_value());
  return found.value_or(Libration());
}

}  // namespace

// DE403's principal axes of the Moon against the mean direction to the Earth and the mean axis, arc seconds:
// the report of the IAU Working Group on Cartographic Coordinates of 2000 (Seidelmann et al. 2002).
constexpr double kAboutZ = 63.8986 * astro_test::kArcSecond, kAboutY = 79.0768 * astro_test::kArcSecond;

// Meeus, examples 53.a and 53.b: 1992 April 12, 0h TD. The two decimals that he gives are half of the
// tolerance; his physical libration is that of Eckhardt 1981, with latitudes from the principal axis.
TEST(Libration, MeeusExample) {
  const Libration moon = LibrationAt(2448724.5);
  EXPECT_NEAR(moon.opticalLongitude / kDegree, -1.206, 0.002);
  EXPECT_NEAR(moon.opticalLatitude / kDegree, 4.194, 0.002);
  EXPECT_NEAR(moon.physicalLongitude / kDegree, -0.025, 0.005);
  EXPECT_NEAR((moon.physicalLatitude + kAboutY) / kDegree, 0.006, 0.005);
  EXPECT_NEAR(moon.longitude / kDegree, -1.23, 0.01);
  EXPECT_NEAR((moon.latitude + kAboutY) / kDegree, 4.20, 0.01);
  EXPECT_NEAR(moon.colongitude / kDegree, 22.11, 0.01);
  EXPECT_NEAR(moon.sunLatitude / kDegree, 1.46, 0.01);
}

TEST(Libration, PoleAngleInMeeusExample) {
  CQXSolSys model;
  model.SetMoment(2448724.5, 59.0);
  ObservedBody seen;
  ASSERT_TRUE(model.Observe(Moon(), nullptr, seen));
  const auto disc = astro::FindPhysicalEphemeris(Moon(), seen, 2448724.5);
  ASSERT_TRUE(disc);
  EXPECT_NEAR(disc->poleAngle / kDegree, 15.08, 0.01);
}

// data/libration.tsv: PyEphem 4.1.4, whose libration is a series that was fitted to the principal axes of
// DE404, which are those of DE403. Turned by small angles to the mean directions.
TEST(Libration, AgreesWithAnotherLibrary) {
  Largest longitude("libration in longitude", "degree"), latitude("libration in latitude", "degree");
  for (const auto& row : astro_test::ReadTable(ASTRO_TEST_DATA "libration.tsv")) {
    const Libration moon = LibrationAt(row[0]);
    const double lon = row[1] * kDegree, lat = row[2] * kDegree;
    const double meanLon = lon + kAboutZ + kAboutY * std::tan(lat) * std::sin(lon);
    const double meanLat = lat - kAboutY * std::cos(lon);
    longitude.Note((moon.longitude - meanLon) / kDegree, row[0]);
    latitude.Note((moon.latitude - meanLat) / kDegree, row[0]);
  }
  longitude.Expect(0.01);
  latitude.Expect(0.01);
}

// What a place on the Earth sees differs by up to the Moon's parallax, a degree.
TEST(Libration, APlaceOnTheEarthSeesMoreOfItsOwnSide) {
  const double date = 2448724.5;
  CQXSolSys model;
  model.SetMoment(date, 59.0);
  ObservedBody centre, north;
  ASSERT_TRUE(model.Observe(Moon(), nullptr, centre));
  model.SetObserverOnEarth(0.0, 80.0 * kDegree, 0.0);
  ASSERT_TRUE(model.Observe(Moon(), nullptr, north));
  const double more = FindLibration(north, date)->latitude - FindLibration(centre, date)->latitude;
  EXPECT_GT(more, 0.3 * kDegree);
  EXPECT_LT(more, 1.1 * kDegree);
}

TEST(Libration, NothingWithoutADistance) { EXPECT_FALSE(FindLibration(ObservedBody(), 2451545.0)); }
