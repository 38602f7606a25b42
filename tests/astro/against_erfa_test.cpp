// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Every function that has a counterpart in liberfa, against it.
#include <erfa.h>
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "astro/astro.h"
#include "companions/astro/earth/nutation.h"
#include "helpers/measure.h"

using astro_test::JulianDateOfYear;
using astro_test::kArcSecond;
using astro_test::kSecondOfTime;
using astro_test::kTurn;
using astro_test::Largest;

namespace {

constexpr double kLightPerDay = 173.144632674;  // au
constexpr int kWgs84 = 1;                       // eraGd2gc: number of the ellipsoid
constexpr double kStep = 9.13;                  // days: no multiple of a period in the series

// The angle between two orientations, radians, for small angles.
double AngleBetween(const double m[9], double erfa[3][3]) {
  double sum = 0.0;
  for (int i = 0; i < 9; ++i) sum += std::pow(m[i] - erfa[i / 3][i % 3], 2);
  return std::sqrt(sum / 2.0);
}

void CompareMatrices(Largest& difference, double firstYear, double lastYear) {
  for (double date = JulianDateOfYear(firstYear); date < JulianDateOfYear(lastYear); date += kStep) {
    double m[9], erfa[3][3];
    PrecessionNutationMatrix(date, m);
    eraPnm06a(date, 0.0, erfa);
    difference.Note(AngleBetween(m, erfa) / kArcSecond, date);
  }
}

// Against `erfa`, which takes UT1 and TT as day and fraction each; some 8000 dates of every hour.
template <class Erfa>
void CompareSiderealTimes(Largest& difference, double firstYear, double lastYear, Erfa erfa) {
  const int step = static_cast<int>((lastYear - firstYear) / 200.0 * 9.0);
  int day = static_cast<int>(JulianDateOfYear(firstYear));
  for (double fraction = -0.5; day < JulianDateOfYear(lastYear);
       day += step, fraction = std::remainder(fraction + 0.19, 1)) {
    const double deltaT = ET_UT::Get(day, fraction);
    const double expected = erfa(day, fraction, day, fraction + deltaT / 86400.0);
    difference.Note(
        std::remainder(ApparentSiderealTime(day, fraction, deltaT) - expected, kTurn) / kSecondOfTime, day);
  }
}

void UnitVector(std::mt19937& random, double v[3]) {
  std::normal_distribution<double> normal;
  for (int i = 0; i < 3; ++i) v[i] = normal(random);
  const double length = Vmod(v, 3);
  for (int i = 0; i < 3; ++i) v[i] /= length;
}

}  // namespace

TEST(AgainstErfa, NutationIsTheAbridgedSeries) {
  Largest difference("nutation against eraNut00b, 1600 to 2400", "arc second");
  for (double date = JulianDateOfYear(1600); date < JulianDateOfYear(2400); date += kStep) {
    double longitude, obliquity;
    eraNut00b(date, 0.0, &longitude, &obliquity);
    const astro_internal::Nutation nutation = astro_internal::NutationAt((date - 2451545.0) / 36525.0);
    difference.Note((nutation.longitude - longitude) / kArcSecond, date);
    difference.Note((nutation.obliquity - obliquity) / kArcSecond, date);
  }
  difference.Expect(1e-9);
}

TEST(AgainstErfa, PrecessionAndNutationFrom1900To2100) {
  Largest difference("precession and nutation against eraPnm06a, 1900 to 2100", "arc second");
  CompareMatrices(difference, 1900, 2100);
  difference.Expect(0.003);
}

TEST(AgainstErfa, PrecessionAndNutationFrom1700To2300) {
  Largest difference("precession and nutation against eraPnm06a, 1700 to 2300", "arc second");
  CompareMatrices(difference, 1700, 2300);
  difference.Expect(0.01);
}

// What the header says of far-away years: the long-term precession of Vondrak, Capitaine & Wallace 2011, with
// the full nutation, against the polynomials.
TEST(AgainstErfa, LongRangeDriftIsAsTheHeaderSays) {
  const struct {
    double year, arcSeconds;
  } kDrift[] = {{-5000, 90}, {-3000, 20}, {0, 1}, {5000, 5}, {10000, 250}};
  for (const auto& row : kDrift) {
    const double date = JulianDateOfYear(row.year);
    double m[9], precession[3][3], nutation[3][3], longTerm[3][3], longitude, obliquity;
    PrecessionNutationMatrix(date, m);
    eraLtpb(row.year, precession);
    eraNut06a(date, 0.0, &longitude, &obliquity);
    eraNumat(eraObl06(date, 0.0), longitude, obliquity, nutation);
    eraRxr(nutation, precession, longTerm);
    Largest drift("against the long-term precession", "arc second");
    drift.Note(AngleBetween(m, longTerm) / kArcSecond, row.year);
    drift.Expect(row.arcSeconds);
  }
}

// The mean ecliptic of date, turned by the full nutation in longitude.
TEST(AgainstErfa, TrueEclipticOfDate) {
  Largest difference("ecliptic of date against eraEcm06 and eraNut06a, 1900 to 2100", "arc second");
  for (double year = 1900; year <= 2100; year += 1.7) {
    const double date = JulianDateOfYear(year);
    double m[9], expected[3][3], longitude, obliquity;
    TrueEclipticMatrix(date, m);
    eraEcm06(date, 0.0, expected);
    eraNut06a(date, 0.0, &longitude, &obliquity);
    eraRz(-longitude, expected);
    difference.Note(AngleBetween(m, expected) / kArcSecond, year);
  }
  difference.Expect(0.003);
}

TEST(AgainstErfa, MeanObliquity) {
  Largest difference("mean obliquity against eraObl06, -4800 to 9999", "arc second");
  for (double year = -4800; year < 9999; year += 3.7) {
    const double date = JulianDateOfYear(year);
    difference.Note((MeanObliquity(date) - eraObl06(date, 0.0)) / kArcSecond, year);
  }
  difference.Expect(1e-9);
}

TEST(AgainstErfa, ApparentSiderealTime) {
  Largest difference("sidereal time against eraGst06a, 1900 to 2100", "second of time");
  CompareSiderealTimes(difference, 1900, 2100, eraGst06a);
  difference.Expect(0.0002);
}

TEST(AgainstErfa, SiderealTimeFrom1700To2300) {
  Largest difference("sidereal time against eraGst06a, 1700 to 2300", "second of time");
  CompareSiderealTimes(difference, 1700, 2300, eraGst06a);
  difference.Expect(0.0005);
}

// Most of it is between the models: eraGst00a and eraGst06a are 0.0004 apart.
TEST(AgainstErfa, SiderealTimeOfTheModelOf2000) {
  Largest difference("sidereal time against eraGst00a, 1900 to 2100", "second of time");
  CompareSiderealTimes(difference, 1900, 2100, eraGst00a);
  difference.Expect(0.0005);
}

TEST(AgainstErfa, SiderealTimeOfTheModelOf1994) {
  Largest difference("sidereal time against eraGst94, 1900 to 2100", "second of time");
  CompareSiderealTimes(difference, 1900, 2100,
                       [](double day, double fraction, double, double) { return eraGst94(day, fraction); });
  difference.Expect(0.02);
}

// The mean sidereal time and the equation of the equinoxes. eraGst06a is no oracle for such times: it goes by
// the place of the celestial intermediate origin, whose series holds while the pole is near that of 2000, and
// is 44 seconds off in -3000.
TEST(AgainstErfa, SiderealTimeFromMinus3000To3000) {
  Largest difference("sidereal time against eraGmst06 and the full nutation, -3000 to 3000",
                     "second of time");
  CompareSiderealTimes(
      difference, -3000, 3000, [](double day, double fraction, double dayTT, double fractionTT) {
        double longitude, obliquity;
        eraNut06a(dayTT, fractionTT, &longitude, &obliquity);
        return eraGmst06(day, fraction, dayTT, fractionTT) +
               longitude * std::cos(eraObl06(dayTT, fractionTT)) + eraEect00(dayTT, fractionTT);
      });
  difference.Expect(0.1);
}

// The nutation in both is that of 2000B: what remains is the terms left out of the equation of the equinoxes,
// whose amplitudes (IERS Conventions 2010, table 5.2e) add up to 41 microarcseconds, 2.7e-6 second of time.
TEST(AgainstErfa, SiderealTimeWithTheSameNutation) {
  Largest difference("sidereal time against eraGst06 of our matrix, 1900 to 2100", "second of time");
  for (int day = static_cast<int>(JulianDateOfYear(1900)); day < JulianDateOfYear(2100); day += 9) {
    double m[9], matrix[3][3];
    PrecessionNutationMatrix(day + 0.25, m);
    for (int i = 0; i < 9; ++i) matrix[i / 3][i % 3] = m[i];
    const double erfa = eraGst06(day, 0.25, day, 0.25, matrix);
    difference.Note(std::remainder(ApparentSiderealTime(day, 0.25, 0.0) - erfa, kTurn) / kSecondOfTime, day);
  }
  difference.Expect(3e-6);
}

TEST(AgainstErfa, VelocityOfTheEarth) {
  Largest difference("velocity of the Earth against eraEpv00, 1800 to 2200, as aberration", "arc second");
  for (double date = JulianDateOfYear(1800); date < JulianDateOfYear(2200); date += kStep) {
    double v[3], heliocentric[2][3], barycentric[2][3];
    EarthVelocity(date, v);
    eraEpv00(date, 0.0, heliocentric, barycentric);
    double apart[3];
    for (int i = 0; i < 3; ++i) apart[i] = v[i] - barycentric[1][i] / kLightPerDay;
    difference.Note(Vmod(apart, 3) / kArcSecond, date);
  }
  difference.Expect(0.001);
}

TEST(AgainstErfa, Aberration) {
  std::mt19937 random(7);
  Largest difference("aberration against eraAb", "radian");
  for (int i = 0; i < 2000; ++i) {
    double direction[3], velocity[3], apparent[3], erfa[3];
    UnitVector(random, direction);
    UnitVector(random, velocity);
    const double speed = i % 2 == 0 ? 1e-4 : 0.5;
    for (double& component : velocity) component *= speed;
    Aberration(direction, velocity, apparent);
    // The Sun at a great distance: the term for its gravity is not part of ours.
    eraAb(direction, velocity, 1e30, std::sqrt(1.0 - speed * speed), erfa);
    difference.Note(VectorsAngle(apparent, erfa), i);
  }
  difference.Expect(1e-15);
}

TEST(AgainstErfa, HorizonMatrix) {
  std::mt19937 random(8);
  std::uniform_real_distribution<double> angles(0.0, kTurn);
  std::uniform_real_distribution<double> latitudes(-kTurn / 4.0, kTurn / 4.0);
  Largest azimuths("azimuth against eraHd2ae, along the horizon", "radian");
  Largest altitudes("altitude against eraHd2ae", "radian");
  for (int i = 0; i < 5000; ++i) {
    const double siderealTime = angles(random), latitude = latitudes(random);
    const double rightAscension = angles(random), declination = latitudes(random);
    double m[9], v[3], lon, lat, azimuth, altitude;
    HorizonMatrix(siderealTime, latitude, m);
    sfp(1.0, rightAscension, declination, v);
    MV3prod(m, v, v);
    psf(v, 1.0, lon, lat);
    eraHd2ae(siderealTime - rightAscension, declination, latitude, &azimuth, &altitude);
    azimuths.Note(std::remainder(kTurn - lon - azimuth, kTurn) * std::cos(altitude), i);
    altitudes.Note((lat - altitude) * std::cos(altitude), i);
  }
  azimuths.Expect(2e-15);
  altitudes.Expect(2e-15);
}

TEST(AgainstErfa, GeodeticPlaces) {
  Largest difference("rectangular place against eraGd2gc", "metre");
  for (int lat = -90; lat <= 90; lat += 5) {
    for (int lon = -180; lon < 180; lon += 15) {
      for (const double height : {-100.0, 0.0, 8848.0, 4e5}) {
        double xyz[3], erfa[3];
        const double longitude = lon * astro_test::kDegree, latitude = lat * astro_test::kDegree;
        Plg2Plc(height, longitude, latitude, 6378137.0, 1.0 / 298.257223563, xyz);
        ASSERT_EQ(eraGd2gc(kWgs84, longitude, latitude, height, erfa), 0);
        for (int i = 0; i < 3; ++i) difference.Note(xyz[i] - erfa[i], lat);
      }
    }
  }
  difference.Expect(5e-9);
}

TEST(AgainstErfa, SphericalConversions) {
  std::mt19937 random(9);
  Largest rectangular("sfp against eraS2p", "");
  Largest longitudes("longitude of psf against eraC2s", "radian");
  Largest latitudes("latitude of psf against eraC2s, off the poles", "radian");
  for (int i = 0; i < 5000; ++i) {
    double v[3], lon, lat, erfaLon, erfaLat, mine[3], erfa[3];
    UnitVector(random, v);
    psf(v, 1.0, lon, lat);
    eraC2s(v, &erfaLon, &erfaLat);
    longitudes.Note(std::remainder(lon - erfaLon, kTurn), i);
    latitudes.Note((lat - erfaLat) * std::cos(lat), i);
    sfp(3.0, lon, lat, mine);
    eraS2p(lon, lat, 3.0, erfa);
    for (int axis = 0; axis < 3; ++axis) rectangular.Note(mine[axis] - erfa[axis], i);
  }
  longitudes.Expect(1e-15);
  latitudes.Expect(1e-15);
  rectangular.Expect(1e-15);
}

TEST(AgainstErfa, VectorsAndMatrices) {
  std::mt19937 random(10);
  std::normal_distribution<double> normal;
  Largest difference("products against eraRxp, eraTrxp, eraRxr, eraPxp, eraSepp", "");
  for (int i = 0; i < 1000; ++i) {
    double a[9], b[9], ra[3][3], rb[3][3], rr[3][3], v[3], r[3], e[3], product[9];
    for (int k = 0; k < 9; ++k) {
      a[k] = ra[k / 3][k % 3] = normal(random);
      b[k] = rb[k / 3][k % 3] = normal(random);
    }
    UnitVector(random, v);
    MV3prod(a, v, r);
    eraRxp(ra, v, e);
    for (int k = 0; k < 3; ++k) difference.Note(r[k] - e[k], i);
    V3Mprod(v, a, r);
    eraTrxp(ra, v, e);
    for (int k = 0; k < 3; ++k) difference.Note(r[k] - e[k], i);
    Vprod(a, v, r);
    eraPxp(a, v, e);
    for (int k = 0; k < 3; ++k) difference.Note(r[k] - e[k], i);
    M3prod(a, b, product);
    eraRxr(ra, rb, rr);
    for (int k = 0; k < 9; ++k) difference.Note(product[k] - rr[k / 3][k % 3], i);
    difference.Note(VectorsAngle(a, v) - eraSepp(a, v), i);
  }
  difference.Expect(5e-15);
}

TEST(AgainstErfa, AnglesSplitAlike) {
  std::mt19937 random(11);
  std::uniform_real_distribution<double> angles(0.0, kTurn);
  int different = 0;
  for (int i = 0; i < 200000; ++i) {
    const double angle = angles(random);
    char sign;
    int fields[4];
    eraA2af(2, angle, &sign, fields);
    const M_DMSTag degrees = Rad2GMS(angle, kAngleDegrees);
    if (degrees.degrees != fields[0] % 360 || degrees.minutes != fields[1] ||
        std::lround(degrees.seconds * 100.0f) != fields[2] * 100 + fields[3]) {
      ++different;
    }
    eraA2tf(2, angle, &sign, fields);
    const M_DMSTag hours = Rad2GMS(angle, kAngleHours);
    if (hours.degrees != fields[0] % 24 || hours.minutes != fields[1] ||
        std::lround(hours.seconds * 100.0f) != fields[2] * 100 + fields[3]) {
      ++different;
    }
  }
  EXPECT_EQ(different, 0);
}
