// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The Sun at the ends of twilight, and the horizon of a place, against liberfa.
#include <erfa.h>
#include <erfam.h>
#include <gtest/gtest.h>

#include <cmath>

#include "astro/rise_set.h"
#include "astro/solar_system.h"
#include "astro/twilight.h"
#include "astro/vectors.h"
#include "helpers/measure.h"
#include "helpers/midnight.h"

using namespace astro;
using astro_test::At;
using astro_test::Largest;
using astro_test::Midnight;

namespace {

double SiderealTime(const SkyMoment& moment) {
  return eraGst06a(moment.day, moment.fraction, moment.julianDateTT, 0.0);
}

// The geometric altitude of the Sun's centre, from the surface: eraEpv00, light time, aberration of the
// Earth's orbit.
double AltitudeOfSun(const SkyMoment& moment, const EarthPlace& place) {
  const double date = moment.julianDateTT;
  double heliocentric[2][3], barycentric[2][3], earlierHelio[2][3], earlierBary[2][3];
  eraEpv00(date, 0.0, heliocentric, barycentric);
  const double distance = eraPm(heliocentric[0]);
  eraEpv00(date, -distance * ERFA_AULT / ERFA_DAYSEC, earlierHelio, earlierBary);
  double towards[3], velocity[3], apparent[3], toDate[3][3], ofDate[3], centre[3];
  for (int i = 0; i < 3; ++i) {
    towards[i] = (earlierBary[0][i] - earlierHelio[0][i] - barycentric[0][i]) / distance;
    velocity[i] = barycentric[1][i] * ERFA_AULT / ERFA_DAYSEC;
  }
  const double speed = eraPm(velocity);
  eraAb(towards, velocity, distance, std::sqrt(1.0 - speed * speed), apparent);
  eraPnm06a(date, 0.0, toDate);
  eraRxp(toDate, apparent, ofDate);
  eraGd2gc(ERFA_WGS84, place.lon + SiderealTime(moment), place.lat, place.height, centre);
  double seen[3];
  for (int i = 0; i < 3; ++i) seen[i] = ofDate[i] * distance * ERFA_DAU - centre[i];
  const double angle = SiderealTime(moment) + place.lon;
  double zenith[3] = {std::cos(place.lat) * std::cos(angle), std::cos(place.lat) * std::sin(angle),
                      std::sin(place.lat)};
  return std::asin(eraPdp(seen, zenith) / eraPm(seen));
}

}  // namespace

TEST(TwilightAgainstErfa, SunStandsAtTheAltitudeThatWasAskedFor) {
  Largest difference("altitude at dawn and dusk against liberfa, 1900 to 2100", "arc second");
  for (int year = 1900; year <= 2100; year += 23) {
    for (const EarthPlace& place : {At(51.4779, 0.0), At(-33.87, 151.21), At(-0.18, -78.47, 2850.0)}) {
      for (double altitude : {kCivilTwilight, kNauticalTwilight, kAstronomicalTwilight}) {
        const Twilight twilight = FindTwilight(place, Midnight(year, 1 + year % 12, 11), 1.0, altitude);
        for (const auto& moment : {twilight.dawn, twilight.dusk}) {
          if (moment)
            difference.Note((AltitudeOfSun(*moment, place) - altitude) / kRadiansPerArcsecond, year);
        }
      }
    }
  }
  difference.Expect(1.5);  // the moment itself is known to a tenth of a second, in which the Sun climbs 1.5
}

// Stars overhead at the place: the third row of the matrix is its zenith.
TEST(TwilightAgainstErfa, HorizonAxes) {
  Largest zenith("zenith of HorizonAxes against liberfa, 1900 to 2100", "arc second");
  Largest north("north point of HorizonAxes against liberfa, 1900 to 2100", "arc second");
  const EarthPlace place = At(52.5, 13.4);
  for (int year = 1900; year <= 2100; year += 7) {
    const SkyMoment moment = Later(Midnight(year, 1 + year % 12, 3), 0.37);
    double m[9], toDate[3][3], expected[3];
    HorizonAxes(moment, place, m);
    eraPnm06a(moment.julianDateTT, 0.0, toDate);
    const double angle = SiderealTime(moment) + place.lon;
    double up[3], level[3];
    eraS2c(angle, place.lat, up);
    eraS2c(angle, place.lat + kPi / 2.0, level);  // beyond the pole: the north point
    eraTrxp(toDate, up, expected);
    zenith.Note(VectorsAngle(m + 6, expected) / kRadiansPerArcsecond, year);
    eraTrxp(toDate, level, expected);
    north.Note(VectorsAngle(m, expected) / kRadiansPerArcsecond, year);
  }
  zenith.Expect(0.005);
  north.Expect(0.005);
}
