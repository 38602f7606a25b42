// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "host/sky_region.h"

#include <cmath>

#include "astro/vectors.h"

namespace skyview {
namespace {

// The rim must stay clear of the window although the outline runs along it in straight steps.
constexpr double kRimFactor = 1.3;
constexpr double kRimStep = 10.0 * kRadiansPerDegree;
constexpr double kLeastRimStep = 3.0 * kRadiansPerDegree;

double Length(const tPoint<double>& p) { return std::hypot(p.x, p.y); }

double Wrapped(double angle) { return std::remainder(angle, 2.0 * kPi); }

}  // namespace

void RegionPicture::Clear() {
  points.clear();
  ringEnds.clear();
  holdsOutside = false;
}

RegionProjector::RegionProjector(const ViewGeometry& geometry, SkyFrameOf frame, const Direction& outside,
                                 RegionPicture& picture)
    : m_Geometry(geometry), m_Frame(frame), m_Picture(picture), m_Outside(outside) {
  m_Axis = frame == SkyFrameOf::kJ2000 ? geometry.centreJ2000 : geometry.centreHorizon;
  m_Opposite = {{-m_Axis.v[0], -m_Axis.v[1], -m_Axis.v[2]}};
  Vprod(m_Opposite.v, m_Outside.v, m_PathNormal.v);
  if (Vmod(m_PathNormal.v, 3) < 1e-9) {
    // Looking straight at the outside point or away from it: any great circle through the two will do.
    const Direction aside = std::fabs(m_Axis.v[2]) < 0.9 ? Direction{{0, 0, 1}} : Direction{{1, 0, 0}};
    Vprod(m_Opposite.v, aside.v, m_PathNormal.v);
  }
  m_Picture.rim = kRimFactor * geometry.halfDiagonal;
}

tPoint<double> RegionProjector::FromCentre(const Direction& direction) const {
  const tPoint<double> p = m_Geometry.Project(direction, m_Frame);
  return {p.x - m_Geometry.width * 0.5, p.y - m_Geometry.height * 0.5};
}

void RegionProjector::LineTo(const tPoint<double>& p) {
  m_Picture.points.push_back({p.x + m_Geometry.width * 0.5, p.y + m_Geometry.height * 0.5});
  m_Bearing = std::atan2(p.y, p.x);
}

// Runs along the rim, the shorter way, to the bearing of `p`: a great circle that stays outside sweeps less than half
// a turn. Unless `exact`, small movements wait until they add up.
void RegionProjector::AlongRim(const tPoint<double>& p, bool exact) {
  const double bearing = std::atan2(p.y, p.x);
  if (!std::isfinite(bearing)) return;
  const double start = m_Bearing, sweep = Wrapped(bearing - start);
  if (!exact && std::fabs(sweep) < kLeastRimStep) return;
  const int steps = 1 + static_cast<int>(std::fabs(sweep) / kRimStep);
  for (int i = 1; i <= steps; ++i) {
    const double b = start + sweep * i / steps;
    LineTo({m_Picture.rim * std::cos(b), m_Picture.rim * std::sin(b)});
  }
}

// `behind`: both ends lie more than a right angle from the view axis. The straight line between their pictures then
// says nothing about the way between them, but the way cannot enter the disc.
void RegionProjector::AddEdge(const tPoint<double>& a, const tPoint<double>& b, bool behind) {
  const double rim = m_Picture.rim;
  const bool aInside = Length(a) <= rim, bInside = Length(b) <= rim;
  if (aInside && bInside) return LineTo(b);
  if (!aInside && !bInside && behind) return AlongRim(b);
  // Where the line a + t (b - a) meets the rim.
  const tPoint<double> d = {b.x - a.x, b.y - a.y};
  const double dd = d.x * d.x + d.y * d.y, ad = a.x * d.x + a.y * d.y, aa = a.x * a.x + a.y * a.y;
  const double root = ad * ad - dd * (aa - rim * rim);
  if (!(root > 0.0)) return AlongRim(b);
  const double enter = (-ad - std::sqrt(root)) / dd, leave = (-ad + std::sqrt(root)) / dd;
  if (!aInside && (leave <= 0.0 || enter >= 1.0)) return AlongRim(b);
  if (!aInside) AlongRim({a.x + enter * d.x, a.y + enter * d.y}, true);
  if (bInside) return LineTo(b);
  LineTo({a.x + leave * d.x, a.y + leave * d.y});
  AlongRim(b);
}

// Walks from the point opposite to the view to the point known to be outside: each outline crossed changes sides.
void RegionProjector::CountCrossings(std::span<const Direction> ring) {
  double lastSide = Dot(m_PathNormal, ring.back());
  const Direction* last = &ring.back();
  for (const Direction& point : ring) {
    const double side = Dot(m_PathNormal, point);
    if ((side > 0.0) != (lastSide > 0.0)) {
      Direction meeting, fromOpposite, toOutside;
      for (int i = 0; i < 3; ++i) {
        meeting.v[i] = last->v[i] * std::fabs(side) + point.v[i] * std::fabs(lastSide);
      }
      Vprod(m_Opposite.v, meeting.v, fromOpposite.v);
      Vprod(meeting.v, m_Outside.v, toOutside.v);
      const bool onPath = Dot(fromOpposite, m_PathNormal) > 0.0 && Dot(toOutside, m_PathNormal) > 0.0;
      m_Picture.holdsOutside = m_Picture.holdsOutside != onPath;
    }
    last = &point;
    lastSide = side;
  }
}

void RegionProjector::AddRing(std::span<const Direction> ring) {
  if (ring.empty()) return;
  CountCrossings(ring);
  tPoint<double> last = FromCentre(ring.back());
  bool lastBehind = Dot(m_Axis, ring.back()) < 0.0;
  m_Bearing = std::isfinite(last.x) ? std::atan2(last.y, last.x) : 0.0;
  for (const Direction& direction : ring) {
    const tPoint<double> p = FromCentre(direction);
    const bool behind = Dot(m_Axis, direction) < 0.0;
    AddEdge(last, p, behind && lastBehind);
    last = p;
    lastBehind = behind;
  }
  m_Picture.ringEnds.push_back(static_cast<int>(m_Picture.points.size()));
}

}  // namespace skyview
