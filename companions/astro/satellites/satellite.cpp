// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/satellite.h"

#include <cmath>
#include <utility>

#include "astro/constants.h"
#include "astro/earth_orientation.h"
#include "astro/vectors.h"
#include "companions/astro/earth/nutation.h"
#include "companions/astro/satellites/sgp4.h"

using astro_internal::MeanOrbit;

namespace {

using astro::kTurn;

constexpr double kDeepSpacePeriod = 225.0;       // minutes
constexpr double kJulianDateOf1950 = 2433281.5;  // 31 December 1949, 0 h

// The least eccentricity that drag leaves, and what is still taken for a rounding of 0.
constexpr double kLeastEccentricity = 1e-6;
constexpr double kStillRound = -0.001;

// A resonant orbit is integrated from its epoch in steps of half a day: this bounds how long that may take.
constexpr double kFarthestMinutes = 525960.0 * 200.0;

// Greenwich mean sidereal time of 1982 (Aoki et al.), radians, 0 to one turn: the
// model's own, whatever the frames of today.
double SiderealTime1982(double julianDateUT) {
  const double t = (julianDateUT - astro::kJ2000) / astro::kDaysPerJulianCentury;
  const double seconds = 67310.54841 + t * (876600.0 * 3600.0 + 8640184.812866 + t * (0.093104 - t * 6.2e-6));
  const double angle = std::fmod(seconds * (kTurn / astro::kSecondsPerDay), kTurn);
  return angle < 0.0 ? angle + kTurn : angle;
}

SatelliteFault CheckElements(const OrbitalElements& elements) {
  if (elements.tag != kTwoLineTag || !(elements.n > 0.0) || !std::isfinite(elements.n))
    return SatelliteFault::kMeanMotion;
  if (!(elements.e >= 0.0 && elements.e < 1.0)) return SatelliteFault::kEccentricity;
  return SatelliteFault::kNone;
}

}  // namespace

struct SatelliteModel::Constants {
  SatelliteFault fault = SatelliteFault::kNone;
  bool isDeepSpace = false;
  astro_internal::NearEarth nearEarth = {};
  astro_internal::LunarSolar lunarSolar = {};
  astro_internal::Resonance resonance = {};

  void Init(const OrbitalElements& elements) {
    const double motion = astro_internal::BrouwerMeanMotion(elements.n, elements.e, elements.i);
    const MeanOrbit epoch = {elements.e, elements.i, elements.om, elements.w, elements.M0, motion};
    isDeepSpace = kTurn / motion >= kDeepSpacePeriod;
    nearEarth = astro_internal::MakeNearEarth(epoch, elements.dragTerm, isDeepSpace);
    if (!isDeepSpace) return;
    lunarSolar = astro_internal::MakeLunarSolar(epoch, elements.epoch - kJulianDateOf1950);
    resonance = astro_internal::MakeResonance(nearEarth, lunarSolar, SiderealTime1982(elements.epoch));
  }

  SatelliteFault GetState(double t, double position[3], double velocity[3]) {
    astro_internal::DragEffect drag;
    MeanOrbit orbit = astro_internal::AdvanceNearEarth(nearEarth, t, drag);
    if (isDeepSpace) {
      astro_internal::AddLunarSolarSecular(lunarSolar, t, orbit);
      astro_internal::ApplyResonance(resonance, t, orbit);
    }
    if (!(orbit.n > 0.0)) return SatelliteFault::kMeanMotion;
    const double axis = astro_internal::AxisOf(orbit.n) * drag.axisRoot * drag.axisRoot;
    orbit.n = astro_internal::kKe / (axis * std::sqrt(axis));
    orbit.e -= drag.eccentricity;
    if (!(orbit.e < 1.0 && orbit.e >= kStillRound)) return SatelliteFault::kEccentricity;
    orbit.e = std::fmax(orbit.e, kLeastEccentricity);
    orbit.anomaly += nearEarth.epoch.n * drag.longitude;
    orbit.node = std::fmod(orbit.node, kTurn);
    orbit.perigee = std::fmod(orbit.perigee, kTurn);
    orbit.anomaly = std::fmod(orbit.anomaly, kTurn);
    if (isDeepSpace) {
      astro_internal::AddLunarSolarPeriodics(lunarSolar, t, orbit);
      if (!(orbit.e >= 0.0 && orbit.e <= 1.0)) return SatelliteFault::kPerturbedEccentricity;
    }
    return astro_internal::ComputePlace(orbit, axis, position, velocity);
  }
};

SatelliteModel::SatelliteModel(const OrbitalElements& elements) : m_Constants(new Constants) {
  m_Constants->fault = CheckElements(elements);
  if (m_Constants->fault != SatelliteFault::kNone) return;
  m_Constants->Init(elements);
  double position[3], velocity[3];
  m_Constants->fault = m_Constants->GetState(0.0, position, velocity);
}

SatelliteModel::~SatelliteModel() { delete m_Constants; }

SatelliteModel::SatelliteModel(SatelliteModel&& other) noexcept
    : m_Constants(std::exchange(other.m_Constants, nullptr)) {}

SatelliteModel& SatelliteModel::operator=(SatelliteModel&& other) noexcept {
  std::swap(m_Constants, other.m_Constants);
  return *this;
}

SatelliteFault SatelliteModel::GetFault() const { return m_Constants->fault; }

SatelliteFault SatelliteModel::GetState(double minutes, double position[3], double velocity[3]) const {
  const SatelliteFault fault = m_Constants->fault;
  if (fault == SatelliteFault::kMeanMotion || fault == SatelliteFault::kEccentricity) return fault;
  if (!(std::fabs(minutes) <= kFarthestMinutes)) return SatelliteFault::kTooFarFromEpoch;
  return m_Constants->GetState(minutes, position, velocity);
}

// The equinox of TEME is that of sidereal time as the model knows it, without the terms of 1994 that equal
// 0.003 arc second at most; so the equation of the equinoxes is without them too.
void TemeToJ2000(double julianDateTT, const double teme[3], double j2000[3]) {
  const double centuries = (julianDateTT - astro::kJ2000) / astro::kDaysPerJulianCentury;
  const double turn = astro_internal::NutationAt(centuries).longitude * std::cos(MeanObliquity(julianDateTT));
  const double c = std::cos(turn), s = std::sin(turn);
  const double ofDate[3] = {c * teme[0] - s * teme[1], s * teme[0] + c * teme[1], teme[2]};
  double matrix[9];
  PrecessionNutationMatrix(julianDateTT, matrix);
  V3Mprod(ofDate, matrix, j2000);
}
