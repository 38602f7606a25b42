// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/satellite_passes.h"

#include <algorithm>
#include <cmath>

#include "companions/astro/configurations/date_search.h"
#include "companions/astro/events/pass_track.h"

namespace astro {

namespace {

using namespace astro_internal;

constexpr double kLongestPass = 2.0;  // days, to each side of the culmination
constexpr int kLooksAtPass = 50;

// Days from the epoch: nobody can tell more (satellite.h), and nobody waits for it.
constexpr double kFarthest = 200.0 * kDaysPerJulianYear;
constexpr double kLongestStep = 0.5 / 24.0;  // what stands far out rises and sets with the stars

// Days between two looks: a fortieth of the revolution, as fast as it is at the perigee.
double StepOf(const OrbitalElements& elements) {
  const double period = kTurn / elements.n / kMinutesPerDay;
  const double haste = (1.0 + elements.e) * (1.0 + elements.e) / std::pow(1.0 - elements.e * elements.e, 1.5);
  return std::min(period / 40.0 / haste, kLongestStep);
}

// One satellite over one place. Days are those of PassTrack: small numbers, which keep their digits.
class PassSearch {
 public:
  PassSearch(const SatelliteTarget& satellite, const PassLimits& limits, PassTrack& track, double step)
      : m_Satellite(satellite), m_Limits(limits), m_Track(track), m_Step(step) {}

  // The pass of a culmination that lies between two moments; nothing when it stays too low, does not end, or
  // is a part of one that goes higher.
  std::optional<SatellitePass> FindAt(double from, double to) {
    const double highest =
        FindMinimum([this](double day) { return -m_Track.Altitude(day); }, from, to, kDatePrecision);
    const double top = m_Track.Altitude(highest);
    if (!(top > m_Limits.altitude)) return std::nullopt;
    const auto rise = FindEnd(highest, top, -m_Step), set = FindEnd(highest, top, m_Step);
    if (!rise || !set) return std::nullopt;
    SatellitePass pass;
    pass.satellite = m_Satellite.id;
    pass.rise = Look(*rise);
    pass.culmination = Look(highest);
    pass.set = Look(*set);
    FindLight(*rise, *set, pass);
    return pass;
  }

 private:
  PassPoint Look(double day) { return m_Track.Look(day, m_Satellite.standardMagnitude); }

  // Where the satellite comes down through the horizon on one side of its culmination.
  std::optional<double> FindEnd(double highest, double top, double step) {
    const auto height = [this](double day) { return m_Track.Altitude(day) - m_Limits.altitude; };
    double above = highest, heightAbove = top - m_Limits.altitude;
    while (std::fabs(above - highest) < kLongestPass) {
      const double day = above + step, now = height(day);
      if (!std::isfinite(now) || now > top - m_Limits.altitude) return std::nullopt;
      if (now < 0.0) return FindZero(height, above, heightAbove, day, now, kDatePrecision);
      above = day;
      heightAbove = now;
    }
    return std::nullopt;
  }

  bool IsBetter(const PassPoint& point, const std::optional<PassPoint>& best) const {
    if (!point.sunlit || !(point.sunAltitude < m_Limits.sunAltitude)) return false;
    if (!best) return true;
    return point.magnitude != best->magnitude ? point.magnitude < best->magnitude
                                              : point.altitude > best->altitude;
  }

  void FindLight(double rise, double set, SatellitePass& pass) {
    const auto light = [this](double day) { return m_Track.LightMargin(day); };
    double before = rise, lightBefore = light(rise);
    for (int i = 0; i <= kLooksAtPass; ++i) {
      const double day = rise + (set - rise) * i / kLooksAtPass, now = light(day);
      if ((now < 0.0) != (lightBefore < 0.0)) {
        std::optional<PassPoint>& change = now < 0.0 ? pass.intoShadow : pass.outOfShadow;
        if (!change) change = Look(FindZero(light, before, lightBefore, day, now, kDatePrecision));
      }
      const PassPoint point = Look(day);
      if (IsBetter(point, pass.best)) pass.best = point;
      before = day;
      lightBefore = now;
    }
    if (IsBetter(pass.culmination, pass.best)) pass.best = pass.culmination;
  }

  const SatelliteTarget& m_Satellite;
  const PassLimits& m_Limits;
  PassTrack& m_Track;
  double m_Step;
};

bool HasDates(const EventSearch& search) {
  const double from = search.from.julianDateTT, to = search.to.julianDateTT;
  return std::isfinite(from) && std::isfinite(to) && from < to;
}

// The grid counts from the epoch of the elements: fixed in time, with small numbers.
bool SearchPasses(double from, double to, PassTrack& track, PassSearch& passes, double step,
                  const std::function<void(const SatellitePass&)>& sink) {
  bool isWhole = true;
  double k = std::floor(from / step) - 1.0;
  double before = track.Altitude(k * step), now = track.Altitude((k + 1.0) * step);
  for (; k * step < to; k += 1.0) {
    const double after = track.Altitude((k + 2.0) * step);
    isWhole = isWhole && std::isfinite(after);
    if (now > before && now >= after) {
      const auto pass = passes.FindAt(k * step, (k + 2.0) * step);
      if (pass && track.IsWithin(pass->culmination.moment)) sink(*pass);
    }
    before = now;
    now = after;
  }
  return isWhole;
}

}  // namespace

bool FindPasses(const EventSearch& search, const SatelliteTarget& satellite, const PassLimits& limits,
                const std::function<void(const SatellitePass&)>& sink) {
  if (!search.place || satellite.elements == nullptr) return false;
  if (!HasDates(search)) return true;
  PassTrack track(*satellite.elements, *search.place, search);
  if (track.GetFault() != SatelliteFault::kNone) return false;
  const double step = StepOf(*satellite.elements);
  PassSearch passes(satellite, limits, track, step);
  const double from = track.DayOf(search.from), to = track.DayOf(search.to);
  const double first = std::max(from, -kFarthest), last = std::min(to, kFarthest);
  return SearchPasses(first, last, track, passes, step, sink) && first == from && last == to;
}

bool FindSatellitePasses(const EventSearch& search, std::span<const SatelliteTarget> satellites,
                         const PassLimits& limits, const EventSink& sink) {
  bool isWhole = true;
  for (const SatelliteTarget& satellite : satellites) {
    const bool found = FindPasses(search, satellite, limits, [&sink](const SatellitePass& pass) {
      SkyEvent event;
      event.kind = EventKind::kSatellitePass;
      event.moment = pass.culmination.moment;
      const double top = event.moment.julianDateTT;
      event.sinceBegin = top - pass.rise.moment.julianDateTT;
      event.untilEnd = pass.set.moment.julianDateTT - top;
      event.body = pass.satellite;
      event.value = pass.culmination.altitude;
      event.more = pass.best ? pass.best->magnitude : static_cast<double>(kUnknownStarMagnitude);
      event.detail = pass.best ? 1 : 0;
      sink(event);
    });
    isWhole &= found;
  }
  return isWhole;
}

}  // namespace astro
