// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/tile_stars.h"

#include <algorithm>

#include "astro/healpix.h"

namespace scene {
namespace {

constexpr std::size_t kMagnitudes = 1u << 16;  // different ones that a record can hold
constexpr int kNoLimit = INT16_MAX + 1;

std::size_t FindCapacity(const std::vector<StarTiles>& catalogs) {
  std::uint64_t count = 0;
  for (const StarTiles& tiles : catalogs) count += tiles.GetCount();
  return static_cast<std::size_t>(std::min<std::uint64_t>(count, TileStars::kMostTileStars));
}

}  // namespace

TileStars::TileStars(const SkyCatalogs& catalogs) : m_Catalogs(catalogs) {
  const std::size_t capacity = FindCapacity(catalogs.starTiles);
  if (capacity == 0) return;
  m_Placed.reserve(capacity);
  m_Order.reserve(capacity);
  m_Counts.reserve(kMagnitudes);
}

void TileStars::Find(const ViewGeometry& geometry, const ObjectTests& tests) {
  m_Placed.clear();
  m_TooFaint = kNoLimit;
  for (const StarTiles& tiles : m_Catalogs.starTiles) {
    for (int band = 0; band < tiles.GetBandCount(); ++band) AddBand(tiles, band, geometry, tests);
  }
  Sort();
}

void TileStars::AddBand(const StarTiles& tiles, int band, const ViewGeometry& geometry,
                        const ObjectTests& tests) {
  const StarTileBand& stars = tiles.GetBand(band);
  if (!tests.AreStarsShown() || stars.brightest > tests.GetFaintestStar()) return;
  const StarReach reach = tests.GetStarReach(stars.maxMotion, stars.brightest);
  astro::VisitHealpixCone(stars.order, geometry.centreJ2000.v, reach.angle,
                          [&](std::uint32_t first, std::uint32_t last) {
                            for (std::uint32_t cell = first; cell <= last; ++cell)
                              AddCell(tiles.GetStars(band, cell), reach, tests);
                          });
}

// A cell begins with its brightest star.
void TileStars::AddCell(const StarTileRecords& stars, const StarReach& reach, const ObjectTests& tests) {
  const float limit = tests.GetFaintestStar();
  ObjectPlace place;
  for (std::uint32_t i = 0; i < stars.GetCount(); ++i) {
    const StarTileRecord star = stars[i];
    if (star.GetCode() > limit || star.GetMillimagnitudes() >= m_TooFaint) return;
    if (!tests.IsStarDrawn(star, reach, place)) continue;
    if (m_Placed.size() == m_Placed.capacity()) LeaveOutFaintest();
    if (star.GetMillimagnitudes() < m_TooFaint)
      m_Placed.push_back({star, place.pixel, place.radius, place.dim});
  }
}

void TileStars::CountMagnitudes() {
  int brightest = kNoLimit, faintest = -kNoLimit;
  for (const PlacedTileStar& placed : m_Placed) {
    brightest = std::min(brightest, placed.star.GetMillimagnitudes());
    faintest = std::max(faintest, placed.star.GetMillimagnitudes());
  }
  m_Brightest = brightest;
  m_Counts.assign(m_Placed.empty() ? 0 : static_cast<std::size_t>(faintest - brightest + 1), 0);
  for (const PlacedTileStar& placed : m_Placed)
    ++m_Counts[static_cast<std::size_t>(placed.star.GetMillimagnitudes() - m_Brightest)];
}

// Keeps three quarters at most, all of them brighter than any that goes.
void TileStars::LeaveOutFaintest() {
  CountMagnitudes();
  const std::size_t most = m_Placed.size() / 4 * 3;
  std::size_t kept = 0, bin = 0;
  while (kept + m_Counts[bin] <= most) kept += m_Counts[bin++];
  m_TooFaint = m_Brightest + static_cast<int>(bin);
  std::erase_if(m_Placed, [this](const PlacedTileStar& placed) {
    return placed.star.GetMillimagnitudes() >= m_TooFaint;
  });
}

// Counting by magnitude: the time grows with the stars alone.
void TileStars::Sort() {
  CountMagnitudes();
  std::uint32_t first = 0;
  for (std::uint32_t& count : m_Counts) {
    const std::uint32_t next = first + count;
    count = first;
    first = next;
  }
  m_Order.resize(m_Placed.size());
  for (std::uint32_t i = 0; i < m_Placed.size(); ++i) {
    const int magnitude = m_Placed[i].star.GetMillimagnitudes();
    m_Order[m_Counts[static_cast<std::size_t>(magnitude - m_Brightest)]++] = i;
  }
}

}  // namespace scene
