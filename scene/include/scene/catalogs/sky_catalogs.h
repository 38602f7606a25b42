// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "scene/api.h"
#include "scene/catalogs/asterisms.h"
#include "scene/catalogs/bodies.h"
#include "scene/catalogs/catalog_table.h"
#include "scene/catalogs/constellation_bounds.h"
#include "scene/catalogs/deepsky_catalog.h"
#include "scene/catalogs/double_stars.h"
#include "scene/catalogs/gazetteers.h"
#include "scene/catalogs/label_rules.h"
#include "scene/catalogs/name_list.h"
#include "scene/catalogs/nebula_outlines.h"
#include "scene/catalogs/object_traits.h"
#include "scene/catalogs/on_demand.h"
#include "scene/catalogs/sky_map.h"
#include "scene/catalogs/star_catalog.h"
#include "scene/catalogs/star_tiles.h"
#include "scene/view/directions.h"

namespace scene {

// One stroke of a constellation figure from star to star, along the great circle: `count` points from `first`
// on.
struct FigureStroke {
  int first, count;
  int constellation;  // index in the catalogs' list, -1 for a figure of a constellation that is not in it
};

// A constellation where its name is written.
struct SCENE_API ConstellationName {
  std::string abbreviation;  // "Ori"
  Direction direction;       // J2000
  std::string name;          // Latin
  std::string englishName;   // the Latin one where there is no other
  std::string genitive;      // Latin; likewise
  std::string localName;     // in the language of the texts; likewise

  const std::string& GetName(NameForm form) const;
};

// What filters compare. The number of a constellation is the name id of its abbreviation. The spectral class
// of a star of a tile catalog is unknown.
SCENE_API ObjectTraits GetTraits(const ConstellationName& constellation);
SCENE_API ObjectTraits GetTraits(const StarTileRecord& star);

class NameIndex;

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
  SkyMap milkyWay;
  BodyList bodies;
  CatalogTable starTable;  // for what no frame needs, such as all the names of an object
  // Names of stars and of deep-sky objects where they lie ready, else null.
  std::shared_ptr<const NameIndex> starNames, deepskyNames;
  // What most runs do without.
  OnDemand<std::vector<ListedName>> names{LoadNames};
  OnDemand<std::vector<Asterism>> asterisms{LoadAsterisms};
  OnDemand<std::vector<StarPair>> starPairs{LoadStarPairs};
  Gazetteers gazetteers;
};

// What catalogs are loaded for. Questions about objects do without the map of the Milky Way: it is not
// read then, and nobody is told what is wrong with it.
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
