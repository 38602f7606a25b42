// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What is known of an object, in words.
#pragma once

#include <string>
#include <vector>

#include "common_interfaces/camera.h"
#include "scene/api.h"
#include "scene/search/object_search.h"

namespace scene {

// What a fact is about. The C interface hands out the numbers: frozen.
enum class FactKind : int {
  kName = 0,
  kOtherNames = 1,
  kKind = 2,
  kConstellation = 3,
  kSpectralType = 4,
  kJ2000 = 5,      // right ascension and declination, without aberration
  kOfDate = 6,     // the same as they are seen
  kDirection = 7,  // azimuth and altitude without refraction
  kRefraction = 8,
  kDistance = 9,  // in a fitting unit
  kMagnitude = 10,
  kSize = 11,     // of what shines by the Sun also how much is lit
  kBesides = 12,  // DescribeBesides, a fact a line
  kRise = 13,     // these three: FindObjectDay (object_day.h)
  kTransit = 14,
  kSet = 15,
  kWarning = 16  // the model of the planets does not hold at that moment
};

// One thing known of an object, as a line to read.
struct ObjectFact {
  FactKind kind;
  std::string line;  // "Magnitude: -1.44", UTF-8
};

// What the catalogs say of the object: names, kind, spectral type.
SCENE_API std::vector<ObjectFact> ListCatalogFacts(const FoundObject& object, const ObjectSearch& search,
                                                   SkyCatalogs& catalogs);

// What an observer at the camera's place and moment sees of it, from the positions to what rises and sets, by
// the clocks of the camera's zone; then what the picture leaves out. Empty when the observer is not near the
// Earth's surface or nobody can tell where the object is.
SCENE_API std::vector<ObjectFact> ListSightFacts(const FoundObject& object, SkyCatalogs& catalogs,
                                                 const CommonInterfaces::Camera& camera);

// The unit in which a distance (au) is read best: kilometres near the Earth, then thousands of them,
// astronomical units in the solar system, light years, kiloparsecs.
SCENE_API char ChooseUnit(double distance);

}  // namespace scene
