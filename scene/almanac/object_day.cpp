// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/almanac/object_day.h"

#include "astro/julian_date.h"
#include "scene/view/base_plane.h"
#include "utils/text.h"

namespace scene {
namespace {

using astro::FindHorizonPlace;
using astro::HorizonPlace;
using astro::RiseTransitSet;

constexpr double kStep = 1.0 / 96.0;             // days between two looks at an object
constexpr double kSatelliteStep = 1.0 / 2880.0;  // half a minute: a pass lasts some minutes

class DayFinder {
 public:
  DayFinder(ObjectSight& sight, const CommonInterfaces::Camera& camera)
      : m_Sight(sight),
        m_Place(GetPlace(camera)),
        m_Now(GetMoment(camera)),
        m_Offset(camera.GetLocUTCdelta()) {}

  RiseTransitSet FindEvents();
  RiseTransitSet FindPass();

 private:
  std::optional<HorizonPlace> Find(const SkyMoment& moment) {
    return FindPlaceOverHorizon(m_Sight, moment, m_Place);
  }
  SkyMoment FindStart();
  void FindHighest(RiseTransitSet& pass);

  ObjectSight& m_Sight;
  EarthPlace m_Place;
  SkyMoment m_Now;
  double m_Offset;  // local time minus Universal Time, days
};

// The midnight before the moment by the clocks of the place.
SkyMoment DayFinder::FindStart() {
  int day = m_Now.day;
  double fraction = m_Now.fraction + m_Offset;
  Adjust_JD(day, fraction);
  return MakeMoment(day, -0.5 - m_Offset);
}

RiseTransitSet DayFinder::FindEvents() {
  const SkyMoment start = FindStart();
  const FindHorizonPlace find =
      astro::MakeSmoothFinder([this](const SkyMoment& moment) { return Find(moment); }, start);
  RiseTransitSet events = FindRiseTransitSet(find, start, 1.0, kStep);
  if (events.staysUp || events.staysDown) return events;
  if (events.rise && events.transit && events.set) return events;
  const RiseTransitSet next = FindRiseTransitSet(find, Later(start, 1.0), 1.0, kStep);
  if (!events.rise) events.rise = next.rise;
  if (!events.set) events.set = next.set;
  if (!events.transit) {
    events.transit = next.transit;
    events.transitAltitude = next.transitAltitude;
  }
  return events;
}

// The pass that is on, else the first of the next 24 hours: what begins below the horizon sets after it
// rises.
RiseTransitSet DayFinder::FindPass() {
  constexpr double kBack = 1.0 / 96.0;  // days
  const auto isUp = [this](const SkyMoment& moment) {
    const auto place = Find(moment);
    return place && place->altitude >= place->eventAltitude;
  };
  double before = 0.0;
  while (before < 1.0 && isUp(Later(m_Now, -before))) before += kBack;
  const FindHorizonPlace find = [this](const SkyMoment& moment) { return Find(moment); };
  RiseTransitSet pass = FindRiseTransitSet(find, Later(m_Now, -before), 1.0 + before, kSatelliteStep);
  if (!pass.staysUp && !pass.staysDown) FindHighest(pass);
  return pass;
}

// Most satellites cross the meridian from the west: what counts is where the pass is highest.
void DayFinder::FindHighest(RiseTransitSet& pass) {
  pass.transit.reset();
  if (!pass.rise || !pass.set) return;
  const auto days = [](const SkyMoment& moment) { return moment.day + moment.fraction; };
  const auto altitude = [this, &pass](double later) {
    const auto place = Find(Later(*pass.rise, later));
    return place ? place->altitude : -1.0;
  };
  constexpr double kPrecision = 1e-5;  // days
  double low = 0.0, high = days(*pass.set) - days(*pass.rise);
  while (high - low > kPrecision) {
    const double third = (high - low) / 3.0;
    if (altitude(low + third) < altitude(high - third)) {
      low += third;
    } else {
      high -= third;
    }
  }
  pass.transit = Later(*pass.rise, 0.5 * (low + high));
}

}  // namespace

std::optional<HorizonPlace> FindPlaceOverHorizon(ObjectSight& sight, const SkyMoment& moment,
                                                 const EarthPlace& place) {
  ObservedBody seen;
  if (!sight.Observe(moment, place, seen)) return std::nullopt;
  double axes[9];
  HorizonAxes(moment, place, axes);
  const double radius = seen.sunDistance > 0.0 || seen.lightTime > 0.0 ? seen.angularRadius : 0.0;
  return astro::MakeHorizonPlace(axes, seen.apparent, astro::GetRiseAltitude(radius));
}

RiseTransitSet FindObjectDay(ObjectSight& sight, int kind, const CommonInterfaces::Camera& camera) {
  DayFinder finder(sight, camera);
  return kind == FourCC("scft") ? finder.FindPass() : finder.FindEvents();
}

}  // namespace scene
