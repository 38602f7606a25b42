// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/catalogs/sky_catalogs.h"

namespace scene {

// Gives stars, deep-sky objects and constellations the names that they have in the language of the texts
// (GetSystemLocale); the others keep theirs. For English nothing is read. Once for catalogs that were loaded.
void TakeNamesOfLanguage(SkyCatalogs& catalogs);

}  // namespace scene
