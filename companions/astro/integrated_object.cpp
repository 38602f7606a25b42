// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "integrated_object.h"

#include <cmath>

#include "astro/planets.h"
#include "gravity.h"
#include "magnitudes.h"
#include "object_kinds.h"
#include "observation.h"
#include "utils/text.h"

namespace astro_internal {

namespace {

double Cube(const double v[3]) {
  const double square = v[0] * v[0] + v[1] * v[1] + v[2] * v[2];
  return square * std::sqrt(square);
}

// What a planet does to the body less what it does to the Sun, which stands still in these axes.
void Disturb(double gravity, const double planet[3], const double position[3], double acceleration[3]) {
  const double away[3] = {position[0] - planet[0], position[1] - planet[1], position[2] - planet[2]};
  const double direct = gravity / Cube(away);
  const double indirect = gravity / Cube(planet);
  for (int i = 0; i < 3; ++i) acceleration[i] -= direct * away[i] + indirect * planet[i];
}

// The Earth is computed once for itself and the Moon.
bool DisturbByEarthAndMoon(double date, const double position[3], double acceleration[3]) {
  double earth[3], moon[3];
  if (!ComputePlanetState(SSO_ID(FourCC("plnt"), 3), date, earth, nullptr)) return false;
  if (!ComputeMoonState(date, moon, nullptr)) return false;
  for (int i = 0; i < 3; ++i) moon[i] += earth[i];
  Disturb(SystemGravity(3), earth, position, acceleration);
  Disturb(BodyGravity(SSO_ID(FourCC("moon"), 301)), moon, position, acceleration);
  return true;
}

void Attract(double gravity, const double position[3], double acceleration[3]) {
  const double factor = -gravity / Cube(position);
  for (int i = 0; i < 3; ++i) acceleration[i] = factor * position[i];
}

// `context`: the epoch, a Julian date.
bool Acceleration(double t, const double position[3], double acceleration[3], void* context) {
  const double date = *static_cast<const double*>(context) + t;
  Attract(SystemGravity(10), position, acceleration);
  if (!DisturbByEarthAndMoon(date, position, acceleration)) return false;
  for (int number = 1; number <= 9; ++number) {
    double planet[3];
    if (number == 3) continue;
    if (!ComputePlanetState(SSO_ID(FourCC("plnt"), number), date, planet, nullptr)) continue;
    Disturb(SystemGravity(number), planet, position, acceleration);
  }
  return true;
}

// 1e-13 a step is below what the series of the planets leave uncertain.
constexpr IntegrationLimits kLimits = {1e-13, 20000};

}  // namespace

std::optional<IntegratedObject> IntegratedObject::Begin(const ModelObject& object) {
  const ReadyOrbit* orbit = std::get_if<ReadyOrbit>(&object.record);
  if (orbit == nullptr || orbit->satellite.has_value()) return std::nullopt;
  const OrbitalElements& elements = orbit->elements;
  if (!(SSO_ID(elements.centralKind, elements.centralNumber) == SSO_ID(FourCC("plnt"), 10)))
    return std::nullopt;
  if (!(elements.epoch >= kFirstPlanetDate && elements.epoch <= kLastPlanetDate)) return std::nullopt;
  IntegratedObject begun(object.id, elements);
  if (!ComputeTwoBodyState(elements, orbit->plane, elements.epoch, begun.m_State.position,
                           begun.m_State.velocity)) {
    return std::nullopt;
  }
  return begun;
}

bool IntegratedObject::Advance(double dateTT) {
  if (!(dateTT >= kFirstPlanetDate && dateTT <= kLastPlanetDate)) return false;
  double epoch = m_Elements.epoch;
  return IntegrateOrbit(m_State, m_Days, dateTT - epoch, kLimits, Acceleration, &epoch);
}

// The light time is small against the period of the orbit: the body's way since the light left is a piece of a parabola
// about the state at the moment, with the Sun's attraction alone.
bool IntegratedObject::Observe(const Moment& moment, ObservedBody& result) {
  if (!moment.earthKnown || !Advance(moment.dateTT)) return false;
  double acceleration[3];
  Attract(SystemGravity(10), m_State.position, acceleration);
  const auto stateBefore = [this, &acceleration](double days, double position[3]) {
    for (int i = 0; i < 3; ++i) {
      position[i] = m_State.position[i] - days * m_State.velocity[i] + 0.5 * days * days * acceleration[i];
    }
    return true;
  };
  Sight sight;
  if (!ObserveMoving(moment, false, stateBefore, sight, result)) return false;
  const Illumination light = {result.sunDistance, result.distance, result.phaseAngle,
                              moment.dateTT,      sight.fromSun,   sight.fromObserver};
  result.magnitude = static_cast<double>(kUnknownStarMagnitude);
  if (IsAsteroid(m_ID.kind)) result.magnitude = AsteroidMagnitude(m_Elements, light);
  if (IsComet(m_ID.kind)) result.magnitude = CometMagnitude(m_Elements, light);
  result.angularRadius = 0.0;
  return true;
}

}  // namespace astro_internal
