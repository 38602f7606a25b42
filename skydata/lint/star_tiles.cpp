// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Tile catalogs of stars. Their reader checks a cell when it is first looked at: here it looks at all.
#include <algorithm>
#include <vector>

#include "astro/healpix.h"
#include "scene/catalogs/star_tiles.h"
#include "skydata/lint/rules.h"
#include "utils/text.h"

namespace skydata {
namespace {

constexpr int kCellColumn = 1, kNumberColumn = 2;
constexpr char kShippedTiles[] = "catalogs/stars.tiles";

// visit(band, cell, star) for every star of a whole cell.
template <class Visit>
void VisitStars(const scene::StarTiles& tiles, Visit&& visit) {
  for (int band = 0; band < tiles.GetBandCount(); ++band) {
    const std::uint32_t cells = astro::GetHealpixCellCount(tiles.GetBand(band).order);
    for (std::uint32_t cell = 0; cell < cells; ++cell) {
      const scene::StarTileRecords stars = tiles.GetStars(band, cell);
      for (std::uint32_t i = 0; i < stars.GetCount(); ++i) visit(band, cell, stars[i]);
    }
  }
}

// Each band's stars that are there: what is missing stood in damaged cells.
void CheckCounts(const scene::StarTiles& tiles, const std::vector<std::uint32_t>& found, LintReport& report) {
  for (int band = 0; band < tiles.GetBandCount(); ++band) {
    const std::uint32_t wanted = tiles.GetBand(band).count, has = found[static_cast<std::size_t>(band)];
    if (has == wanted) continue;
    report.Add(LintCode::kDamagedCell, band + 1, 0,
               std::to_string(has) + " of " + std::to_string(wanted) +
                   " stars of the band can be read: the others stand in damaged cells");
  }
  if (tiles.HasDamage() && !report.HasErrors())
    report.Add(LintCode::kDamagedCell, 0, 0, "cells that have no star are damaged");
}

// The ranges of numbers keep catalogs apart.
void CheckNumbers(const LintFile& file, std::vector<int>& numbers, LintReport& report) {
  const bool isShipped = file.name == kShippedTiles;
  const int least = isShipped ? scene::kHipparcosNumbers : scene::kImportedNumbers;
  std::sort(numbers.begin(), numbers.end());
  if (!numbers.empty() &&
      (numbers.front() <= least || (isShipped && numbers.back() > scene::kImportedNumbers))) {
    const int number = numbers.front() <= least ? numbers.front() : numbers.back();
    report.Add(LintCode::kOutOfRange, 0, kNumberColumn,
               "number " + std::to_string(number) + " belongs to the stars of another catalog");
  }
  const auto twice = std::adjacent_find(numbers.begin(), numbers.end());
  if (twice != numbers.end()) {
    report.Add(LintCode::kDuplicate, 0, kNumberColumn,
               "number " + std::to_string(*twice) + " belongs to two stars of the file");
  }
}

}  // namespace

void CollectStarTiles(const LintFile& file, LintRun& run) {
  scene::StarTiles tiles;
  std::string ignored;
  const ReaderWatch watch;
  if (file.name != kShippedTiles || !tiles.Open(file.path.c_str(), ignored)) return;
  VisitStars(tiles, [&run](int, std::uint32_t, const scene::StarTileRecord& star) {
    run.objects.Add(FourCC("star"), star.GetNumber());
  });
}

void LintStarTiles(const LintFile& file, LintRun& run) {
  LintReport report(file.name, run.findings);
  const ReaderWatch watch;
  scene::StarTiles tiles;
  std::string error;
  if (!tiles.Open(file.path.c_str(), error)) {
    report.Add(LintCode::kBadHeader, 0, 0, error.substr(file.path.size() + 2));
    return;
  }
  std::vector<std::uint32_t> found(static_cast<std::size_t>(tiles.GetBandCount()));
  std::vector<int> numbers;
  int astray = 0;
  VisitStars(tiles, [&](int band, std::uint32_t cell, const scene::StarTileRecord& star) {
    ++found[static_cast<std::size_t>(band)];
    numbers.push_back(star.GetNumber());
    const std::uint32_t wanted = astro::GetHealpixCell(tiles.GetBand(band).order, star.GetDirection().v);
    if (wanted == cell || astray++ > 0) return;
    report.Add(LintCode::kOutOfRange, band + 1, kCellColumn,
               "star " + std::to_string(star.GetNumber()) + " stands in cell " + std::to_string(cell) +
                   ", its place is in cell " + std::to_string(wanted));
  });
  CheckCounts(tiles, found, report);
  CheckNumbers(file, numbers, report);
  if (!tiles.IsNumberIndexSound()) {
    report.Add(LintCode::kDamagedCell, 0, kNumberColumn,
               "the index of numbers is damaged: stars are looked for one by one");
  }
  AddMessages(watch, {}, report);
}

}  // namespace skydata
