// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/name_list.h"

#include <cstring>
#include <memory>
#include <string_view>
#include <unordered_map>

#include "common_interfaces/field_names.h"
#include "scene/catalogs/language.h"
#include "scene/catalogs/language_names.h"
#include "scene/catalogs/name_index.h"
#include "scene/catalogs/optional_table.h"
#include "scene/catalogs/sky_catalogs.h"
#include "utils/locale.h"
#include "utils/text.h"

namespace scene {
namespace {

using CommonInterfaces::FieldIds;

const int kObject = GetUniqueID("Object"), kLanguage = GetUniqueID("Language");  // of this table alone

using Names = std::unordered_map<std::string_view, const std::string*>;  // by object

// By their Hipparcos numbers, which the names that lie ready have too: the table need not be read.
void NameStars(const Names& names, SkyCatalogs& catalogs) {
  NameIndex made;
  if (!catalogs.starNames) AddStarNames(catalogs, made);
  const NameIndex& known = catalogs.starNames ? *catalogs.starNames : made;
  for (std::size_t i = 0; i < known.GetCount(); ++i) {
    const NameIndex::Name entry = known[i];
    if (entry.form != NameIndex::kPlain || !entry.written.starts_with("HIP ")) continue;
    const auto name = names.find(entry.written);
    if (name != names.end()) catalogs.stars.SetProperName(static_cast<int>(entry.object), *name->second);
  }
}

// The texts stay with the catalog.
void NameDeepsky(const Names& names, SkyCatalogs& catalogs) {
  std::string texts;
  std::vector<std::pair<DeepskyObject*, std::size_t>> named;
  for (DeepskyObject& object : catalogs.deepsky.objects) {
    std::string label = object.label;
    if (object.catalogs & kInMessier) label.insert(1, " ");
    auto name = names.find(label);
    if (name == names.end()) name = names.find(object.designation);
    if (name == names.end()) continue;
    named.emplace_back(&object, texts.size());
    texts.append(*name->second).push_back('\0');
  }
  catalogs.deepsky.localTexts = std::make_shared<const std::string>(std::move(texts));
  for (const auto& [object, offset] : named)
    object->properName = catalogs.deepsky.localTexts->c_str() + offset;
}

void NameConstellations(const Names& names, SkyCatalogs& catalogs) {
  for (ConstellationName& constellation : catalogs.constellations) {
    const auto name = names.find("cnst " + constellation.abbreviation);
    if (name != names.end()) constellation.localName = *name->second;
  }
}

}  // namespace

std::vector<ListedName> LoadNames() {
  std::vector<ListedName> names;
  CatalogTable table;
  LoadOptionalTable("catalogs:names.txt", table);
  for (int record = 0; record < table.GetCount(); ++record) {
    table.Select(record);
    ListedName entry = {FieldText(table, kObject), FieldText(table, kLanguage),
                        FieldText(table, FieldIds::ProperName)};
    if (!entry.object.empty() && !entry.name.empty()) names.push_back(std::move(entry));
  }
  return names;
}

void TakeNamesOfLanguage(SkyCatalogs& catalogs) {
  const std::string language = GetSystemLocale();
  if (language == kDefaultLanguage) return;
  const auto& all = catalogs.names.Get();
  Names names;
  for (const ListedName& entry : all) {
    if (entry.language == language) names.emplace(entry.object, &entry.name);
  }
  if (names.empty()) return;
  NameStars(names, catalogs);
  NameDeepsky(names, catalogs);
  NameConstellations(names, catalogs);
}

}  // namespace scene
