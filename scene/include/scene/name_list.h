// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "scene/api.h"

namespace scene {

struct SkyCatalogs;

// A name of an object in a language, UTF-8.
struct ListedName {
  std::string object;    // "HIP 91262", "M 31", "cnst Ori", "astm BigDipper", "plnt 2" (catalog_tables.md)
  std::string language;  // "de"
  std::string name;
};

// The names that "catalogs:names.txt" adds to those of the other tables, an object's best known in each
// language first. None, with one diagnostic line, when the table is damaged; none and no line without it.
SCENE_API std::vector<ListedName> LoadNames();

// Gives stars, deep-sky objects and constellations the names that they have in the language of the texts
// (GetSystemLocale); the others keep theirs. For English nothing is read. Once for catalogs that were loaded.
void TakeNamesOfLanguage(SkyCatalogs& catalogs);

}  // namespace scene
