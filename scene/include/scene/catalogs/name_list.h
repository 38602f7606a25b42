// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "scene/api.h"

namespace scene {

// A name of an object in a language, UTF-8.
struct ListedName {
  std::string object;    // "HIP 91262", "M 31", "cnst Ori", "astm BigDipper", "plnt 2" (catalog_tables.md)
  std::string language;  // "de"
  std::string name;
};

// The names that "catalogs:names.txt" adds to those of the other tables, an object's best known in each
// language first. None, with one diagnostic line, when the table is damaged; none and no line without it.
SCENE_API std::vector<ListedName> LoadNames();

}  // namespace scene
