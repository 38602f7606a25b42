// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/sky_region.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "astro/vectors.h"

namespace scene {
namespace {

// The rim must stay clear of the window although the outline runs along it in straight steps.
constexpr double kRimFactor = 1.3;
constexpr double kRimStep = 10.0 * kRadiansPerDegree;
constexpr double kLeastRimStep = 3.0 * kRadiansPerDegree;

// The tangent of an angle a little below kLeastRimStep.
const double kTanOfLess = std::tan(0.999 * kLeastRimStep);
// The same a little above it, and of kRimStep: between them one step leads along the rim.
const double kTanOfMore = std::tan(1.001 * kLeastRimStep), kTanOfStep = std::tan(0.999 * kRimStep);

double Wrapped(double angle) { return std::remainder(angle, 2.0 * kPi); }

}  // namespace

void RegionPicture::Clear() {
  points.clear();
  ringEnds.clear();
  holdsOutside = false;
}

void RegionPicture::Reserve(std::size_t rings, std::size_t ringPoints) {
  // An edge that enters or leaves the disc makes more points than one, a ring along the whole rim two turns
  // of steps.
  constexpr std::size_t kRimPoints = 80;
  points.reserve(ringPoints + ringPoints / 4 + rings * kRimPoints);
  ringEnds.reserve(rings);
}

RegionProjector::RegionProjector(const ViewGeometry& geometry, SkyFrameOf frame, const Direction& outside,
                                 RegionPicture& picture)
    : m_Geometry(geometry), m_Frame(frame), m_Picture(picture), m_Outside(outside) {
  m_Axis = frame == SkyFrameOf::kJ2000 ? geometry.centreJ2000 : geometry.centreHorizon;
  m_Opposite = {{-m_Axis.v[0], -m_Axis.v[1], -m_Axis.v[2]}};
  Vprod(m_Opposite.v, m_Outside.v, m_PathNormal.v);
  for (int i = 0; i < 3; ++i) m_PathMiddle.v[i] = m_Opposite.v[i] + m_Outside.v[i];
  if (Vmod(m_PathNormal.v, 3) < 1e-9) {
    // Looking straight away from the outside point there is no way to go; looking at it, any great circle
    // will do.
    const Direction aside = std::fabs(m_Axis.v[2]) < 0.9 ? Direction{{0, 0, 1}} : Direction{{1, 0, 0}};
    Vprod(m_Opposite.v, aside.v, m_PathNormal.v);
    const bool there = Dot(m_Opposite, m_Outside) > 0.0;
    Vprod(m_PathNormal.v, m_Opposite.v, m_PathMiddle.v);
    if (there) m_PathMiddle = {};
  }
  m_PathNormalLength = Vmod(m_PathNormal.v, 3);
  m_Picture.rim = kRimFactor * geometry.halfDiagonal;
  const double tangent = m_Picture.rim / geometry.scale;  // of half the angle
  m_RimSine = 2.0 * tangent / (1.0 + tangent * tangent);
  m_RimCosine = (1.0 - tangent * tangent) / (1.0 + tangent * tangent);
}

tPoint<double> RegionProjector::FromCentre(const tPoint<double>& pixel) const {
  return {pixel.x - m_Geometry.width * 0.5, pixel.y - m_Geometry.height * 0.5};
}

bool RegionProjector::IsInDisc(const tPoint<double>& p) const {
  return p.x * p.x + p.y * p.y <= m_Picture.rim * m_Picture.rim;
}

void RegionProjector::LineTo(const tPoint<double>& p) {
  m_Picture.points.push_back({p.x + m_Geometry.width * 0.5, p.y + m_Geometry.height * 0.5});
  m_Last = p;
}

// Whether the step along the rim to the bearing of `p` is surely below kLeastRimStep. Most points of an
// outline lie outside, each a little further along than the one before, and need no angle.
bool RegionProjector::IsNearLast(const tPoint<double>& p) const { return IsWithin(p, kTanOfLess); }

bool RegionProjector::IsWithin(const tPoint<double>& p, double tangent) const {
  const double along = m_Last.x * p.x + m_Last.y * p.y, aside = m_Last.x * p.y - m_Last.y * p.x;
  return std::fabs(aside) < tangent * along;
}

// Runs along the rim to the bearing of `p`: a great circle that stays outside sweeps less than half a turn.
// Beside the opposite point it sweeps nearly that much, and which way is a question for `turn`, not for
// rounding. Unless `exact`, small movements wait until they add up.
void RegionProjector::AlongRim(const tPoint<double>& p, int turn, bool exact) {
  if (!exact && IsNearLast(p)) return;
  if (IsWithin(p, kTanOfStep) && !IsWithin(p, kTanOfMore)) {
    const double out = m_Picture.rim / std::sqrt(p.x * p.x + p.y * p.y);
    return LineTo({p.x * out, p.y * out});
  }
  const double bearing = std::atan2(p.y, p.x);
  if (!std::isfinite(bearing)) return;
  const double start = std::atan2(m_Last.y, m_Last.x);
  double sweep = Wrapped(bearing - start);
  if (turn * sweep < -0.5 * kPi) sweep += turn * 2.0 * kPi;
  if (!exact && std::fabs(sweep) < kLeastRimStep) return;
  const int steps = 1 + static_cast<int>(std::fabs(sweep) / kRimStep);
  for (int i = 1; i <= steps; ++i) {
    const double b = start + sweep * i / steps;
    LineTo({m_Picture.rim * std::cos(b), m_Picture.rim * std::sin(b)});
  }
}

// Where both ends lie more than a right angle from the view axis, the straight line between their pictures
// says nothing about the way between them, but the way cannot enter the disc.
void RegionProjector::AddEdge(const End& from, const End& to) {
  const tPoint<double>&a = from.place, &b = to.place;
  const double rim = m_Picture.rim;
  if (from.inDisc && to.inDisc) return LineTo(b);
  if (!from.inDisc && !to.inDisc && IsBehind(from) && IsBehind(to)) {
    if (!IsNearLast(b)) AlongRim(b, TurnOf(*from.direction, *to.direction));
    return;
  }
  // Where the line a + t (b - a) meets the rim.
  const tPoint<double> d = {b.x - a.x, b.y - a.y};
  const double dd = d.x * d.x + d.y * d.y, ad = a.x * d.x + a.y * d.y, aa = a.x * a.x + a.y * a.y;
  const bool endIsNearest = ad >= 0.0 || ad + dd <= 0.0;  // to the centre
  if (!from.inDisc && !to.inDisc && endIsNearest) return AlongRim(b, 0);
  const double root = ad * ad - dd * (aa - rim * rim);
  if (!(root > 0.0)) return AlongRim(b, 0);
  const double enter = (-ad - std::sqrt(root)) / dd, leave = (-ad + std::sqrt(root)) / dd;
  if (!from.inDisc && (leave <= 0.0 || enter >= 1.0)) return AlongRim(b, 0);
  if (!from.inDisc) AlongRim({a.x + enter * d.x, a.y + enter * d.y}, 0, true);
  if (to.inDisc) return LineTo(b);
  LineTo({a.x + leave * d.x, a.y + leave * d.y});
  AlongRim(b, 0);
}

// The sense in which the edge turns about the centre of the picture, counterclockwise 1, clockwise -1. An
// edge through the opposite point, where both are true, gets one of them; CrossesPath asks the same question
// in the same words, so that the two agree whatever the rounding.
int RegionProjector::TurnOf(const Direction& a, const Direction& b) const {
  Direction normal;
  Vprod(a.v, b.v, normal.v);
  return Dot(normal, m_Opposite) > 0.0 ? 1 : -1;
}

// Whether the edge, whose ends lie on both sides of the great circle of the way, crosses the way from the
// point opposite to the view to the point known to be outside: each outline crossed changes sides.
bool RegionProjector::CrossesPath(const Direction& a, const Direction& b) const {
  Direction normal, meeting;
  Vprod(a.v, b.v, normal.v);
  if ((TurnOf(a, b) > 0) == (Dot(normal, m_Outside) > 0.0)) return false;
  const double aSide = std::fabs(Dot(m_PathNormal, a)), bSide = std::fabs(Dot(m_PathNormal, b));
  for (int i = 0; i < 3; ++i) meeting.v[i] = a.v[i] * bSide + b.v[i] * aSide;
  return Dot(meeting, m_PathMiddle) > 0.0;
}

RegionProjector::End RegionProjector::MakeEnd(const Direction& direction, const tPoint<double>& pixel) const {
  const tPoint<double> place = FromCentre(pixel);
  return {&direction, place, IsInDisc(place), Dot(m_PathNormal, direction) > 0.0};
}

void RegionProjector::AppendCaps(std::span<const Direction> ring, std::vector<SkyCap>& caps) {
  std::vector<Direction> points(1, ring.back());
  for (std::size_t first = 0; first < ring.size(); first += kStretch) {
    const auto stretch = ring.subspan(first, std::min(kStretch, ring.size() - first));
    points.insert(points.end(), stretch.begin(), stretch.end());
    caps.push_back(MakeCap(points));
    points.assign(1, stretch.back());
  }
}

// Whether nothing comes of the edges under a cap: it lies outside the disc and on one side of the way to the
// outside, and the bearings of all its points are so near to that of the last point added that the picture
// runs on along the rim later. Margins of a thousandth part leave rounding to the edges themselves.
bool RegionProjector::IsUneventful(const SkyCap& cap) const {
  constexpr double kMargin = 1e-9;
  const double sinReach = m_RimSine * cap.cosine + m_RimCosine * cap.sine,
               cosReach = m_RimCosine * cap.cosine - m_RimSine * cap.sine;
  const double cosine = Dot(m_Axis, cap.axis);
  if (cap.cosine <= 0.0 || sinReach <= 0.0 || cosine > cosReach - kMargin) return false;
  if (std::fabs(Dot(m_PathNormal, cap.axis)) < m_PathNormalLength * cap.sine + kMargin) return false;
  // A tangent at the cap's edge makes the largest difference in bearing: its sine is that of the radius
  // through that of the angle between the axes.
  const double square = 1.0 - cosine * cosine - cap.sine * cap.sine;
  if (square < kMargin) return false;
  const double halfWidth = cap.sine / std::sqrt(square);  // tangent
  if (halfWidth >= kTanOfLess) return false;
  const tPoint<double> p = FromCentre(m_Geometry.Project(cap.axis, m_Frame));
  const double along = m_Last.x * p.x + m_Last.y * p.y, aside = m_Last.x * p.y - m_Last.y * p.x;
  return std::fabs(aside) * (1.0 + kTanOfLess * halfWidth) < (kTanOfLess - halfWidth) * along;
}

void RegionProjector::AddStretch(std::span<const Direction> stretch, End& last) {
  std::array<tPoint<double>, kStretch> pixels;
  m_Geometry.Project(stretch, m_Frame, pixels.data());
  for (std::size_t i = 0; i < stretch.size(); ++i) {
    const End end = MakeEnd(stretch[i], pixels[i]);
    if (end.side != last.side && CrossesPath(*last.direction, *end.direction))
      m_Picture.holdsOutside = !m_Picture.holdsOutside;
    AddEdge(last, end);
    last = end;
  }
}

void RegionProjector::AddRing(std::span<const Direction> ring, std::span<const SkyCap> caps) {
  if (ring.empty()) return;
  End last = MakeEnd(ring.back(), m_Geometry.Project(ring.back(), m_Frame));
  m_Last = std::isfinite(last.place.x) ? last.place : tPoint<double>{1.0, 0.0};
  for (std::size_t first = 0; first < ring.size(); first += kStretch) {
    if (!caps.empty() && IsUneventful(caps[first / kStretch])) continue;
    const Direction& before = first > 0 ? ring[first - 1] : ring.back();
    if (last.direction != &before) last = MakeEnd(before, m_Geometry.Project(before, m_Frame));
    AddStretch(ring.subspan(first, std::min(kStretch, ring.size() - first)), last);
  }
  m_Picture.ringEnds.push_back(static_cast<int>(m_Picture.points.size()));
}

}  // namespace scene
