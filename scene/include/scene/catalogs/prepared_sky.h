// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "scene/api.h"

namespace scene {

// Catalogs as LoadSkyCatalogs makes them of tables, and the names by which their objects are found, ready in
// a file of the data root (docs/formats/prepared_sky.md). It says of which texts it was made, to the byte,
// and counts only as long as these are there; without it the texts are read. Two files, because what comes
// from share-alike data stands in files of its own.
enum class PreparedSky {
  kStars,   // "catalogs:stars.prepared": stars; figures, names and boundaries of constellations
  kDeepsky  // "catalogs:ngc_ic.prepared": deep-sky objects and outlines of nebulae
};
SCENE_API const char* GetPreparedName(PreparedSky part);

// Prepares the tables of the data root in that folder; the bytes of the file. Empty when one of those that
// are wanted cannot be used: `error` is then one line.
SCENE_API std::string PrepareSky(PreparedSky part, const std::string& root, std::string& error);

// What such a file holds.
struct PreparedSkySummary {
  PreparedSky part = PreparedSky::kStars;
  std::vector<std::pair<const char*, std::size_t>> counts;  // of what, and how many
  std::vector<std::string> changedTexts;                    // logical names of texts that are others by now
};

// Looks into the file at a resolved path. False with one line, without its name, when it is none or damaged.
SCENE_API bool InspectPreparedSky(const char* path, PreparedSkySummary& summary, std::string& error);

}  // namespace scene
