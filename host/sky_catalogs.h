// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/directions.h"
#include "host/star_catalog.h"

namespace skyview {

struct DeepskyObject {
  Direction direction;  // J2000
  float code;           // magnitude code
  int kind;             // four-character code: "gala", "nebu", "clst", "dsnv"
  int number;           // catalogue number, -1: none
  float largest;        // radians, 0 when unknown
  float smallest;       // radians, 0 when unknown
  std::string label;    // "M42", else the NGC or IC number, else the proper name
};

// One stroke of a constellation figure from star to star, along the great circle: `count` points from `first` on.
struct FigureStroke {
  int first, count;
};

struct ConstellationName {
  Direction direction;      // J2000
  std::string name;         // Latin
  std::string englishName;  // the Latin one where there is no other
};

// A closed outline of the Milky Way: `count` points from `first` on, the last one joined to the first.
struct MilkyWayRing {
  int level;  // 1 faintest to 5 brightest
  int first, count;
};

// Everything skyview draws, prepared once from the catalog tables of the data root.
struct SkyCatalogs {
  StarCatalog stars;
  std::vector<DeepskyObject> deepsky;  // brightest first
  std::vector<Direction> figurePoints;
  std::vector<FigureStroke> figures;
  std::vector<ConstellationName> constellations;
  std::vector<Direction> milkyWayPoints;
  std::vector<MilkyWayRing> milkyWay;  // by level
};

// Reads the five tables below "catalogs:". False when one is missing or is no table: `error` is then one line that
// names the file.
bool LoadSkyCatalogs(SkyCatalogs& catalogs, std::string& error);

}  // namespace skyview
