// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/double_stars.h"

#include <limits>

#include "scene/catalogs/optional_table.h"
#include "utils/text.h"

namespace scene {
namespace {

constexpr double kMissing = std::numeric_limits<double>::infinity();

// Columns of this table alone.
const int kBrightStar = GetUniqueID("BrightStarID"), kHipparcos = GetUniqueID("HipparcosID"),
          kDiscoverer = GetUniqueID("Discoverer"), kPair = GetUniqueID("Pair"),
          kMagnitudes[] = {GetUniqueID("Magnitude1"), GetUniqueID("Magnitude2")},
          kSeparation = GetUniqueID("Separation"), kAngle = GetUniqueID("PairAngle");

std::optional<double> FindNumber(const CatalogTable& table, int field) {
  const double value = FieldNumber(table, field, kMissing);
  return value < kMissing ? std::optional(value) : std::nullopt;
}

}  // namespace

std::vector<StarPair> LoadStarPairs() {
  std::vector<StarPair> pairs;
  CatalogTable table;
  LoadOptionalTable("catalogs:double_stars.txt", table);
  for (int record = 0; record < table.GetCount(); ++record) {
    table.Select(record);
    const auto separation = FindNumber(table, kSeparation), angle = FindNumber(table, kAngle);
    if (!separation || !angle) continue;
    pairs.push_back({FieldInteger(table, kBrightStar, 0),
                     FieldInteger(table, kHipparcos, 0),
                     FieldText(table, kDiscoverer),
                     FieldText(table, kPair),
                     {FindNumber(table, kMagnitudes[0]), FindNumber(table, kMagnitudes[1])},
                     *separation,
                     *angle});
  }
  return pairs;
}

}  // namespace scene
