// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/cities.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

#include "common_interfaces/field_names.h"
#include "scene/catalogs/name_key.h"
#include "scene/catalogs/optional_table.h"
#include "scene/view/directions.h"
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

// Whether a name is meant by the key: by the whole of it, or by how it begins.
enum class Match { kWhole, kBegin };

bool IsMeant(const std::string& name, const std::string& key, Match match) {
  const std::string own = MakeNameKey(name);
  return match == Match::kWhole ? own == key : own.starts_with(key);
}

// The one of its names that the key means, null for none.
const std::string* FindName(const City& city, const std::string& key, Match match) {
  if (IsMeant(city.name, key, match)) return &city.name;
  const auto other = std::find_if(city.otherNames.begin(), city.otherNames.end(),
                                  [&](const std::string& name) { return IsMeant(name, key, match); });
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
                 FieldInteger(table, kPopulation, 0),
                 FieldText(table, kZone)};
    if (!city.name.empty() && city.latitude + city.longitude < kMissing) cities.push_back(std::move(city));
  }
  return cities;
}

namespace {

// A whole name may have a comma of its own: "Washington, D.C.".
std::vector<FoundCity> FindMatches(const std::vector<City>& cities, const std::string& text, Match match) {
  std::vector<FoundCity> found;
  const auto collect = [&](const std::string& name, const std::string& country) {
    for (const City& city : cities) {
      const std::string* const called = FindName(city, name, match);
      if (called && (country.empty() || IsIn(city, country))) found.push_back({&city, *called});
    }
  };
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

}  // namespace

std::vector<FoundCity> FindCities(const std::vector<City>& cities, const std::string& text) {
  if (MakeNameKey(text).empty()) return {};
  return FindMatches(cities, text, Match::kWhole);
}

std::vector<FoundCity> SuggestCities(const std::vector<City>& cities, const std::string& text,
                                     std::size_t most) {
  std::vector<FoundCity> found = FindMatches(cities, text, Match::kBegin);
  found.resize(std::min(found.size(), most));
  return found;
}

std::vector<FoundCity> FindCitiesAround(const std::vector<City>& cities, double latitude, double longitude,
                                        std::size_t most) {
  const auto direction = [](double lat, double lon) {
    return Direction{{std::cos(lat) * std::cos(lon), std::cos(lat) * std::sin(lon), std::sin(lat)}};
  };
  const Direction here = direction(latitude, longitude);
  std::vector<std::pair<double, FoundCity>> found;  // by the square of the chord
  for (const City& city : cities) {
    const Direction there = direction(city.latitude, city.longitude);
    double chord = 0.0;
    for (int i = 0; i < 3; ++i) chord += (there.v[i] - here.v[i]) * (there.v[i] - here.v[i]);
    found.push_back({chord, {&city, city.name}});
  }
  std::stable_sort(found.begin(), found.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::vector<FoundCity> nearest;
  for (const auto& [chord, city] : found) {
    if (nearest.size() == most) break;
    nearest.push_back(city);
  }
  return nearest;
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
