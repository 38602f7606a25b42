// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/files/data_kinds.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace skydata {
namespace {

// Every place of its own that a file has.
struct DataPlace {
  DataKind kind;
  const char* place;
};
constexpr DataPlace kPlaces[] = {
    {DataKind::kYearLimits, "media/time_interval.ini"},
    {DataKind::kCatalogTable, "catalogs/stars.txt"},
    {DataKind::kCatalogTable, "catalogs/deepsky.txt"},
    {DataKind::kCatalogTable, "catalogs/ngc_ic.txt"},
    {DataKind::kCatalogTable, "catalogs/nebula_outlines.txt"},
    {DataKind::kCatalogTable, "catalogs/constellations.txt"},
    {DataKind::kCatalogTable, "catalogs/constellation_bounds.txt"},
    {DataKind::kCatalogTable, "catalogs/constellation_lines.txt"},
    {DataKind::kSkyMap, "catalogs/milkyway.map"},
    {DataKind::kCatalogTable, "catalogs/saturn_ring.txt"},
    {DataKind::kCatalogTable, "catalogs/names.txt"},
    {DataKind::kCatalogTable, "catalogs/asterisms.txt"},
    {DataKind::kCatalogTable, "catalogs/asterism_lines.txt"},
    {DataKind::kCatalogTable, "catalogs/cities.txt"},
    {DataKind::kCatalogTable, "catalogs/double_stars.txt"},
    {DataKind::kCatalogTable, "catalogs/asteroids.txt"},
    {DataKind::kCatalogTable, "catalogs/comets.txt"},
    {DataKind::kTwoLineElements, "catalogs/satellites.tle"},
    {DataKind::kStarTiles, "catalogs/stars.tiles"},
    {DataKind::kStarTiles, "catalogs/deep_stars.tiles"},
    {DataKind::kPreparedSky, "catalogs/stars.prepared"},
    {DataKind::kPreparedSky, "catalogs/ngc_ic.prepared"},
    {DataKind::kPlanets, "catalogs/planets&moons/planets&moons.txt"},
    {DataKind::kObservationTimes, "catalogs/comets/best_observation_time.ini"},
    {DataKind::kArticles, "media/find/object_articles_table.bin"},
    {DataKind::kDistances, "media/find/object_distances_table.bin"},
    {DataKind::kFlightList, "media/find/3d_flight_to_objects.txt"},
    {DataKind::kConstellationImages, "media/skyobjects/constell_images/constell.dat"},
    {DataKind::kMilkyWayImages, "media/skyobjects/mway_images/mway.dat"},
    {DataKind::kDeepskyImages, "media/skyobjects/dso_images/dsoimagestrue.txt"},
    {DataKind::kPanoramas, "media/surface/panoramas.ini"},
    {DataKind::kFavourites, "catalogs/favourites.txt"},
    {DataKind::kChosen, "catalogs/observationobjects.txt"},
};

std::string LastName(const std::string& name) { return name.substr(name.find_last_of('/') + 1); }

bool EndsIn(const std::string& name, const char* end) { return std::string_view(name).ends_with(end); }

const DataPlace* FindByLastName(const std::string& name) {
  const std::string last = LastName(name);
  const auto found = std::find_if(std::begin(kPlaces), std::end(kPlaces),
                                  [&](const DataPlace& place) { return LastName(place.place) == last; });
  return found == std::end(kPlaces) ? nullptr : found;
}

bool IsOfOthers(const std::string& name) {
  static constexpr const char* kEnds[] = {".png", ".jpg", ".jpeg", ".svg"};
  return name.starts_with("media/zoneinfo/") ||
         std::any_of(std::begin(kEnds), std::end(kEnds), [&](const char* end) { return EndsIn(name, end); });
}

}  // namespace

const std::vector<DataKindName>& GetDataKindNames() {
  static const std::vector<DataKindName> kNames = {
      {DataKind::kStrings, "showers"},
      {DataKind::kSettings, "settings"},
      {DataKind::kYearLimits, "year-limits"},
      {DataKind::kCatalogTable, "catalog"},
      {DataKind::kGazetteer, "gazetteer"},
      {DataKind::kTwoLineElements, "two-line-elements"},
      {DataKind::kStarTiles, "star-tiles"},
      {DataKind::kSkyMap, "sky-map"},
      {DataKind::kPreparedSky, "prepared-sky"},
      {DataKind::kPlanets, "planets"},
      {DataKind::kObservationTimes, "observation-times"},
      {DataKind::kArticles, "articles"},
      {DataKind::kDistances, "distances"},
      {DataKind::kFlightList, "flight-list"},
      {DataKind::kConstellationImages, "constellation-images"},
      {DataKind::kMilkyWayImages, "milkyway-images"},
      {DataKind::kDeepskyImages, "deepsky-images"},
      {DataKind::kPanoramas, "panoramas"},
      {DataKind::kFavourites, "favourites"},
      {DataKind::kChosen, "chosen"},
      {DataKind::kSelection, "selection"},
  };
  return kNames;
}

DataKind KindOfName(const std::string& name) {
  if (IsOfOthers(name)) return DataKind::kOthers;
  if (const DataPlace* place = FindByLastName(name)) return place->kind;
  const std::string last = LastName(name);
  if (last == "qxstrings.txt") return DataKind::kStrings;
  if (last == "home_params.ini") return DataKind::kHomes;
  if (EndsIn(last, ".data")) return DataKind::kSettings;
  if (EndsIn(last, ".tle")) return DataKind::kTwoLineElements;
  if (EndsIn(last, ".md")) return DataKind::kNote;
  if (EndsIn(last, "_features.txt")) return DataKind::kGazetteer;
  return DataKind::kUnknown;
}

std::string FindPlace(const std::string& name) {
  const DataPlace* const place = FindByLastName(name);
  return place ? place->place : "";
}

bool IsInPlace(const std::string& name) {
  const std::string place = FindPlace(name);
  return place.empty() || place == name;
}

}  // namespace skydata
