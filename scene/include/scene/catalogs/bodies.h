// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "astro/constants.h"
#include "astro/object_id.h"
#include "astro/object_records.h"
#include "scene/api.h"
#include "scene/catalogs/catalog_table.h"
#include "scene/catalogs/object_traits.h"

namespace scene {

using astro::kEarthNumber;
using astro::kMoonNumber;
using astro::kSunNumber;

// A body that moves among the stars.
struct SkyBody {
  SSO_ID id;
  bool hasElements = false;  // asteroids, comets, satellites; the model knows the others
  OrbitalElements elements;
  std::vector<std::string>
      names;  // UTF-8, the best known first; of the Sun, the Moon and planets none: GetBodyLabel
};

// The Sun first, then the Moon, the planets from Mercury to Pluto without the Earth, their moons, asteroids,
// comets, satellites.
using BodyList = std::vector<SkyBody>;

inline constexpr int kSunBody = 0, kMoonBody = 1;  // indices in the list

// The Sun, the Moon, the planets, the moons that astro/moons.h knows and the list of planets and moons names,
// then what "catalogs:asteroids.txt" and "catalogs:comets.txt" hold (docs/formats/catalog_tables.md), without
// the asteroid 134340, which is the planet Pluto. A table that is missing or is none leaves its bodies out,
// with one diagnostic line, and so does a record whose elements are no orbit.
SCENE_API BodyList LoadBodies();

// What is written beside a body, UTF-8: the name of a planet in the current language, else its first name.
SCENE_API std::string GetBodyLabel(const SkyBody& body);

// What filters compare; `code` is the magnitude code of the moment.
SCENE_API ObjectTraits GetTraits(const SkyBody& body, float code);

// The index of that body, -1 when the list has none.
SCENE_API int FindBody(const BodyList& bodies, const SSO_ID& id);

}  // namespace scene
