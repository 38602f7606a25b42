// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/configurations/sky_track.h"

#include <algorithm>
#include <cmath>

#include "astro/constants.h"
#include "astro/earth_orientation.h"
#include "astro/planets.h"
#include "astro/vectors.h"
#include "companions/astro/model/observation.h"
#include "companions/astro/model/planet_path.h"

namespace astro_internal {

namespace {

constexpr double kMoonLightTime = 1.3 / astro::kSecondsPerDay;

void Copy(const double from[3], double to[3]) { std::copy_n(from, 3, to); }

}  // namespace

SkyTrack::SkyTrack() {
  for (int number = 1; number <= astro::kPlutoNumber; ++number) {
    m_Tracks[number - 1] = std::make_unique<StateTrack>(SSO_ID(astro::kPlanetKind, number));
  }
}

bool SkyTrack::Observe(const ModelObject& object, double date, ObservedBody& seen) {
  if (!SetDate(date)) return false;
  if (object.id == astro::kMoon) return ObserveMoon(seen);
  if (IsPlanet(object.id) && !FillPlanet(object.id.number)) return false;
  return ObserveObject(object, m_Moment, seen);
}

// As MomentAt, but for the barycentre, which only the parallaxes of stars need: for them the Sun will do.
bool SkyTrack::SetDate(double date) {
  if (m_IsSet && m_Moment.dateTT == date) return true;
  m_IsSet = false;
  m_Moment = Moment();
  m_Moment.dateTT = date;
  m_Moment.usable = true;
  if (!m_Tracks[astro::kEarthNumber - 1]->GetState(date, m_Moment.earth, m_Moment.earthVelocity))
    return false;
  m_Moment.earthKnown = true;
  Copy(m_Moment.earth, m_Moment.observer);
  EarthVelocity(date, m_Moment.observerVelocity);
  for (int i = 0; i < 3; ++i) {
    m_Moment.sunVelocity[i] =
        m_Moment.observerVelocity[i] * astro::kLightAuPerDay - m_Moment.earthVelocity[i];
  }
  m_IsSet = true;
  return true;
}

// The model asks the moment for the planet's way before it would ask the series.
bool SkyTrack::FillPlanet(int number) {
  PlanetSight& sight = m_Moment.planets[number - 1];
  if (sight.state != PlanetSight::kNotAsked) return sight.state == PlanetSight::kKnown;
  sight.state = PlanetSight::kUnknown;
  StateTrack& track = *m_Tracks[number - 1];
  StraightPath& path = sight.path;
  double sightLine[3];
  for (int step = 0;; ++step) {
    if (!track.GetState(m_Moment.dateTT - path.lightTime, path.position, path.velocity)) return false;
    if (step == 1) break;
    for (int i = 0; i < 3; ++i) sightLine[i] = path.position[i] - m_Moment.earth[i];
    path.lightTime = Vmod(sightLine, 3) / astro::kLightAuPerDay;
  }
  sight.state = PlanetSight::kKnown;
  return true;
}

// The Moon's light comes in 1.2 to 1.4 seconds, over which it goes straight on.
bool SkyTrack::ObserveMoon(ObservedBody& seen) {
  StraightPath path;
  path.lightTime = kMoonLightTime;
  double speed[3];
  if (!ComputeMoonState(m_Moment.dateTT - kMoonLightTime, path.position, speed)) return false;
  for (int i = 0; i < 3; ++i) {
    path.velocity[i] = m_Moment.earthVelocity[i] + speed[i];
    path.position[i] += m_Moment.earth[i] - kMoonLightTime * m_Moment.earthVelocity[i];
  }
  Sight sight;
  ObserveMoving(m_Moment, false, path, sight, seen);
  seen.angularRadius = std::asin(GetBodyRadius(astro::kMoon) / astro::kKilometresPerAu / seen.distance);
  return true;
}

const double* SkyTrack::EquatorAxes(double date) {
  if (m_Equator.date != date) PrecessionNutationMatrix(date, m_Equator.matrix);
  m_Equator.date = date;
  return m_Equator.matrix;
}

const double* SkyTrack::EclipticAxes(double date) {
  if (m_Ecliptic.date != date) TrueEclipticMatrix(date, m_Ecliptic.matrix);
  m_Ecliptic.date = date;
  return m_Ecliptic.matrix;
}

}  // namespace astro_internal
