// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/meteor_showers.h"

#include <algorithm>
#include <cmath>

#include "astro/coordinates.h"
#include "astro/earth_orientation.h"
#include "astro/rise_set.h"
#include "astro/sky_brightness.h"
#include "astro/solar_system.h"
#include "astro/vectors.h"
#include "companions/astro/configurations/date_search.h"
#include "companions/astro/configurations/date_span.h"
#include "companions/astro/configurations/seen_bodies.h"

namespace astro {

namespace {

using namespace astro_internal;

constexpr double kStep = 16.0;  // days: the Sun moves by 16 degrees, and a turn of its longitude is no zero
constexpr double kDarkEnough = -6.0 * kRadiansPerDegree;
constexpr double kHalfDay = 0.5;
constexpr double kLook = 10.0 / kMinutesPerDay;
constexpr double kStandardLimit = 6.5;
// Where somebody watches who keeps away from the Moon and the twilight.
constexpr double kWatchedAltitude = 60.0 * kRadiansPerDegree, kWatchedAway = 90.0 * kRadiansPerDegree;

double SunLongitude(SeenBodies& sun, double date) {
  const double tilt = MeanObliquity(kJ2000);
  const ObservedBody seen = sun.See(0, date);
  const double* v = seen.apparent;
  return std::atan2(v[1] * std::cos(tilt) + v[2] * std::sin(tilt), v[0]);
}

double LimitUnder(double sunAltitude, double moonAltitude, double moonPhaseAngle) {
  SkyLights lights;
  lights.sunAltitude = sunAltitude;
  lights.moonAltitude = moonAltitude;
  lights.moonPhaseAngle = moonPhaseAngle;
  return GetNakedEyeLimit(SkyBrightness(lights).GetLuminance(kWatchedAltitude, kWatchedAway, kWatchedAway));
}

// One shower over one place about its maximum.
class ShowerSky {
 public:
  ShowerSky(const MeteorShower& shower, const SkyMoment& maximum, const EarthPlace& place)
      : m_Shower(shower), m_Maximum(maximum), m_Place(place) {
    sfp(1.0, shower.ra, shower.dec, m_Radiant);
  }

  // Some days from the maximum. The rate is 0 by day and while the radiant is down.
  ShowerNight Look(double days) {
    ShowerNight night;
    night.best = Later(m_Maximum, days);
    double axes[9];
    HorizonAxes(night.best, m_Place, axes);
    night.radiantAltitude = MakeHorizonPlace(axes, m_Radiant, 0.0).altitude;
    if (night.radiantAltitude <= 0.0) return night;
    ObservedBody sun, moon;
    SetUpModel(night.best, m_Place, m_Model);
    if (!m_Model.Observe(kSun, nullptr, sun)) return night;
    m_Model.Observe(kMoon, nullptr, moon);  // known where the Sun is
    const double sunAltitude = MakeHorizonPlace(axes, sun.apparent, 0.0).altitude;
    night.moonAltitude = MakeHorizonPlace(axes, moon.apparent, 0.0).altitude;
    night.moonlit = 0.5 * (1.0 + std::cos(moon.phaseAngle));
    night.limit = LimitUnder(sunAltitude, night.moonAltitude, moon.phaseAngle);
    if (sunAltitude > kDarkEnough) return night;
    night.rate = m_Shower.zenithalRate * std::sin(night.radiantAltitude) *
                 std::pow(m_Shower.populationIndex, night.limit - kStandardLimit);
    return night;
  }

 private:
  const MeteorShower& m_Shower;
  SkyMoment m_Maximum;
  EarthPlace m_Place;
  double m_Radiant[3];
  CQXSolSys m_Model;
};

SkyEvent MakeMaximum(int number, const MeteorShower& shower, double date,
                     const std::optional<EarthPlace>& place) {
  SkyEvent event;
  event.kind = EventKind::kShowerMaximum;
  event.moment = astro::MakeMomentTT(date);
  event.body = SSO_ID(kShowerKind, number);
  event.value = shower.zenithalRate;
  event.more = 0.5 * kPi;
  if (!place) return event;
  const auto night = FindShowerNight(shower, event.moment, *place);
  event.value = night ? night->rate : 0.0;
  event.more = night ? night->radiantAltitude : 0.0;
  const double behind = night ? night->best.julianDateTT - date : 0.0;
  event.sinceBegin = std::max(0.0, -behind);
  event.untilEnd = std::max(0.0, behind);
  return event;
}

}  // namespace

std::optional<ShowerNight> FindShowerNight(const MeteorShower& shower, const SkyMoment& maximum,
                                           const EarthPlace& place) {
  ShowerSky sky(shower, maximum, place);
  std::optional<ShowerNight> best;
  for (double days = -kHalfDay; days <= kHalfDay; days += kLook) {
    const ShowerNight night = sky.Look(days);
    if (night.rate > (best ? best->rate : 0.0)) best = night;
  }
  return best;
}

bool FindShowerMaxima(const EventSearch& search, std::span<const MeteorShower> showers,
                      const EventSink& sink) {
  SeenBodies sun;
  sun.Add(kSun, nullptr);
  const DateSpan span = SpanOf(search, kSun);
  SearchPieces(span.from, span.to, [&](double from, double to) {
    for (std::size_t i = 0; i < showers.size(); ++i) {
      const auto away = [&](double date) {
        return std::remainder(SunLongitude(sun, date) - showers[i].solarLongitude, kTurn);
      };
      FindDates(from, to, kStep, away, [&](double date, bool) {
        sink(MakeMaximum(static_cast<int>(i), showers[i], date, search.place));
      });
    }
  });
  return span.isWhole;
}

}  // namespace astro
