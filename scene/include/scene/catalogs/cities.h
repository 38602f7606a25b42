// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "scene/api.h"

namespace scene {

// A city as a place to observe from. Texts are UTF-8.
struct City {
  std::string name;  // "Sydney"
  std::vector<std::string> otherNames;
  std::string country;         // "AU", ISO 3166
  std::string countryName;     // "Australia"
  double latitude, longitude;  // radians, north and east positive
  double height;               // metres above the sea, 0 where it is unknown
  int population;
  std::string zone;  // of the IANA database
};

// Those of "catalogs:cities.txt". Without it none; nor with a damaged one, which is told in one diagnostic
// line.
SCENE_API std::vector<City> LoadCities();

// A city and the one of its names by which it was found.
struct FoundCity {
  const City* city;
  std::string name;
};

// Every city of that name in any of its languages, the one with the most inhabitants first. Behind a comma a
// country may stand, by code or name: "Sydney", "sydney,au", "São Paulo, Brazil". Upper and lower case,
// accents, blanks and punctuation do not matter. The cities are those of `cities`.
SCENE_API std::vector<FoundCity> FindCities(const std::vector<City>& cities, const std::string& text);

// Cities of which a name begins so, by the same rules, at most `most`, the one with the most inhabitants
// first; "": all cities.
SCENE_API std::vector<FoundCity> SuggestCities(const std::vector<City>& cities, const std::string& text,
                                               std::size_t most);

// The cities around a place, radians, the nearest first, at most `most`.
SCENE_API std::vector<FoundCity> FindCitiesAround(const std::vector<City>& cities, double latitude,
                                                  double longitude, std::size_t most);

// Names like that one, for one that no city has.
SCENE_API std::vector<std::string> FindNearCities(const std::vector<City>& cities, const std::string& text);

}  // namespace scene
