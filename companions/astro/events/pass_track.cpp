// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/events/pass_track.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "astro/coordinates.h"
#include "astro/earth_orientation.h"
#include "astro/rise_set.h"
#include "astro/satellite_pass.h"
#include "astro/vectors.h"
#include "companions/astro/earth/nutation.h"

namespace astro_internal {

namespace {

using astro::SkyMoment;

constexpr double kNowhere = std::numeric_limits<double>::quiet_NaN();
constexpr double kStandardDistance = 1000.0;  // km

double MagnitudeAt(double standard, double distance, double phaseAngle) {
  const double lit = 0.5 * (1.0 + std::cos(phaseAngle));
  return standard + 5.0 * std::log10(distance / kStandardDistance) - 2.5 * std::log10(lit / 0.5);
}

}  // namespace

PassTrack::PassTrack(const OrbitalElements& elements, const astro::EarthPlace& place,
                     const astro::EventSearch& search)
    : m_Satellite(elements),
      m_Epoch(elements.epoch),
      m_Place(place),
      m_From(search.from.julianDateTT),
      m_To(search.to.julianDateTT) {}

double PassTrack::DayOf(const SkyMoment& moment) const { return moment.day - m_Epoch + moment.fraction; }

bool PassTrack::IsWithin(const SkyMoment& moment) const {
  return moment.julianDateTT >= m_From && moment.julianDateTT < m_To;
}

SkyMoment PassTrack::MomentOf(double day) const {
  const double whole = std::floor(m_Epoch);
  return astro::MakeMoment(static_cast<int>(whole), m_Epoch - whole + day);
}

bool PassTrack::GetPosition(const SkyMoment& moment, double position[3]) const {
  return astro::GetSatellitePosition(m_Satellite, m_Epoch, moment, position);
}

// The mean sidereal time of the axes in which the elements count. It runs evenly: once a day is enough.
double PassTrack::SiderealTime(const SkyMoment& moment) {
  constexpr double kTurnsPerDay = 1.0027379093508;  // Capitaine, Wallace & Chapront 2003
  if (moment.day != m_SiderealDay) {
    const double deltaT = moment.deltaT, date = moment.day + deltaT / astro::kSecondsPerDay;
    const double nutation = NutationAt((date - astro::kJ2000) / astro::kDaysPerJulianCentury).longitude;
    m_SiderealDay = moment.day;
    m_Sidereal = ApparentSiderealTime(moment.day, 0.0, deltaT) - nutation * std::cos(MeanObliquity(date));
  }
  return m_Sidereal + astro::kTurn * kTurnsPerDay * moment.fraction;
}

// As FindSatellitePlace, in the axes of the elements instead of those of J2000: neither precession nor
// nutation is asked for, which cost ten times what the satellite does.
double PassTrack::Altitude(double day) {
  const SkyMoment moment = MomentOf(day);
  double position[3], velocity[3], from[3], zenith[3];
  if (m_Satellite.GetState(day * astro::kMinutesPerDay, position, velocity) != SatelliteFault::kNone)
    return kNowhere;
  const double meridian = m_Place.lon + SiderealTime(moment);
  Plg2Plc(m_Place.height / 1000.0, meridian, m_Place.lat, astro::kEarthEquatorialRadius,
          astro::kEarthFlattening, from);
  sfp(1.0, meridian, m_Place.lat, zenith);
  for (int i = 0; i < 3; ++i) position[i] -= from[i];
  return std::asin(std::clamp(astro::Dot(position, zenith) / Vmod(position, 3), -1.0, 1.0));
}

// Every ten minutes will do: the Sun moves by 12 arc seconds in half of that, a satellite in 0.05 second.
void PassTrack::FindSun(double day) {
  constexpr double kInterval = 10.0 / astro::kMinutesPerDay;
  const double look = std::floor(day / kInterval + 0.5);
  if (look == m_SunLook) return;
  m_SunLook = look;
  const SkyMoment moment = MomentOf(look * kInterval);
  ObservedBody sun;
  m_Model.SetMoment(moment.julianDateTT, moment.deltaT);
  if (m_Model.Observe(astro::kSun, nullptr, sun)) std::copy_n(sun.apparent, 3, m_Sun);
}

double PassTrack::LightMargin(double day) {
  const SkyMoment moment = MomentOf(day);
  double position[3];
  if (!GetPosition(moment, position)) return kNowhere;
  FindSun(day);
  return astro::SunlightMargin(position, m_Sun);
}

astro::PassPoint PassTrack::Look(double day, double standardMagnitude) {
  astro::PassPoint point;
  point.moment = MomentOf(day);
  FindSun(day);
  double axes[9], from[3], position[3];
  if (!GetPosition(point.moment, position)) return point;
  point.sunlit = astro::IsSunlit(position, m_Sun);
  astro::GetPlaceVector(point.moment, m_Place, from);
  for (int i = 0; i < 3; ++i) position[i] -= from[i];
  astro::HorizonAxes(point.moment, m_Place, axes);
  const astro::HorizonPlace stands = astro::MakeHorizonPlace(axes, position, 0.0);
  point.azimuth = stands.azimuth;
  point.altitude = stands.altitude;
  point.distance = Vmod(position, 3);
  point.sunAltitude = astro::MakeHorizonPlace(axes, m_Sun, 0.0).altitude;
  if (!point.sunlit || standardMagnitude == static_cast<double>(kUnknownStarMagnitude)) return point;
  const double toPlace[3] = {-position[0], -position[1], -position[2]};
  point.magnitude = MagnitudeAt(standardMagnitude, point.distance, VectorsAngle(toPlace, m_Sun));
  return point;
}

}  // namespace astro_internal
