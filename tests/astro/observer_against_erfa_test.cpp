// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Stars and the observer's place against liberfa.
#include <erfa.h>
#include <gtest/gtest.h>

#include <random>

#include "companions/astro/model/moment.h"
#include "helpers/sky_place.h"

using astro_test::JulianDateOfYear;
using astro_test::kArcSecond;
using astro_test::kTurn;
using astro_test::Largest;

namespace {

// Catalogue data of a star, in the units of liberfa: radians, radians a year of right ascension itself.
struct CatalogueStar {
  double ra, dec, pmRA, pmDec, parallax, radialVelocity;
};

std::vector<CatalogueStar> Stars() {
  std::vector<CatalogueStar> stars = {
      {1.767794352, -0.291751291, -0.54601 * kArcSecond / 0.9577, -1.22307 * kArcSecond, 0.37921,
       -5.5},  // Sirius
      {4.702464939, 0.0819, -0.79858 * kArcSecond / 0.9966, 10.32812 * kArcSecond, 0.54851,
       -110.5},  // Barnard
      {3.837972148, -1.061753, -3.6778 * kArcSecond / 0.4874, 0.48184 * kArcSecond, 0.7472,
       -22.4},  // alpha Cen
  };
  std::mt19937 random(20260101);
  std::uniform_real_distribution<double> one(-1.0, 1.0);
  for (int i = 0; i < 100; ++i) {
    stars.push_back({kTurn * (one(random) + 1.0) / 2.0, 1.5 * one(random), one(random) * kArcSecond,
                     one(random) * kArcSecond, (one(random) + 1.0) * 0.1, 100.0 * one(random)});
  }
  return stars;
}

StarRecord RecordOf(const CatalogueStar& star) {
  StarRecord record;
  record.ra = star.ra;
  record.dec = star.dec;
  record.properMotionRA = star.pmRA * std::cos(star.dec);
  record.properMotionDec = star.pmDec;
  record.parallax = star.parallax * kArcSecond;
  record.radialVelocity = static_cast<float>(star.radialVelocity);
  return record;
}

}  // namespace

// Proper motion, parallax, radial velocity, bending and aberration together, as the Earth's centre sees them.
TEST(ObserverAgainstErfa, ApparentPlacesOfStars) {
  Largest difference("stars against eraAtciq, 1900 to 2100", "arc second");
  for (const CatalogueStar& star : Stars()) {
    const StarRecord record = RecordOf(star);
    for (double date = JulianDateOfYear(1900); date < JulianDateOfYear(2100); date += 1234.5) {
      eraASTROM astrom;
      eraApcg13(date, 0.0, &astrom);
      double ra, dec, towards[3];
      eraAtciq(star.ra, star.dec, star.pmRA, star.pmDec, star.parallax,
               static_cast<double>(record.radialVelocity), &astrom, &ra, &dec);
      eraS2c(ra, dec, towards);
      CQXSolSys model;
      model.SetMoment(date, 69.0);
      ObservedBody seen;
      ASSERT_TRUE(model.Observe(SSO_ID(FourCC("star"), 1), &record, seen));
      if (seen.elongation < 0.1) continue;  // the two hold the bending behind the Sun differently
      difference.Note(VectorsAngle(seen.apparent, towards) / kArcSecond, date);
    }
  }
  difference.Expect(0.01);
}

// Position and velocity of a place on the Earth about its centre.
TEST(ObserverAgainstErfa, PlaceOnTheEarth) {
  Largest position("the observer against eraPvtob, 1900 to 2100", "m");
  Largest velocity("the observer's speed against eraPvtob, 1900 to 2100", "m/s");
  for (double date = JulianDateOfYear(1900); date < JulianDateOfYear(2100); date += 777.77) {
    const double lon = 2.1, lat = -0.7, height = 2500.0, deltaT = 69.0;
    const astro_internal::Moment moment = astro_internal::MomentAt(date, deltaT, {true, lon, lat, height});
    double pv[2][3], celestial[3][3], state[2][3];
    eraPvtob(lon, lat, height, 0.0, 0.0, 0.0, eraEra00(date, -deltaT / 86400.0), pv);
    eraC2i06a(date, 0.0, celestial);
    eraTrxpv(celestial, pv, state);
    double earthVelocity[3];
    EarthVelocity(date, earthVelocity);
    for (int i = 0; i < 3; ++i) {
      position.Note((moment.observer[i] - moment.earth[i]) * 149597870700.0 - state[0][i], date);
      velocity.Note((moment.observerVelocity[i] - earthVelocity[i]) * 299792458.0 - state[1][i], date);
    }
  }
  // 0.003 arc second of the nutation is 0.1 m, 0.0002 s of sidereal time 0.1 m, a date's digits 0.02 m.
  position.Expect(1.5);
  velocity.Expect(0.001);
}

TEST(ObserverAgainstErfa, MotionOfSunAndEarthAboutTheBarycentre) {
  Largest barycentre("barycentre against eraEpv00, 1900 to 2100", "au");
  Largest speed("speed about the barycentre against eraEpv00, 1900 to 2100", "m/s");
  for (double date = JulianDateOfYear(1900); date < JulianDateOfYear(2100); date += 777.77) {
    const astro_internal::Moment moment = astro_internal::MomentAt(date, 69.0, {});
    double heliocentric[2][3], barycentric[2][3];
    eraEpv00(date, 0.0, heliocentric, barycentric);
    for (int i = 0; i < 3; ++i) {
      barycentre.Note(moment.barycentre[i] - (heliocentric[0][i] - barycentric[0][i]), date);
      speed.Note((moment.observerVelocity[i] - barycentric[1][i] / astro::kLightAuPerDay) * 299792458.0,
                 date);
    }
  }
  barycentre.Expect(2e-5);
  speed.Expect(1.0);
}
