// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "scene/api.h"
#include "scene/catalogs/catalog_table.h"
#include "scene/catalogs/label_rules.h"
#include "scene/catalogs/object_traits.h"
#include "scene/view/directions.h"

namespace scene {

// A deep-sky object as every frame needs it. Its texts are the catalogs'.
struct SCENE_API DeepskyObject {
  Direction direction;  // J2000
  // What the limits of its class are compared with: the magnitude code, or GetCodeOfSize where the magnitude
  // is unknown.
  float code;
  int kind;                // four-character code: "gala", "nebu", "clst", "dsnv"
  int number;              // in lists of favourites, the sub-type in its top byte; -1: none
  float largest;           // radians, 0 when unknown
  float smallest;          // radians, 0 when unknown
  float positionAngle;     // of the larger axis, radians from north by east; not a number when unknown
  int record;              // of the table that it came from
  unsigned char table;     // DeepskyTable
  unsigned char catalogs;  // DeepskyCatalogBit
  bool hasMagnitude;
  const char* label;        // "M42", else the entry in a catalogue, else the proper name
  const char* designation;  // "NGC 1976"; "" without one
  const char* properName;   // "Great Orion Nebula"; "" without one

  // What the rules say stands beside it.
  const char* GetLabel(const LabelRules& rules) const;
};

// The tables of deep-sky objects: Messier's list, and the NGC and IC with others, which adds to it.
enum DeepskyTable : unsigned char { kMessierTable, kNgcTable, kDeepskyTables };

// All deep-sky objects with their texts and the tables that they came from, for what no frame needs, such as
// all the names of an object. May be moved and copied; the objects' texts live as long as one of the copies.
struct SCENE_API DeepskyCatalog {
  std::vector<DeepskyObject> objects;                    // by code, brightest first
  std::shared_ptr<const std::string> texts, localTexts;  // the second: names of another language
  CatalogTable tables[kDeepskyTables];
  std::map<int, int> messierRecords;  // number of Messier's list, record of the second table, -1: none

  // Takes the objects of the tables that were loaded. Records without a position, and those without a
  // magnitude in Messier's list, are left out with one diagnostic line that has their number. A record of the
  // second table that carries the number of an object of Messier's list is no object: what it knows besides
  // belongs to that one.
  void Fill();

  std::size_t size() const { return objects.size(); }
  const DeepskyObject& operator[](std::size_t object) const { return objects[object]; }
  auto begin() const { return objects.begin(); }
  auto end() const { return objects.end(); }

  // The table of the object with its record chosen.
  CatalogTable& SelectRecord(const DeepskyObject& object);
  // The second table with the record about an object of Messier's list chosen; null when there is none.
  CatalogTable* SelectFurther(const DeepskyObject& object);
};

// The code by which an object of unknown magnitude is shown: that of one of its size whose every square
// second of arc shines like a star of magnitude 23, as faint nebulae and the rims of galaxies do;
// magnitude 16 where the size is unknown too. Radians; `smallest` 0: as wide as long.
SCENE_API float GetCodeOfSize(float largest, float smallest);

// What filters compare. The magnitude of an object that has none is not a number.
SCENE_API ObjectTraits GetTraits(const DeepskyObject& object);

}  // namespace scene
