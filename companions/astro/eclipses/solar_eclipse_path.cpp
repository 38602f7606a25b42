// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>

#include "astro/coordinates.h"
#include "astro/solar_eclipses.h"
#include "astro/vectors.h"
#include "companions/astro/eclipses/besselian.h"
#include "companions/astro/events/event_grid.h"

namespace astro {

namespace {

using astro_internal::AxisOnEarth;
using astro_internal::BesselianElements;
using astro_internal::ShadowAtPlace;
using astro_internal::ShadowTrack;

// How the shadow moves over a place of the Earth: equatorial radii a day, along the fundamental plane.
struct Drift {
  double u, v;
};

Drift DriftAt(ShadowTrack& shadow, double date, const EarthPlace& place) {
  constexpr double kBeside = 1e-4;  // days
  const ShadowAtPlace before = shadow.At(date - kBeside, place), after = shadow.At(date + kBeside, place);
  return {(after.u - before.u) / (2.0 * kBeside), (after.v - before.v) / (2.0 * kBeside)};
}

// The place that sees the edge of the umbra pass along itself at a date: on the left (side 1) or on the right
// of the shadow's way. The way is that over the place itself, so it is found by going back and forth.
std::optional<EarthPlace> FindLimit(ShadowTrack& shadow, double date, const EarthPlace& centre, double side) {
  constexpr int kRounds = 8;
  const BesselianElements elements = shadow.Get(date);
  EarthPlace place = centre;
  for (int round = 0; round < kRounds; ++round) {
    const Drift drift = DriftAt(shadow, date, place);
    double vector[3];
    astro_internal::GetPlaceOnEarth(place, elements.sidereal, vector);
    const double reach = std::fabs(ShadowAt(elements, vector).umbra) * side / std::hypot(drift.u, drift.v);
    BesselianElements beside = elements;
    beside.x -= reach * drift.v;
    beside.y += reach * drift.u;
    const AxisOnEarth edge = FindAxisOnEarth(beside);
    if (!edge.meets) return std::nullopt;
    place = astro_internal::MakeEarthPlace(edge.place, elements.sidereal);
  }
  return place;
}

EclipsePathPoint PointAt(ShadowTrack& shadow, double date) {
  EclipsePathPoint point;
  const BesselianElements elements = shadow.Get(date);
  const AxisOnEarth axis = FindAxisOnEarth(elements);
  point.moment = MakeMomentTT(date);
  point.centre = astro_internal::MakeEarthPlace(axis.place, elements.sidereal);
  point.northernLimit = FindLimit(shadow, date, point.centre, 1.0);
  point.southernLimit = FindLimit(shadow, date, point.centre, -1.0);
  double zenith[3];
  sfp(1.0, point.centre.lon + elements.sidereal, point.centre.lat, zenith);
  point.sunAltitude = 0.5 * kPi - VectorsAngle(zenith, elements.axis);
  const ShadowAtPlace centre = ShadowAt(elements, axis.place);
  const Drift drift = DriftAt(shadow, date, point.centre);
  const double speed = std::hypot(drift.u, drift.v);
  // The shadow is round across its axis. Across its way over the ground it is wider by what the ground leans
  // to that side.
  const double along = (elements.x * drift.u + elements.y * drift.v) / speed;
  point.width = 2.0 * std::fabs(centre.umbra) * kEarthEquatorialRadius / std::hypot(centre.height, along);
  point.duration = 2.0 * std::fabs(centre.umbra) / speed * kSecondsPerDay;
  point.isTotal = centre.umbra < 0.0;
  return point;
}

}  // namespace

std::vector<EclipsePathPoint> ComputeEclipsePath(const GlobalSolarEclipse& eclipse, double step) {
  std::vector<EclipsePathPoint> path;
  if (!eclipse.centralBegin || !eclipse.centralEnd || !(step >= 1.0)) return path;
  ShadowTrack shadow;
  const double days = step / kSecondsPerDay, greatest = eclipse.greatest.julianDateTT;
  const double begin = eclipse.centralBegin->julianDateTT, end = eclipse.centralEnd->julianDateTT;
  // At its ends the axis touches the Earth to the precision of the moments: a little inside of them.
  constexpr double kInside = 2.0 * astro_internal::kEventPrecision;
  path.push_back(PointAt(shadow, begin + kInside));
  for (double k = std::ceil((begin + kInside - greatest) / days); greatest + k * days < end - kInside;
       k += 1.0) {
    path.push_back(PointAt(shadow, greatest + k * days));
  }
  path.push_back(PointAt(shadow, end - kInside));
  return path;
}

}  // namespace astro
