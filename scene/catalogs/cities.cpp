// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/cities.h"

#include <algorithm>
#include <limits>
#include <string_view>

#include "common_interfaces/field_names.h"
#include "scene/catalogs/optional_table.h"
#include "scene/directions.h"
#include "scene/name_key.h"
#include "utils/near_names.h"
#include "utils/text.h"

namespace scene {
namespace {

using CommonInterfaces::FieldIds;

// Columns of this table alone.
const int kOtherNames = GetUniqueID("OtherNames"), kCountry = GetUniqueID("Country"),
          kCountryName = GetUniqueID("CountryName"), kLatitude = GetUniqueID("Latitude"),
          kLongitude = GetUniqueID("Longitude"), kHeight = GetUniqueID("Height"),
          kPopulation = GetUniqueID("Population"), kZone = GetUniqueID("Zone");

std::vector<std::string> SplitNames(std::string_view names) {
  std::vector<std::string> list;
  while (!names.empty()) {
    const auto end = std::min(names.find(';'), names.size());
    const auto first = std::min(names.find_first_not_of(' '), end);
    list.emplace_back(names.substr(first, end - first));
    names.remove_prefix(std::min(end + 1, names.size()));
  }
  return list;
}

// The one of its names that has the key, null for none.
const std::string* FindName(const City& city, const std::string& key) {
  if (MakeNameKey(city.name) == key) return &city.name;
  const auto other = std::find_if(city.otherNames.begin(), city.otherNames.end(),
                                  [&key](const std::string& name) { return MakeNameKey(name) == key; });
  return other == city.otherNames.end() ? nullptr : &*other;
}

bool IsIn(const City& city, const std::string& country) {
  return MakeNameKey(city.country) == country || MakeNameKey(city.countryName) == country;
}

}  // namespace

std::vector<City> LoadCities() {
  constexpr double kMissing = std::numeric_limits<double>::infinity();
  std::vector<City> cities;
  CatalogTable table;
  LoadOptionalTable("catalogs:cities.txt", table);
  for (int record = 0; record < table.GetCount(); ++record) {
    table.Select(record);
    City city = {FieldText(table, FieldIds::ProperName),
                 SplitNames(FieldText(table, kOtherNames)),
                 FieldText(table, kCountry),
                 FieldText(table, kCountryName),
                 FieldNumber(table, kLatitude, kMissing),
                 FieldNumber(table, kLongitude, kMissing),
                 FieldNumber(table, kHeight, 0.0),
                 static_cast<int>(FieldNumber(table, kPopulation, 0.0)),
                 FieldText(table, kZone)};
    if (!city.name.empty() && city.latitude + city.longitude < kMissing) cities.push_back(std::move(city));
  }
  return cities;
}

// A whole name may have a comma of its own: "Washington, D.C.".
std::vector<FoundCity> FindCities(const std::vector<City>& cities, const std::string& text) {
  std::vector<FoundCity> found;
  const auto collect = [&](const std::string& name, const std::string& country) {
    for (const City& city : cities) {
      const std::string* const called = FindName(city, name);
      if (called && (country.empty() || IsIn(city, country))) found.push_back({&city, *called});
    }
  };
  if (MakeNameKey(text).empty()) return found;
  collect(MakeNameKey(text), "");
  const auto comma = text.rfind(',');
  if (found.empty() && comma != std::string::npos) {
    const std::string country = MakeNameKey(text.substr(comma + 1));
    if (!country.empty()) collect(MakeNameKey(text.substr(0, comma)), country);
  }
  std::stable_sort(found.begin(), found.end(), [](const FoundCity& a, const FoundCity& b) {
    return a.city->population > b.city->population;
  });
  return found;
}

std::vector<std::string> FindNearCities(const std::vector<City>& cities, const std::string& text) {
  std::vector<std::string> keys, names, near;
  for (const City& city : cities) {
    keys.push_back(MakeNameKey(city.name));
    names.push_back(city.name);
    for (const std::string& other : city.otherNames) {
      keys.push_back(MakeNameKey(other));
      names.push_back(other);
    }
  }
  const std::string wanted = MakeNameKey(text.substr(0, text.rfind(',')));
  for (const std::string& key : FindNearNames(wanted, keys)) {
    const auto at = std::find(keys.begin(), keys.end(), key) - keys.begin();
    near.push_back(names[static_cast<std::size_t>(at)]);
  }
  return near;
}

}  // namespace scene
