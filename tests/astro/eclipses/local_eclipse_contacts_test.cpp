// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// Contacts of solar eclipses at places, from the polynomial Besselian elements that NASA publishes (Espenak:
// from VSOP87 and ELP 2000-82), by the formulas of Meeus, Elements of Solar Eclipses (1989). Dynamical time
// on both sides, and the same delta T for the turn of the Earth.
#include <gtest/gtest.h>

#include <cmath>

#include "astro/julian_date.h"
#include "astro/rise_set.h"
#include "astro/solar_eclipses.h"
#include "astro/vectors.h"
#include "tests/astro/helpers/measure.h"
#include "tests/astro/helpers/midnight.h"
#include "tests/astro/helpers/sky_place.h"

using namespace astro;
using astro_test::At;
using astro_test::Midnight;

namespace {

// Powers of the hours from a whole hour of dynamical time; degrees, equatorial radii.
struct PublishedElements {
  CalendarDate origin;
  double x[4], y[4], d[3], mu[2], l1[3], l2[3], tanF1, tanF2;
};

const PublishedElements k2017 = {{2017, 8, 21, 18, 0, 0.0},
                                 {-0.1295710, 0.5406426, -0.0000294, -0.0000081},
                                 {0.4854160, -0.1416400, -0.0000905, 0.0000020},
                                 {11.8669596, -0.0136220, -0.0000020},
                                 {89.2454300, 15.0039368},
                                 {0.5420930, 0.0001241, -0.0000118},
                                 {-0.0040250, 0.0001234, -0.0000117},
                                 0.0046222,
                                 0.0045992};
const PublishedElements k2024 = {{2024, 4, 8, 18, 0, 0.0},
                                 {-0.3182440, 0.5117116, 0.0000326, -0.0000084},
                                 {0.2197640, 0.2709589, -0.0000595, -0.0000047},
                                 {7.5862002, 0.0148440, -0.0000020},
                                 {89.5912170, 15.0040817},
                                 {0.5358140, 0.0000618, -0.0000128},
                                 {-0.0102720, 0.0000615, -0.0000127},
                                 0.0046683,
                                 0.0046450};

template <std::size_t N>
double Value(const double (&powers)[N], double t) {
  double value = 0.0;
  for (std::size_t i = N; i-- > 0;) value = value * t + powers[i];
  return value;
}

// Meeus' formulas for a place at sea level.
struct Contact {
  double apart, penumbra, umbra;
};

Contact ContactAt(const PublishedElements& elements, const EarthPlace& place, double deltaT, double t) {
  const double reduced = std::atan(0.99664719 * std::tan(place.lat));
  const double sine = 0.99664719 * std::sin(reduced), cosine = std::cos(reduced);
  const double d = Value(elements.d, t) * astro_test::kDegree;
  const double h = (Value(elements.mu, t) - 0.00417807 * deltaT) * astro_test::kDegree + place.lon;
  const double xi = cosine * std::sin(h);
  const double eta = sine * std::cos(d) - cosine * std::cos(h) * std::sin(d);
  const double zeta = sine * std::sin(d) + cosine * std::cos(h) * std::cos(d);
  return {std::hypot(Value(elements.x, t) - xi, Value(elements.y, t) - eta),
          Value(elements.l1, t) - zeta * elements.tanF1, Value(elements.l2, t) - zeta * elements.tanF2};
}

// The hour of a contact, by halving between two hours.
template <class Outside>
double Halve(Outside outside, double inside, double there) {
  for (int i = 0; i < 50; ++i) {
    const double middle = 0.5 * (inside + there);
    (outside(middle) < 0.0 ? inside : there) = middle;
  }
  return inside;
}

void Compare(const PublishedElements& elements, const EarthPlace& place, bool isTotal,
             astro_test::Largest& difference) {
  int day = 0;
  double fraction = 0.0;
  DJ(elements.origin, day, fraction);
  const auto eclipse = ComputeSolarEclipse(MakeMomentTT(day + fraction));
  ASSERT_TRUE(eclipse);
  const auto local = ComputeLocalSolarEclipse(*eclipse, place);
  ASSERT_TRUE(local);
  const double deltaT = eclipse->greatest.deltaT;
  const auto hours = [&](const EclipseContact& contact) {
    return (contact.moment.julianDateTT - (day + fraction)) * 24.0;
  };
  const auto penumbra = [&](double t) {
    const Contact contact = ContactAt(elements, place, deltaT, t);
    return contact.apart - contact.penumbra;
  };
  const auto umbra = [&](double t) {
    const Contact contact = ContactAt(elements, place, deltaT, t);
    return contact.apart - std::fabs(contact.umbra);
  };
  const double maximum = hours(local->maximum);
  const auto note = [&](double found, double expected) {
    difference.Note((found - expected) * 3600.0, found);
  };
  note(hours(local->first), Halve(penumbra, maximum, maximum - 2.5));
  note(hours(local->last), Halve(penumbra, maximum, maximum + 2.5));
  EXPECT_EQ(local->kind == SolarEclipse::kTotal, isTotal);
  if (!isTotal) return;
  ASSERT_TRUE(local->second && local->third);
  note(hours(*local->second), Halve(umbra, maximum, maximum - 0.5));
  note(hours(*local->third), Halve(umbra, maximum, maximum + 0.5));
}

}  // namespace

TEST(LocalEclipseContacts, AreThoseOfThePublishedElements) {
  astro_test::Largest difference("contacts of solar eclipses at places against published elements", "s");
  Compare(k2017, At(44.94, -123.03), true, difference);   // Salem
  Compare(k2017, At(37.73, -89.22), true, difference);    // Carbondale
  Compare(k2017, At(40.71, -74.01), false, difference);   // New York
  Compare(k2024, At(23.20, -106.42), true, difference);   // Mazatlan
  Compare(k2024, At(32.78, -96.80), true, difference);    // Dallas
  Compare(k2024, At(44.48, -73.21), true, difference);    // Burlington
  Compare(k2024, At(47.61, -122.33), false, difference);  // Seattle
  difference.Expect(5.0);
}

// Dallas, 32.78 north, 96.80 west, 2024 April 8: total from 18:40:43 to 18:44:34 UT (Espenak, NASA; a delta T
// of 69 s, which is that of the day).
TEST(LocalEclipseContacts, TotalityInDallas) {
  const auto eclipse = ComputeSolarEclipse(Midnight(2024, 4, 8));
  ASSERT_TRUE(eclipse);
  EXPECT_NEAR(eclipse->greatest.deltaT, 69.2, 0.2);
  const auto local = ComputeLocalSolarEclipse(*eclipse, At(32.78, -96.80, 130.0));
  ASSERT_TRUE(local && local->second && local->third);
  const auto seconds = [](const EclipseContact& contact) {
    return astro_test::DayFraction(contact.moment) * kSecondsPerDay;
  };
  EXPECT_NEAR(seconds(*local->second), 18 * 3600 + 40 * 60 + 43, 5.0);
  EXPECT_NEAR(seconds(*local->third), 18 * 3600 + 44 * 60 + 34, 5.0);
  EXPECT_TRUE(local->second->isVisible);
  EXPECT_NEAR(local->maximum.sunAltitude / kRadiansPerDegree, 64.0, 1.0);
  EXPECT_NEAR(local->magnitude, 1.056, 0.002);
}

// The angle at one point of a sphere from its north (or zenith) to another point, by longitude and latitude.
double AngleAt(double longitude, double latitude, double toLongitude, double toLatitude) {
  const double way = toLongitude - longitude;
  return std::atan2(
      std::sin(way) * std::cos(toLatitude),
      std::cos(latitude) * std::sin(toLatitude) - std::sin(latitude) * std::cos(toLatitude) * std::cos(way));
}

// The same moments by the discs that the model shows from the place, whose radii are others by 0.4 arc
// second: how far their edges are apart, and where on the Sun the Moon stands, from the north and from the
// zenith.
TEST(LocalEclipseContacts, AnglesAreThoseOfTheDiscsThatAreSeen) {
  const EarthPlace dallas = At(32.78, -96.80);
  const auto eclipse = ComputeSolarEclipse(Midnight(2024, 4, 8));
  ASSERT_TRUE(eclipse);
  const auto local = ComputeLocalSolarEclipse(*eclipse, dallas);
  ASSERT_TRUE(local && local->second && local->third);
  const struct {
    EclipseContact contact;
    double sign;  // of the Moon's radius in the distance of the centres
  } contacts[] = {{local->first, 1.0}, {*local->second, -1.0}, {*local->third, -1.0}, {local->last, 1.0}};
  CQXSolSys model;
  for (const auto& [contact, sign] : contacts) {
    ObservedBody sun, moon;
    SetUpModel(contact.moment, dallas, model);
    ASSERT_TRUE(model.Observe(kSun, nullptr, sun) && model.Observe(kMoon, nullptr, moon));
    const double apart = VectorsAngle(sun.apparent, moon.apparent);
    EXPECT_NEAR(apart, std::fabs(sun.angularRadius + sign * moon.angularRadius), astro_test::kArcSecond);
    // In totality the centres are 30 arc seconds apart, the point of contact is on the other side of the Sun.
    const double tolerance = sign > 0.0 ? 0.05 : 1.0, turned = sign > 0.0 ? 0.0 : kPi;
    const auto sunPlace = astro_test::ApparentPlace(sun, contact.moment.julianDateTT);
    const auto moonPlace = astro_test::ApparentPlace(moon, contact.moment.julianDateTT);
    const double position = AngleAt(sunPlace.ra, sunPlace.dec, moonPlace.ra, moonPlace.dec);
    astro_test::ExpectDegrees(contact.positionAngle - turned, position / astro_test::kDegree, tolerance);
    double axes[9];
    HorizonAxes(contact.moment, dallas, axes);
    const HorizonPlace sunStands = MakeHorizonPlace(axes, sun.apparent, 0.0);
    const HorizonPlace moonStands = MakeHorizonPlace(axes, moon.apparent, 0.0);
    // Azimuths grow the other way round than position angles do.
    const double zenith =
        AngleAt(-sunStands.azimuth, sunStands.altitude, -moonStands.azimuth, moonStands.altitude);
    astro_test::ExpectDegrees(contact.zenithAngle - turned, zenith / astro_test::kDegree, tolerance);
    EXPECT_NEAR(contact.sunAltitude, sunStands.altitude, 1.0 * astro_test::kArcSecond);
    astro_test::ExpectDegrees(contact.sunAzimuth, sunStands.azimuth / astro_test::kDegree, 0.001);
  }
}
