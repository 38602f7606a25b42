// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "astro/object_id.h"
#include "scene/api.h"
#include "scene/catalogs/sky_catalogs.h"

namespace scene {

// The name of a planet, the Sun or the Moon from the string table, in the code page of the language; "" for
// any other.
SCENE_API std::string GetPlanetOrMoonName(const SSO_ID& object);

// The name of a star of a tile catalog, which has none but its number: "HIP 70890", of an imported one "Star
// 100000123". ASCII.
SCENE_API std::string GetTileStarName(int number);

// The name of an object, in the code page of the language: that of a planet, the Sun or the Moon from the
// string table, that of a star or a deep-sky object from the catalogs, by its number there. "" for any other.
SCENE_API std::string GetObjectName(const SSO_ID& object, const SkyCatalogs& catalogs);

}  // namespace scene
