// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/horizon_frame.h"

#include <gtest/gtest.h>

#include <cmath>

#include "astro/delta_t.h"
#include "astro/earth_orientation.h"
#include "astro/solar_system.h"
#include "astro/vectors.h"
#include "helpers/midnight.h"

using namespace astro;
using astro_test::At;
using astro_test::Midnight;

TEST(HorizonFrame, MomentHasItsScales) {
  const SkyMoment moment = MakeMoment(2461041, 0.75);
  EXPECT_EQ(moment.day, 2461042);
  EXPECT_EQ(moment.fraction, -0.25);
  EXPECT_EQ(moment.deltaT, ET_UT::Get(2461042, -0.25));
  EXPECT_NEAR(moment.julianDateTT - (2461041.75 + moment.deltaT / 86400.0), 0.0, 1e-9);
  const SkyMoment later = Later(moment, 10.5);
  EXPECT_EQ(later.day, 2461052);
  EXPECT_EQ(later.fraction, 0.25);
}

// There and back, also where delta T is large and changes by half a second a day.
TEST(HorizonFrame, MomentOfDynamicalTimeIsTheSameMoment) {
  for (const double date : {kJ2000, 2461042.123, 2299160.5, 1000000.75, 2816000.0}) {
    const SkyMoment moment = MakeMomentTT(date);
    EXPECT_EQ(moment.julianDateTT, date);
    EXPECT_NEAR((moment.day - date) + (moment.fraction + moment.deltaT / 86400.0), 0.0, 1e-9) << date;
    EXPECT_NEAR(MakeMoment(moment.day, moment.fraction).julianDateTT, date, 1e-9);
  }
}

// The pole of date stands in the north as high as the latitude; the axes are right-handed and of length 1.
TEST(HorizonFrame, PoleStandsInTheNorthAtTheHeightOfTheLatitude) {
  const SkyMoment moment = Midnight(2026, 3, 20);
  const EarthPlace place = At(52.5, 13.4);
  double axes[9], orientation[9], pole[3], cross[3];
  HorizonAxes(moment, place, axes);
  PrecessionNutationMatrix(moment.julianDateTT, orientation);
  MV3prod(axes, orientation + 6, pole);
  EXPECT_NEAR(pole[0], std::cos(place.lat), 1e-15);
  EXPECT_NEAR(pole[1], 0.0, 1e-15);
  EXPECT_NEAR(pole[2], std::sin(place.lat), 1e-15);
  Vprod(axes, axes + 3, cross);
  for (int i = 0; i < 3; ++i) EXPECT_NEAR(cross[i], axes[6 + i], 1e-15);
}

// A body's direction from the surface and from the centre differ by the vector of the place.
TEST(HorizonFrame, PlaceVectorIsTheParallaxOfTheMoon) {
  const SkyMoment moment = Midnight(2026, 6, 21);
  const EarthPlace place = At(51.5, -0.125, 60.0);
  CQXSolSys surface, centre;
  SetUpModel(moment, place, surface);
  centre.SetMoment(moment.julianDateTT, moment.deltaT);
  ObservedBody near, far;
  ASSERT_TRUE(surface.Observe(kMoon, nullptr, near) && centre.Observe(kMoon, nullptr, far));
  double km[3];
  GetPlaceVector(moment, place, km);
  EXPECT_NEAR(Vmod(km, 3), 6365.1, 0.1);
  for (int i = 0; i < 3; ++i) {
    const double parallax = (far.astrometric[i] * far.distance - near.astrometric[i] * near.distance);
    EXPECT_NEAR(parallax * kKilometresPerAu, km[i], 0.05);  // the light takes 0.02 s less or more
  }
}

TEST(HorizonFrame, PlaceStandsBelowItsZenith) {
  const SkyMoment moment = Midnight(2026, 6, 21);
  const EarthPlace place = At(0.0, 30.0, 1000.0);
  double km[3], axes[9], seen[3];
  GetPlaceVector(moment, place, km);
  HorizonAxes(moment, place, axes);
  MV3prod(axes, km, seen);
  EXPECT_NEAR(seen[2], kEarthEquatorialRadius + 1.0, 1e-9);
  EXPECT_NEAR(seen[0], 0.0, 1e-9);
  EXPECT_NEAR(seen[1], 0.0, 1e-9);
}
