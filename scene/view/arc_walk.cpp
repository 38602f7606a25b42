// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/arc_walk.h"

#include <algorithm>
#include <cmath>

#include "astro/earth_orientation.h"
#include "astro/vectors.h"

namespace scene {
namespace {

constexpr double kMargin = 2.0;  // pixels around the window in which arcs are walked

// The radius of the circle that is the picture of a circle, pixels: stereographic, so that every one is.
double FindPictureRadius(const Direction& middle, const Direction& first, const Direction& second,
                         const ViewGeometry& geometry) {
  Direction axis;
  Vprod(first.v, second.v, axis.v);
  axis = Normalised(axis);
  const double bend = std::fabs(Dot(axis, middle) + Dot(axis, geometry.centreHorizon));
  return geometry.scale * Vmod(first.v, 3) / std::max(bend, 1e-12);
}

}  // namespace

ArcWalk::ArcWalk(const ViewGeometry& geometry, const SightOfSystem& sight, const SkyArc& arc)
    : m_Geometry(geometry),
      m_Sight(sight),
      m_To(arc.to),
      m_Next(arc.from),
      m_CosineOfNext(std::cos(arc.from)),
      m_SineOfNext(std::sin(arc.from)),
      m_Radius(Vmod(arc.first.v, 3)),
      m_Half{0.5 * geometry.width + kMargin, 0.5 * geometry.height + kMargin} {
  MV3prod(sight.turn, arc.middle.v, m_Middle.v);
  MV3prod(sight.turn, arc.first.v, m_First.v);
  MV3prod(sight.turn, arc.second.v, m_Second.v);
  const double radius = FindPictureRadius(m_Middle, m_First, m_Second, geometry) / geometry.unit;
  constexpr double kGrowth = 1.01;  // of a stretch by the scale, which grows along it
  m_Stretch = std::min(kLongest, std::sqrt(8.0 * radius * kSagitta) / kGrowth) * geometry.unit;
  m_StretchInAir = std::min(m_Stretch, kLongestInAir * geometry.unit);
  const double corner = std::hypot(m_Half.x, m_Half.y) / geometry.scale;
  m_Corner = 2.0 / (1.0 + corner * corner);
  m_Slope = {1.0 / std::hypot(m_Half.x, geometry.scale), 1.0 / std::hypot(m_Half.y, geometry.scale)};
}

bool ArcWalk::Next() {
  if (m_Ended) return false;
  const Direction seen = See();
  m_Geometry.camera.RA_Dec2PixD(seen.v, &m_Pixel);
  m_Sine = seen.v[2];
  m_Joined = m_NextJoined;
  m_Ended = m_Next >= m_To;
  Turn(FindStep(seen));
  return true;
}

// Most turns are small ones, for which few terms of the series have all digits.
void ArcWalk::Turn(double wanted) {
  constexpr double kSmall = 0.05;  // radians
  const double left = m_To - m_Next, angle = std::min(left, wanted);
  m_Next = angle < left ? m_Next + angle : m_To;
  if (angle > kSmall) {
    m_CosineOfNext = std::cos(m_Next);
    m_SineOfNext = std::sin(m_Next);
    return;
  }
  const double square = angle * angle;
  const double s = angle * (1.0 - square / 6.0 * (1.0 - square / 20.0 * (1.0 - square / 42.0)));
  const double c = 1.0 - square * 0.5 * (1.0 - square / 12.0 * (1.0 - square / 30.0 * (1.0 - square / 56.0)));
  const double cosine = m_CosineOfNext * c - m_SineOfNext * s;
  m_SineOfNext = m_SineOfNext * c + m_CosineOfNext * s;
  m_CosineOfNext = cosine;
}

Direction ArcWalk::See() const {
  Direction direction;
  for (int i = 0; i < 3; ++i)
    direction.v[i] = m_Middle.v[i] + m_CosineOfNext * m_First.v[i] + m_SineOfNext * m_Second.v[i];
  if (m_Sight.aberration)
    astro::Aberration(direction.v, m_Sight.velocity, m_Sight.inverseLorentzFactor, direction.v);
  return m_Sight.lifted ? m_Geometry.Seen(direction) : direction;
}

// Where `along` is 1 + the cosine of the angle from the view axis, a pixel x right of the middle lies inside
// the window's right edge while (half the width - x) along > 0. Both are linear in the direction: divided by
// their slopes they tell how far, in radians, the direction must at least turn to come into the window. Air
// and aberration stretch the sky by less than a tenth.
double ArcWalk::FindStep(const Direction& seen) {
  constexpr double kStretched = 0.9, kBent = 0.12;  // sine of the altitude below which lines are bent
  const double along = 1.0 + Dot(seen, m_Geometry.centreHorizon);
  const double x = std::fabs(m_Pixel.x - 0.5 * m_Geometry.width),
               y = std::fabs(m_Pixel.y - 0.5 * m_Geometry.height);
  const double aside = std::max((x - m_Half.x) * m_Slope.x, (y - m_Half.y) * m_Slope.y) * along;
  // Opposite to the view there is no pixel, and what is said here first counts.
  const double leap = std::max(m_Corner - along, aside) * kStretched;
  const double stretch = m_Sight.lifted && m_Sine < kBent ? m_StretchInAir : m_Stretch;
  const double step = stretch * along / m_Geometry.scale;
  m_NextJoined = leap <= step;
  return (m_NextJoined ? step : leap) / m_Radius;
}

}  // namespace scene
