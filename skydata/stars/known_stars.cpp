// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/stars/known_stars.h"

#include <algorithm>
#include <cmath>

#include "astro/constants.h"
#include "astro/healpix.h"
#include "astro/vectors.h"

namespace skydata {
namespace {

constexpr int kOrder = 9;  // cells of 7': few stars in each, and few stars near a border
constexpr double kYears = 1991.25 - 2000.0;

}  // namespace

void KnownStars::Add(const scene::Direction& direction, const scene::Direction& motion, double magnitude,
                     bool isPaired) {
  const auto star = static_cast<std::uint32_t>(m_Stars.size());
  const scene::Direction way = {{motion.v[0] * kYears, motion.v[1] * kYears, motion.v[2] * kYears}};
  m_Stars.push_back({direction, way, magnitude, isPaired});
  astro::VisitHealpixCone(kOrder, direction.v, kFar * astro::kRadiansPerArcsecond + Vmod(way.v, 3),
                          [&](std::uint32_t first, std::uint32_t last) {
                            for (std::uint32_t cell = first; cell <= last; ++cell)
                              m_Entries.push_back({cell, star});
                          });
}

void KnownStars::Sort() {
  std::sort(m_Entries.begin(), m_Entries.end(), [](const Entry& a, const Entry& b) {
    return a.cell != b.cell ? a.cell < b.cell : a.star < b.star;
  });
}

// Arc seconds from the nearest place of the way.
double KnownStars::GetDistance(const Star& star, const scene::Direction& direction) {
  double from[3], nearest[3];
  for (int i = 0; i < 3; ++i) from[i] = direction.v[i] - star.direction.v[i];
  const double length = scene::Dot(star.way, star.way);
  const double share = length > 0.0 ? std::clamp(astro::Dot(from, star.way.v) / length, 0.0, 1.0) : 0.0;
  for (int i = 0; i < 3; ++i) nearest[i] = star.direction.v[i] + share * star.way.v[i];
  return VectorsAngle(direction.v, nearest) / astro::kRadiansPerArcsecond;
}

// visit(star, arc seconds) for the stars within reach.
template <class Visit>
void KnownStars::VisitWithin(const scene::Direction& direction, Visit&& visit) const {
  const std::uint32_t cell = astro::GetHealpixCell(kOrder, direction.v);
  auto entry = std::lower_bound(m_Entries.begin(), m_Entries.end(), cell,
                                [](const Entry& a, std::uint32_t b) { return a.cell < b; });
  for (; entry != m_Entries.end() && entry->cell == cell; ++entry) {
    const double away = GetDistance(m_Stars[entry->star], direction);
    if (away <= kFar) visit(entry->star, away);
  }
}

void KnownStars::NoteNear(const scene::Direction& direction) {
  VisitWithin(direction, [&](std::uint32_t star, double away) {
    if (away <= kNear) m_Stars[star].isPaired = true;
  });
}

bool KnownStars::Has(const scene::Direction& direction, double magnitude) const {
  bool isKnown = false;
  VisitWithin(direction, [&](std::uint32_t index, double away) {
    const Star& star = m_Stars[index];
    isKnown |= away <= kNear || (!star.isPaired && std::fabs(star.magnitude - magnitude) <= kSameMagnitude);
  });
  return isKnown;
}

}  // namespace skydata
