// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/planet_transits.h"

#include <cmath>

#include "astro/earth_orientation.h"
#include "astro/planet_events.h"
#include "astro/rise_set.h"
#include "astro/solar_system.h"
#include "astro/vectors.h"
#include "companions/astro/configurations/date_search.h"
#include "companions/astro/configurations/date_span.h"
#include "companions/astro/configurations/planet_and_sun.h"

namespace astro {

namespace {

using namespace astro_internal;

constexpr double kSunRadiusAtOneAu = 959.63 * kRadiansPerArcsecond;
constexpr double kReach =
    0.75;                      // days: a transit lasts 0.33 at most, and is over 0.2 days off the conjunction
constexpr double kNear = 3.0;  // days
// At conjunction: a planet that stands farther from the ecliptic passes the Sun.
constexpr double kLargestLatitude = 0.5 * kRadiansPerDegree;

// The two discs from one observer, at dates about the conjunctions that a finder hands out: those lie so far
// inside the range of the series that both are known.
class Discs {
 public:
  Discs(const SSO_ID& planet, const std::optional<EarthPlace>& place) : m_Planet(planet), m_Place(place) {
    if (place) {
      m_Model.SetObserverOnEarth(place->lon, place->lat, place->height);
    } else {
      m_Model.SetObserverAtEarthCentre();
    }
  }

  void Look(double date) {
    const SkyMoment moment = astro::MakeMomentTT(date);
    m_Model.SetMoment(date, moment.deltaT);
    m_Model.Observe(m_Planet, nullptr, m_Seen);
    m_Model.Observe(kSun, nullptr, m_Sun);
  }

  double SunRadius() const { return std::asin(std::sin(kSunRadiusAtOneAu) / m_Sun.distance); }
  double PlanetRadius() const { return m_Seen.angularRadius; }
  double Separation() const { return VectorsAngle(m_Seen.apparent, m_Sun.apparent); }

  double SeparationAt(double date) {
    Look(date);
    return Separation();
  }
  // Of the limbs; `side`: +1 from outside, -1 from inside.
  double GapAt(double date, double side) {
    Look(date);
    return Separation() - SunRadius() - side * PlanetRadius();
  }

  TransitContact ContactAt(double date) {
    TransitContact contact;
    contact.moment = astro::MakeMomentTT(date);
    Look(date);
    contact.positionAngle = PositionAngle(date);
    if (m_Place) contact.sunAltitude = SunPlace(contact.moment).altitude;
    return contact;
  }

  // Of the Sun that was looked at last.
  HorizonPlace SunPlace(const SkyMoment& moment) const {
    double axes[9];
    HorizonAxes(moment, *m_Place, axes);
    return MakeHorizonPlace(axes, m_Sun.apparent, GetRiseAltitude(SunRadius()));
  }

  bool IsSunUp(double date) {
    Look(date);
    const HorizonPlace stands = SunPlace(astro::MakeMomentTT(date));
    return stands.altitude > stands.eventAltitude;
  }

 private:
  double PositionAngle(double date) const {
    double axes[9], sun[3], planet[3];
    PrecessionNutationMatrix(date, axes);
    MV3prod(axes, m_Sun.apparent, sun);
    MV3prod(axes, m_Seen.apparent, planet);
    const double ra = std::atan2(planet[1], planet[0]) - std::atan2(sun[1], sun[0]);
    const double height = sun[2], flat = std::hypot(sun[0], sun[1]),
                 planetFlat = std::hypot(planet[0], planet[1]);
    const double angle =
        std::atan2(planetFlat * std::sin(ra), planet[2] * flat - planetFlat * height * std::cos(ra));
    return angle < 0.0 ? angle + kTurn : angle;
  }

  SSO_ID m_Planet;
  std::optional<EarthPlace> m_Place;
  CQXSolSys m_Model;
  ObservedBody m_Seen, m_Sun;
};

// The moment on one side of the closest one at which the gap between the limbs closes.
double FindContact(Discs& discs, double closest, double away, double side) {
  const auto gap = [&discs, side](double date) { return discs.GapAt(date, side); };
  return FindZero(gap, closest, gap(closest), away, gap(away), kDatePrecision);
}

bool IsSunUpBetween(Discs& discs, double begin, double end) {
  constexpr int kLooks = 64;  // a day has two hours of Sun where it is that short: ten minutes at most
  for (int i = 0; i <= kLooks; ++i) {
    if (discs.IsSunUp(begin + (end - begin) * i / kLooks)) return true;
  }
  return false;
}

std::optional<PlanetTransit> FindAbout(const SSO_ID& planet, double conjunction,
                                       const std::optional<EarthPlace>& place) {
  Discs discs(planet, place);
  const auto separation = [&discs](double date) { return discs.SeparationAt(date); };
  const double closest = FindMinimum(separation, conjunction - kReach, conjunction + kReach, kDatePrecision);
  if (!(discs.GapAt(closest, 1.0) < 0.0)) return std::nullopt;
  PlanetTransit transit;
  transit.planet = planet;
  transit.greatest = discs.ContactAt(closest);
  transit.separation = separation(closest);
  const double begin = FindContact(discs, closest, closest - kReach, 1.0);
  const double end = FindContact(discs, closest, closest + kReach, 1.0);
  transit.ingress = discs.ContactAt(begin);
  transit.egress = discs.ContactAt(end);
  transit.isWhole = discs.GapAt(closest, -1.0) < 0.0;
  if (transit.isWhole) {
    transit.inside = discs.ContactAt(FindContact(discs, closest, closest - kReach, -1.0));
    transit.leaving = discs.ContactAt(FindContact(discs, closest, closest + kReach, -1.0));
  }
  transit.isSeen = !place || IsSunUpBetween(discs, begin, end);
  return transit;
}

// Calls found(date) for each inferior conjunction at which the planet stands before the Sun or nearly so.
template <class Found>
bool SearchConjunctions(const EventSearch& search, const SSO_ID& planet, Found found) {
  return FindSunConfigurations(search, planet, [&](const SkyEvent& event) {
    if (event.kind == EventKind::kInferiorConjunction && std::fabs(event.value) < kLargestLatitude)
      found(event.moment.julianDateTT);
  });
}

EventSearch Around(double from, double to) {
  return {astro::MakeMomentTT(from), astro::MakeMomentTT(to), std::nullopt};
}

}  // namespace

std::optional<PlanetTransit> FindPlanetTransit(const SSO_ID& planet, const SkyMoment& moment,
                                               const std::optional<EarthPlace>& place) {
  std::optional<PlanetTransit> transit;
  const double date = moment.julianDateTT;
  if (!IsInnerPlanet(planet) || !(std::fabs(date - kJ2000) < 1e8)) return transit;
  SearchConjunctions(Around(date - kNear, date + kNear), planet,
                     [&](double conjunction) { transit = FindAbout(planet, conjunction, place); });
  return transit;
}

// The closest moment may lie on the other side of an end of the span than the conjunction.
bool FindPlanetTransits(const EventSearch& search, const SSO_ID& planet, const EventSink& sink) {
  if (!IsInnerPlanet(planet)) return false;
  const DateSpan span = SpanOf(search, planet);
  SearchConjunctions(Around(span.from - kReach, span.to + kReach), planet, [&](double conjunction) {
    const auto transit = FindAbout(planet, conjunction, std::nullopt);
    if (!transit) return;
    SkyEvent event;
    event.kind = EventKind::kPlanetTransit;
    event.moment = transit->greatest.moment;
    const double closest = event.moment.julianDateTT;
    if (closest < span.from || closest >= span.to) return;
    event.sinceBegin = closest - transit->ingress.moment.julianDateTT;
    event.untilEnd = transit->egress.moment.julianDateTT - closest;
    event.body = planet;
    event.other = kSun;
    event.value = transit->separation;
    sink(event);
  });
  return span.isWhole;
}

}  // namespace astro
