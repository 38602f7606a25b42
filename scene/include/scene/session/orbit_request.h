// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "scene/api.h"
#include "scene/catalogs/bodies.h"
#include "scene/search/object_search.h"
namespace scene {

// Whose orbits are drawn.
struct OrbitRequest {
  bool planets = false;            // Mercury to Pluto
  bool moons = false;              // of planets
  bool all = false;                // those, asteroids, comets and satellites
  std::vector<std::string> names;  // of single bodies, as the user wrote them
};

// "planets", "moons", "all", or names with commas between, among which the words may stand. Nothing for an
// empty text or name.
SCENE_API std::optional<OrbitRequest> ParseOrbits(std::string_view text);

// The text that ParseOrbits reads as the same.
SCENE_API std::string FormatOrbits(const OrbitRequest& request);

// The bodies that are meant, by their index in the list, each once. Nothing, with one line in `error`, for a
// name that is not that of one object and for what has no orbit.
SCENE_API std::optional<std::vector<int>> FindOrbitBodies(const OrbitRequest& request, const BodyList& bodies,
                                                          const ObjectSearch& search, std::string& error);

}  // namespace scene
