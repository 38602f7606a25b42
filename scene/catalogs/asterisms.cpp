// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/asterisms.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "common_interfaces/field_names.h"
#include "scene/catalogs/name_list.h"
#include "scene/catalogs/optional_table.h"
#include "scene/view/arcs.h"
#include "utils/locale.h"
#include "utils/text.h"

namespace scene {
namespace {

using CommonInterfaces::FieldIds;

constexpr double kStep = 2.0 * kRadiansPerDegree;  // as the figures of constellations

const int kKey = GetUniqueID("Key"), kPriority = GetUniqueID("Priority");  // columns of these tables alone

std::vector<Asterism> ReadNames() {
  std::vector<Asterism> asterisms;
  CatalogTable table;
  LoadOptionalTable("catalogs:asterisms.txt", table);
  for (int record = 0; record < table.GetCount(); ++record) {
    table.Select(record);
    Asterism asterism = {};
    asterism.key = FieldText(table, kKey);
    asterism.name = asterism.shown = FieldText(table, FieldIds::ProperName);
    asterism.priority = FieldInteger(table, kPriority, 5);
    if (!asterism.key.empty() && !asterism.name.empty()) asterisms.push_back(std::move(asterism));
  }
  return asterisms;
}

// Neighbouring vertices of one polyline become a stroke; the middle is that of the vertices.
void ReadLines(std::vector<Asterism>& asterisms) {
  constexpr double kMissing = std::numeric_limits<double>::infinity();
  CatalogTable table;
  LoadOptionalTable("catalogs:asterism_lines.txt", table);
  std::string lastKey;
  double lastPolyline = 0.0;
  std::optional<Direction> last;
  for (int record = 0; record < table.GetCount(); ++record) {
    table.Select(record);
    const std::string key = FieldText(table, kKey);
    const double polyline = FieldNumber(table, FieldIds::Number, 0.0),
                 ra = FieldNumber(table, FieldIds::RA, kMissing),
                 dec = FieldNumber(table, FieldIds::Dec, kMissing);
    const auto asterism = std::find_if(asterisms.begin(), asterisms.end(),
                                       [&key](const Asterism& known) { return known.key == key; });
    if (asterism == asterisms.end() || !(ra + dec < kMissing)) continue;
    const Direction vertex = MakeDirection(ra, dec);
    for (int i = 0; i < 3; ++i) asterism->direction.v[i] += vertex.v[i];
    if (last && key == lastKey && polyline == lastPolyline) {
      const int first = static_cast<int>(asterism->points.size());
      asterism->points.push_back(*last);
      AppendArc(*last, vertex, kStep, asterism->points);
      asterism->strokes.push_back({first, static_cast<int>(asterism->points.size()) - first});
    }
    last = vertex;
    lastKey = key;
    lastPolyline = polyline;
  }
}

void TakeNames(std::vector<Asterism>& asterisms) {
  const std::string language = GetSystemLocale();
  const std::vector<ListedName> names = LoadNames();
  for (Asterism& asterism : asterisms) {
    const auto name = std::find_if(names.begin(), names.end(), [&](const ListedName& entry) {
      return entry.language == language && entry.object == "astm " + asterism.key;
    });
    if (name != names.end() && language != "en") asterism.shown = name->name;
  }
}

}  // namespace

int Asterism::GetNumber() const { return GetUniqueID(key.c_str()); }

std::vector<Asterism> LoadAsterisms() {
  std::vector<Asterism> asterisms = ReadNames();
  if (asterisms.empty()) return asterisms;
  ReadLines(asterisms);
  std::erase_if(asterisms, [](const Asterism& asterism) { return asterism.strokes.empty(); });
  for (Asterism& asterism : asterisms) asterism.direction = Normalised(asterism.direction);
  TakeNames(asterisms);
  return asterisms;
}

}  // namespace scene
