// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <string>
#include <string_view>

#include "common_interfaces/field_names.h"
#include "scene/catalogs/name_index.h"
#include "utils/text.h"

namespace scene {
namespace {

using CommonInterfaces::FieldIds;

const int kOtherNames = GetUniqueID("OtherNames");  // a column of the NGC alone

std::string Numbered(const char* catalog, const CatalogTable& table, int field) {
  const int number = FieldInteger(table, field, 0);
  return number > 0 ? catalog + std::to_string(number) : "";
}

// What a record of the NGC has besides: its own name and what stands between semicolons.
void AddOthers(const CatalogTable& table, std::uint32_t object, NameIndex& names) {
  names.Add(FieldText(table, FieldIds::NGC_ICnumber), object);
  names.Add(FieldText(table, FieldIds::ProperName), object);
  std::string_view others = FieldText(table, kOtherNames);
  while (!others.empty()) {
    const auto end = std::min(others.find(';'), others.size());
    names.Add(others.substr(0, end), object);
    others.remove_prefix(std::min(end + 1, others.size()));
  }
}

}  // namespace

void AddStarNames(SkyCatalogs& catalogs, NameIndex& names) {
  CatalogTable& table = catalogs.starTable;
  for (int i = 0; i < catalogs.stars.GetCount(); ++i) {
    table.Select(catalogs.stars.GetRecord(i));
    const auto object = static_cast<std::uint32_t>(i);
    names.Add(FieldText(table, FieldIds::ProperName), object);
    names.AddBayer(FieldText(table, FieldIds::Bayer), object);
    names.Add(FieldText(table, FieldIds::Flamsteed), object);
    names.Add(Numbered("HR ", table, FieldIds::Number), object);
    names.Add(Numbered("HIP ", table, FieldIds::HipparcosID), object);
  }
}

void AddDeepskyNames(SkyCatalogs& catalogs, NameIndex& names) {
  for (std::size_t i = 0; i < catalogs.deepsky.size(); ++i) {
    const DeepskyObject& entry = catalogs.deepsky[i];
    const CatalogTable& table = catalogs.deepsky.SelectRecord(entry);
    const auto object = static_cast<std::uint32_t>(i) | kNamedDeepsky;
    names.Add(Numbered("M ", table, FieldIds::MessierNumber), object);
    names.Add(FieldText(table, FieldIds::NGC_ICnumber), object);
    names.Add(FieldText(table, FieldIds::ProperName), object);
    AddOthers(table, object, names);
    if (const CatalogTable* further = catalogs.deepsky.SelectFurther(entry))
      AddOthers(*further, object, names);
  }
}

}  // namespace scene
