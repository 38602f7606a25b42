// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The tables of a data root. The first byte of the input chooses one, the rest is that table; all others are
// those of a small sky. What was loaded is walked through.
#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>

#include "fuzz/input.h"
#include "fuzz/small_sky.h"
#include "scene/catalogs/cities.h"
#include "scene/catalogs/name_key.h"
#include "scene/search/object_search.h"

namespace {

using fuzz::Require;

constexpr const char* kTables[] = {"stars.txt",
                                   "deepsky.txt",
                                   "ngc_ic.txt",
                                   "constellations.txt",
                                   "constellation_lines.txt",
                                   "constellation_bounds.txt",
                                   "nebula_outlines.txt",
                                   "asteroids.txt",
                                   "comets.txt",
                                   "names.txt",
                                   "asterisms.txt",
                                   "asterism_lines.txt",
                                   "double_stars.txt",
                                   "cities.txt",
                                   "moon_features.txt"};

bool IsDirection(const scene::Direction& direction) {
  const double square = scene::Dot(direction, direction);
  return square > 0.999999 && square < 1.000001;
}

template <class Pieces>
void RequireWithin(const Pieces& pieces, std::size_t count) {
  for (const auto& piece : pieces) {
    Require(piece.first >= 0 && piece.count >= 0 &&
                static_cast<std::size_t>(piece.first) + static_cast<std::size_t>(piece.count) <= count,
            "a piece lies within its list");
  }
}

void LookAtObjects(const scene::SkyCatalogs& catalogs) {
  for (const auto& object : catalogs.deepsky) {
    Require(IsDirection(object.direction) && std::isfinite(object.code), "a deep-sky object has a place");
    Require(object.largest >= 0.0f && object.smallest >= 0.0f, "and a size");
  }
  RequireWithin(catalogs.figures, catalogs.figurePoints.size());
  for (const auto& point : catalogs.figurePoints) Require(IsDirection(point), "a point of a figure");
  for (const auto& constellation : catalogs.constellations)
    Require(IsDirection(constellation.direction), "where the name of a constellation stands");
  RequireWithin(catalogs.nebulaOutlines.rings, catalogs.nebulaOutlines.points.size());
  for (const auto& point : catalogs.nebulaOutlines.points) Require(IsDirection(point), "a vertex");
  for (int i = 0; i < 12; ++i) {
    const int found = catalogs.bounds.Find(scene::MakeDirection(0.5 * i, 0.25 * i - 1.4));
    Require(found >= -1 && found < static_cast<int>(catalogs.constellations.size()),
            "a constellation or none");
  }
  for (const auto& body : catalogs.bodies) Require(scene::GetBodyLabel(body).size() < 4096, "a label");
}

void LookAtFurther(const scene::SkyCatalogs& catalogs) {
  for (const auto& name : scene::LoadNames()) Require(!name.name.empty(), "a listed name is a name");
  for (const auto& asterism : scene::LoadAsterisms()) {
    RequireWithin(asterism.strokes, asterism.points.size());
    Require(IsDirection(asterism.direction), "an asterism has a middle");
  }
  for (const auto& pair : scene::LoadStarPairs()) {
    Require(std::isfinite(pair.separation) && std::isfinite(pair.angle), "a pair is measured");
  }
  for (const auto& feature : catalogs.gazetteers.Get(SSO_ID(FourCC("moon"), 301))) {
    Require(std::isfinite(feature.latitude) && std::isfinite(feature.longitude), "a feature has a place");
  }
}

// Cities by name against one look at each.
void LookForCities() {
  const std::vector<scene::City> cities = scene::LoadCities();
  for (const auto& city : cities) {
    Require(!city.name.empty() && std::isfinite(city.latitude) && std::isfinite(city.longitude), "a city");
  }
  if (cities.empty()) return;
  const scene::City& first = cities.front();
  bool isFound = scene::MakeNameKey(first.name).empty();
  for (const auto& found : scene::FindCities(cities, first.name)) isFound |= found.city == &first;
  Require(isFound, "a city is found by its name");
  const auto around = scene::FindCitiesAround(cities, first.latitude, first.longitude, 3);
  Require(around.size() == std::min<std::size_t>(3, cities.size()), "as many cities as wanted");
  scene::FindNearCities(cities, first.name + "x");
}

void Search(scene::SkyCatalogs& catalogs, const std::string& text) {
  const scene::ObjectSearch search(catalogs);
  for (const scene::Suggestion& suggestion : search.Suggest(text, 5)) {
    const auto found = search.Find(suggestion.name);
    Require(std::find(found.begin(), found.end(), suggestion.object) != found.end(),
            "what is suggested is found by that name");
  }
  std::string error;
  if (!search.FindOne("Sirius", error)) Require(fuzz::IsOneLine(error), "or one line says why not");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const fuzz::SmallSky& sky = fuzz::SmallSky::Get();
  fuzz::Input input(data, size);
  const int choice = input.TakeBelow(static_cast<int>(std::size(kTables)));
  const std::string folder = choice + 1 == static_cast<int>(std::size(kTables)) ? "gazetteers/" : "catalogs/";
  const std::string text = input.TakeRest();
  const fuzz::SmallSky::Replaced replaced(sky, folder + kTables[choice], text);
  scene::SkyCatalogs catalogs;
  std::string error;
  if (!scene::LoadSkyCatalogs(catalogs, error)) {
    Require(fuzz::IsOneLine(error), "one line names the table that is none");
    return 0;
  }
  LookAtObjects(catalogs);
  LookAtFurther(catalogs);
  LookForCities();
  Search(catalogs, text.substr(0, 3));
  return 0;
}
