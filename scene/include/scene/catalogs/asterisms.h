// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "scene/api.h"
#include "scene/view/directions.h"

namespace scene {

// A pattern of stars that is no constellation, such as the Big Dipper. Directions are J2000.
struct SCENE_API Asterism {
  struct Stroke {
    int first, count;  // points of a stroke from star to star
  };
  std::string key;      // "BigDipper"
  std::string name;     // English
  std::string shown;    // in the language of the texts
  int priority;         // 1 what everybody knows to 5
  Direction direction;  // the middle of its stars
  std::vector<Direction> points;
  std::vector<Stroke> strokes;

  int GetNumber() const;  // the name id of its key, for lists
};

// Those of "catalogs:asterisms.txt" and "catalogs:asterism_lines.txt", in the order of the first; without
// these tables, and of what has no lines, none. A damaged table is told in one diagnostic line.
SCENE_API std::vector<Asterism> LoadAsterisms();

}  // namespace scene
