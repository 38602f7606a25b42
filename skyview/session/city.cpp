// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/session/city.h"

#include <algorithm>

#include "scene/catalogs/cities.h"
#include "scene/catalogs/texts.h"
#include "scene/view/directions.h"
#include "utils/messages.h"

namespace skyview {
namespace {

std::string NameWithCountry(const scene::City& city) { return city.name + ", " + city.country; }

// The table does not say which language a name is in, but the letters of Russian tell theirs.
std::string NameInLanguage(const scene::FoundCity& found, const std::string& language) {
  const auto isCyrillic = [](const std::string& name) {
    return !name.empty() && (name[0] == '\xD0' || name[0] == '\xD1');
  };
  if (language != "ru") return found.name;
  const auto& names = found.city->otherNames;
  const auto name = std::find_if(names.begin(), names.end(), isCyrillic);
  return name == names.end() ? found.name : *name;
}

// "--place 'Sydney': Sydney, AU, the largest of 2; another: Sydney, CA"
std::string DescribeChosen(const std::string& asked, const std::vector<scene::FoundCity>& found) {
  constexpr std::size_t kListed = 6;
  std::vector<std::string> others;
  for (std::size_t i = 1; i < std::min(found.size(), kListed); ++i)
    others.push_back(NameWithCountry(*found[i].city));
  return asked + NameWithCountry(*found[0].city) + ", which has the most inhabitants of " +
         std::to_string(found.size()) + "; not " + JoinNames(others) + "\n";
}

}  // namespace

ViewResult TakeCity(ViewOptions& view, const std::string& language, Diagnostics& diagnostics) {
  if (!view.city) return {};
  const std::string asked = "--place '" + *view.city + "': ";
  const std::size_t before = diagnostics.lines.size();
  const std::vector<scene::City> cities = scene::LoadCities();
  if (cities.empty()) {
    const bool isTold = diagnostics.lines.size() > before;
    return {Failure::kBadData, asked + (isTold ? MakeOneLine(scene::MessageToUtf8(diagnostics.lines[before]))
                                               : "the data root has no cities, catalogs:cities.txt")};
  }
  const auto found = scene::FindCities(cities, *view.city);
  if (found.empty()) {
    const std::string near = JoinNames(scene::FindNearCities(cities, *view.city));
    return {Failure::kBadData, asked + "no such city" + (near.empty() ? "" : "; similar: " + near) +
                                   " (LAT,LON takes any place)"};
  }
  if (found.size() > 1) diagnostics.lines.push_back(DescribeChosen(asked, found));
  const scene::City& city = *found.front().city;
  view.place = Place{city.latitude / scene::kRadiansPerDegree, city.longitude / scene::kRadiansPerDegree,
                     city.height, NameInLanguage(found.front(), language)};
  if (!view.zone) view.zone = city.zone;
  return {};
}

}  // namespace skyview
