// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>

#include "scene/interface_c/sky.h"
#include "scene/view/directions.h"
#include "utils/timezone.h"

namespace {

constexpr int32_t kMostCities = 100000;

SceneCity Describe(const scene::FoundCity& found, scene::List<SceneCity>& list) {
  const scene::City& city = *found.city;
  return {city.latitude / scene::kRadiansPerDegree,
          city.longitude / scene::kRadiansPerDegree,
          city.height,
          city.population,
          0,
          list.Keep(found.name),
          city.country.c_str(),
          city.countryName.c_str(),
          city.zone.c_str()};
}

scene::List<SceneCity> MakeList(const std::vector<scene::FoundCity>& found) {
  scene::List<SceneCity> list;
  for (const auto& city : found) list.records.push_back(Describe(city, list));
  return list;
}

}  // namespace

int scene_find_cities(SceneSky* sky, const char* text, int32_t most, SceneArray* cities) {
  return scene::Call(sky, [&] {
    if (!text || most < 1 || most > kMostCities || !scene::IsKnown(cities))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "wants a text, room for 1 to 100000 cities and an array");
    scene::Give(MakeList(scene::SuggestCities(sky->GetCities(), text, static_cast<std::size_t>(most))),
                sky->foundCities, cities);
    return static_cast<int>(SCENE_OK);
  });
}

int scene_find_cities_near(SceneSky* sky, double latitude, double longitude, int32_t most,
                           SceneArray* cities) {
  return scene::Call(sky, [&] {
    if (!(std::fabs(latitude) <= 90.0) || !(std::fabs(longitude) <= 360.0) || most < 1 ||
        most > kMostCities || !scene::IsKnown(cities))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "wants a place, room for 1 to 100000 cities and an array");
    const auto near =
        scene::FindCitiesAround(sky->GetCities(), latitude * scene::kRadiansPerDegree,
                                longitude * scene::kRadiansPerDegree, static_cast<std::size_t>(most));
    scene::Give(MakeList(near), sky->nearCities, cities);
    return static_cast<int>(SCENE_OK);
  });
}

int scene_get_zone_offset(SceneSky* sky, const char* zone, double julianDate, double* hours) {
  return scene::Call(sky, [&] {
    if (!zone || !hours || !scene::IsDate(julianDate))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "wants a zone, a date and a place for the hours");
    if (!isTimezoneKnown(zone))
      return scene::Fail(*sky, SCENE_NOT_FOUND, std::string(zone) + ": no such time zone");
    *hours = getLocalUTCDeltaForTimezone(zone, julianDate) * 24.0;
    return static_cast<int>(SCENE_OK);
  });
}
