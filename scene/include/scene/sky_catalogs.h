// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "scene/api.h"
#include "scene/bodies.h"
#include "scene/catalog_table.h"
#include "scene/constellation_bounds.h"
#include "scene/deepsky_catalog.h"
#include "scene/directions.h"
#include "scene/nebula_outlines.h"
#include "scene/object_traits.h"
#include "scene/star_catalog.h"
#include "scene/star_tiles.h"

namespace scene {

// One stroke of a constellation figure from star to star, along the great circle: `count` points from `first`
// on.
struct FigureStroke {
  int first, count;
  int constellation;  // index in the catalogs' list, -1 for a figure of a constellation that is not in it
};

struct ConstellationName {
  std::string abbreviation;  // "Ori"
  Direction direction;       // J2000
  std::string name;          // Latin
  std::string englishName;   // the Latin one where there is no other

  const std::string& GetShownName(bool english) const { return english ? englishName : name; }
};

// A closed outline of the Milky Way: `count` points from `first` on, the last one joined to the first.
struct MilkyWayRing {
  int level;  // 1 faintest to 5 brightest
  int first, count;
};

// What filters compare. The number of a constellation is the name id of its abbreviation. The spectral class
// of a star of a tile catalog is unknown.
SCENE_API ObjectTraits GetTraits(const ConstellationName& constellation);
SCENE_API ObjectTraits GetTraits(const StarTileRecord& star);

class NameList;

// All objects that a frame can show, prepared once from the catalog tables of the data root. Owns its records
// and may be moved while no frame and no model was made from it. Read by any number of frames of one thread.
struct SkyCatalogs {
  StarCatalog stars;                 // the bright ones, which have names
  std::vector<StarTiles> starTiles;  // all others, catalog by catalog; no star is in two
  DeepskyCatalog deepsky;
  NebulaOutlines nebulaOutlines;
  std::vector<Direction> figurePoints;
  std::vector<FigureStroke> figures;
  std::vector<ConstellationName> constellations;
  ConstellationBounds bounds;
  std::vector<Direction> milkyWayPoints;
  std::vector<MilkyWayRing> milkyWay;  // by level
  BodyList bodies;
  CatalogTable starTable;  // for what no frame needs, such as all the names of an object
  // Names of stars and of deep-sky objects where they lie ready, else null.
  std::shared_ptr<const NameList> starNames, deepskyNames;
};

// What catalogs are loaded for. Questions about objects do without the outlines of the Milky Way, the largest
// of the tables: it is not read then, and nobody is told what is wrong with it.
enum class CatalogUse { kPictures, kQuestions };

// Reads the tables below "catalogs:" of what stands still, and the bodies (LoadBodies), in place of what
// there was, and opens the tile catalogs "catalogs:stars.tiles" and "catalogs:deep_stars.tiles", where there
// are such: the second is what somebody imported. One that cannot be used is left out with one diagnostic
// line. False when one of the tables that are wanted, of stars, Messier's list, the names or figures of
// constellations or the Milky Way, is missing, or a table is none: `error` is then one line that names the
// file, and `catalogs` is what it was. Without the NGC, the outlines of nebulae or the boundaries of
// constellations there are none of these.
SCENE_API bool LoadSkyCatalogs(SkyCatalogs& catalogs, std::string& error,
                               CatalogUse use = CatalogUse::kPictures);

// The star of that number in the tile catalogs (StarTiles::FindNumber); valid as long as they are.
SCENE_API std::optional<StarTileRecord> FindTileStar(const SkyCatalogs& catalogs, int number);

}  // namespace scene
