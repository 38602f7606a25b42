// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "scene/catalogs/prepared_file.h"
#include "scene/catalogs/prepared_sky.h"
#include "scene/catalogs/sky_catalogs.h"

namespace scene {

// The prepared catalogs but for their names, docs/formats/prepared_sky.md: what each part consists of, in the
// order of the file, for writing and reading alike. Whoever gives one of these records a member gives it to
// its Exchange too and raises the version; the asserted sizes are there to say so.
struct PreparedParts {
  static void Write(PreparedSky part, SkyCatalogs& catalogs, PreparedWriter& file);
  static void Read(PreparedSky part, SkyCatalogs& catalogs, PreparedReader& file);
  // Whether all counts and indices fit one another and all numbers are such as the readers of texts let
  // through: what everybody relies on who uses the catalogs.
  static bool AreSound(const SkyCatalogs& catalogs);

 private:
  template <class File>
  static void ExchangeAll(File& file, PreparedSky part, SkyCatalogs& catalogs);
  template <class File>
  static void ExchangeStars(File& file, StarCatalog& stars);
  template <class File>
  static void ExchangeDeepsky(File& file, DeepskyCatalog& deepsky);
  template <class File>
  static void ExchangeBounds(File& file, ConstellationBounds& bounds);
  static bool IsSound(const StarCatalog& stars);
  static bool IsSound(const DeepskyCatalog& deepsky);
  static bool IsSound(const NebulaOutlines& outlines, std::size_t objects);
  static bool IsSound(const ConstellationBounds& bounds, std::size_t constellations);
};

// The path of a catalog, "catalogs:stars.txt": of the current data root, else of the one in that folder; "":
// it is not there.
std::string FindCatalog(const char* name, const std::string& root = "");

// Reads the tables that the part is made of, as LoadSkyCatalogs says.
bool LoadCatalogTexts(PreparedSky part, SkyCatalogs& catalogs, std::string& error,
                      const std::string& root = "");

// Takes the same from the prepared file, where that was made of the very texts that are there; else false,
// with that part of the catalogs as it was. One that is damaged is told in one diagnostic line.
bool TakePreparedSky(PreparedSky part, SkyCatalogs& catalogs);

}  // namespace scene
