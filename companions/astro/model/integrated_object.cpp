// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/model/integrated_object.h"

#include <cmath>
#include <limits>

#include "astro/constants.h"
#include "astro/planets.h"
#include "companions/astro/model/magnitudes.h"
#include "companions/astro/model/object_kinds.h"
#include "companions/astro/model/observation.h"
#include "companions/astro/planets/gravity.h"

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

// The planets and the Moon about the Sun; those that are not known at that time are left out.
struct Disturbers {
  double t = std::numeric_limits<double>::quiet_NaN();  // days from the epoch; not a number: none yet
  int count = 0;
  double place[10][3];
  double gravity[10];

  void Add(const double where[3], double strength) {
    for (int i = 0; i < 3; ++i) place[count][i] = where[i];
    gravity[count++] = strength;
  }
};

// The Earth is computed once for itself and the Moon. The date lies within the range of the planets, as the
// ends of the integration do.
void Fill(double date, Disturbers& disturbers) {
  double earth[3] = {}, moon[3] = {};
  disturbers.count = 0;
  ComputePlanetState(astro::kEarth, date, earth, nullptr);
  ComputeMoonState(date, moon, nullptr);
  for (int i = 0; i < 3; ++i) moon[i] += earth[i];
  disturbers.Add(earth, SystemGravity(astro::kEarthNumber));
  disturbers.Add(moon, BodyGravity(astro::kMoon));
  for (int number = 1; number <= 9; ++number) {
    double planet[3];
    if (number == astro::kEarthNumber) continue;
    if (!ComputePlanetState(SSO_ID(astro::kPlanetKind, number), date, planet, nullptr)) continue;
    disturbers.Add(planet, SystemGravity(number));
  }
}

// The integrator asks for the same few times again in every sweep over a step, and the planets are nearly all
// the work: they are kept for the last times.
class Surroundings {
 public:
  explicit Surroundings(double epoch) : m_Epoch(epoch) {}

  const Disturbers& At(double t) {
    for (const Disturbers& kept : m_Kept) {
      if (kept.t == t) return kept;
    }
    Disturbers& oldest = m_Kept[m_Next];
    m_Next = (m_Next + 1) % kKept;
    Fill(m_Epoch + t, oldest);
    oldest.t = t;
    return oldest;
  }

 private:
  static constexpr int kKept = 8;  // the points of a step
  double m_Epoch;                  // Julian date
  int m_Next = 0;
  Disturbers m_Kept[kKept];
};

void Attract(double gravity, const double position[3], double acceleration[3]) {
  const double factor = -gravity / Cube(position);
  for (int i = 0; i < 3; ++i) acceleration[i] = factor * position[i];
}

// `context`: the Surroundings.
bool Acceleration(double t, const double position[3], double acceleration[3], void* context) {
  const Disturbers& disturbers = static_cast<Surroundings*>(context)->At(t);
  Attract(SystemGravity(astro::kSunNumber), position, acceleration);
  for (int k = 0; k < disturbers.count; ++k) {
    Disturb(disturbers.gravity[k], disturbers.place[k], position, acceleration);
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
  if (!(SSO_ID(elements.centralKind, elements.centralNumber) == astro::kSun)) return std::nullopt;
  if (!(elements.epoch >= kFirstPlanetDate && elements.epoch <= kLastPlanetDate)) return std::nullopt;
  IntegratedObject begun(object.id, elements);
  // There is one: the object was made ready.
  ComputeTwoBodyState(elements, orbit->plane, elements.epoch, begun.m_State.position, begun.m_State.velocity);
  return begun;
}

bool IntegratedObject::Advance(double dateTT) {
  if (!(dateTT >= kFirstPlanetDate && dateTT <= kLastPlanetDate)) return false;
  Surroundings surroundings(m_Elements.epoch);
  return IntegrateOrbit(m_State, m_Days, dateTT - m_Elements.epoch, kLimits, Acceleration, &surroundings);
}

// The light time is small against the period of the orbit: the body's way since the light left is a piece of
// a parabola about the state at the moment, with the Sun's attraction alone.
bool IntegratedObject::Observe(const Moment& moment, ObservedBody& result) {
  if (!moment.earthKnown || !Advance(moment.dateTT)) return false;
  double acceleration[3];
  Attract(SystemGravity(astro::kSunNumber), m_State.position, acceleration);
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
