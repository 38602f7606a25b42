// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The Moon at the ends of the years that its series covers, where the fourth powers of time in its arguments
// come to minutes of arc, against liberfa: moon98 is the table of Meeus, with the polynomials of Chapront.
// Its longitude is that of date; the place here is brought there with liberfa's long-term precession
// (Vondrak, Capitaine & Wallace 2011).
#include <erfa.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "astro/planets.h"
#include "helpers/measure.h"

using astro_test::JulianDateOfYear;
using astro_test::kArcSecond;
using astro_test::Largest;

namespace {

struct EclipticPlace {
  double longitude, latitude;
};

EclipticPlace PlaceOf(double v[3]) {
  EclipticPlace place;
  eraC2s(v, &place.longitude, &place.latitude);
  return place;
}

// moon98 turns what its table gives to the celestial frame with the angles of pfw06, far outside their years.
// Turned back with the same ones it is the table's own place again.
EclipticPlace FromTheTable(double date) {
  double moon[2][3], gamma, phi, psi, epsilon, turn[3][3], ofDate[3];
  eraMoon98(date, 0.0, moon);
  eraPfw06(date, 0.0, &gamma, &phi, &psi, &epsilon);
  eraIr(turn);
  eraRz(gamma, turn);
  eraRx(phi, turn);
  eraRz(-psi, turn);
  eraRxp(turn, moon[0], ofDate);
  return PlaceOf(ofDate);
}

EclipticPlace FromTheSeries(double date) {
  double position[3], toEcliptic[3][3], ofDate[3];
  EXPECT_TRUE(ComputeMoonState(date, position, nullptr));
  eraLtecm(eraEpj(date, 0.0), toEcliptic);
  eraRxp(toEcliptic, position, ofDate);
  return PlaceOf(ofDate);
}

}  // namespace

// The mean longitudes of the two theories are polynomials that were published apart, the series' with the
// later tidal acceleration: what one gives at a date, with the general precession of Capitaine et al.
// (2003), less what the other does there, worked out by hand. About it the places swing by what the short
// table leaves out and by what the arguments of their terms differ.
TEST(FarMoonAgainstErfa, DifferByWhatTheirMeanLongitudesDo) {
  constexpr double kStep = 13.7, kTenYears = 3652.5;
  const struct {
    int year;
    double expected, swing;  // arc seconds
  } cases[] = {{-2990, -160.0, 75.0}, {-2000, -92.0, 50.0}, {1900, 0.0, 20.0}, {2980, -7.0, 20.0}};
  for (const auto& c : cases) {
    const std::string years = ", ten years from " + std::to_string(c.year);
    Largest longitude(("longitude of the Moon of date against eraMoon98" + years).c_str(), "arc second");
    Largest latitude(("latitude of the Moon of date against eraMoon98" + years).c_str(), "arc second");
    double sum = 0.0;
    int count = 0;
    const double first = JulianDateOfYear(c.year);
    for (double date = first; date < first + kTenYears; date += kStep, ++count) {
      const EclipticPlace table = FromTheTable(date), series = FromTheSeries(date);
      const double difference =
          std::remainder(series.longitude - table.longitude, astro_test::kTurn) / kArcSecond;
      sum += difference;
      longitude.Note(difference - c.expected, date);
      latitude.Note((series.latitude - table.latitude) / kArcSecond, date);
    }
    EXPECT_NEAR(sum / count, c.expected, 25.0) << c.year;
    longitude.Expect(c.swing + 25.0);
    latitude.Expect(20.0);
  }
}
