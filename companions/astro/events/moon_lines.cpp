// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/events/moon_lines.h"

#include <algorithm>
#include <cmath>

#include "astro/constants.h"
#include "astro/moons.h"
#include "astro/rotation.h"
#include "astro/vectors.h"

namespace astro_internal {

namespace {

using astro::Dot;

// Days that the light needs for what `v` reaches along the direction of `line`.
double DaysAlong(const double v[3], const double line[3]) {
  return Dot(v, line) / Vmod(line, 3) / astro::kLightAuPerDay;
}

}  // namespace

bool MakeSpheroid(const SSO_ID& planet, double date, double more, Spheroid& spheroid) {
  const auto rotation = astro::ComputeRotation(planet, date);
  const astro::BodyShape shape = astro::GetBodyShape(planet).value_or(astro::BodyShape());
  if (!rotation) return false;
  std::copy_n(rotation->toBody + 6, 3, spheroid.pole);
  spheroid.equatorial = shape.a / astro::kKilometresPerAu + more;
  spheroid.polar = shape.c / astro::kKilometresPerAu + more;
  return true;
}

void Stretch(const Spheroid& planet, double v[3]) {
  const double more = (planet.equatorial / planet.polar - 1.0) * Dot(v, planet.pole);
  for (int i = 0; i < 3; ++i) v[i] += more * planet.pole[i];
}

// Straight lines stay straight when the spheroid is stretched to a ball, and a plane that touches it goes on
// to touch it.
double Clearance(const MoonLine& line, const Spheroid& planet) {
  MoonLine ball = line;
  Stretch(planet, ball.planet);
  Stretch(planet, ball.moon);
  Stretch(planet, ball.other);
  const double length = Vmod(ball.moon, 3), along = Dot(ball.planet, ball.moon) / length;
  double point[3];  // of the line, from the ball's centre: the nearest one, or the first one on the ball
  for (int i = 0; i < 3; ++i) point[i] = along * ball.moon[i] / length - ball.planet[i];
  const double away = Vmod(point, 3), depth = planet.equatorial * planet.equatorial - away * away;
  const double clearance = away / planet.equatorial - 1.0;
  if (IsBehind(line)) return clearance;
  const double back = depth > 0.0 ? std::sqrt(depth) : 0.0;
  for (int i = 0; i < 3; ++i) point[i] -= back * ball.moon[i] / length;
  return std::max(clearance, -Dot(point, ball.other) / Vmod(point, 3) / Vmod(ball.other, 3));
}

bool IsBehind(const MoonLine& line) { return Dot(line.moon, line.planet) > Dot(line.planet, line.planet); }

MoonLines::MoonLines(const SSO_ID& planet, const SSO_ID& moon)
    : m_Moon(moon), m_Planet(planet), m_Earth(astro::kEarth) {}

// `lightTime` is that of the planet's centre. The others differ from it by some seconds, over which
// everything moves straight on.
bool MoonLines::GetLine(double date, Viewer viewer, MoonLine& line) {
  double earth[3], earthVelocity[3], planet[3], planetVelocity[3], moon[3], moonVelocity[3], sight[3];
  if (!m_Earth.GetState(date, earth, earthVelocity)) return false;
  double lightTime = 0.0;
  for (int step = 0; step < 3; ++step) {
    if (!m_Planet.GetState(date - lightTime, planet, planetVelocity)) return false;
    for (int i = 0; i < 3; ++i) sight[i] = planet[i] - earth[i];
    lightTime = Vmod(sight, 3) / astro::kLightAuPerDay;
  }
  if (!astro::ComputeMoonOfPlanet(m_Moon, date - lightTime, moon, moonVelocity)) return false;
  const double fromEarth = DaysAlong(moon, sight);
  // When the light was at the planet and at the moon, days after it left the planet for the Earth.
  double atPlanet = 0.0, atMoon = -fromEarth;
  if (viewer == Viewer::kSun) {
    const double fromSun = DaysAlong(moon, planet);
    if (fromSun < 0.0) {
      atMoon = fromSun;  // a shadow on the planet, which is what the Earth sees
    } else {
      atPlanet = atMoon - fromSun;  // a moon in the shadow, which is what the Earth sees
    }
  }
  const double* from = viewer == Viewer::kEarth ? sight : planet;
  for (int i = 0; i < 3; ++i) {
    line.planet[i] = from[i] + atPlanet * planetVelocity[i];
    line.moon[i] = from[i] + moon[i] + atMoon * (planetVelocity[i] + moonVelocity[i]);
    line.other[i] = viewer == Viewer::kEarth ? -planet[i] : -sight[i];
  }
  return true;
}

}  // namespace astro_internal
