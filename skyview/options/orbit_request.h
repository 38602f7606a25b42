// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace skyview {

// Whose orbits are drawn.
struct OrbitRequest {
  bool planets = false;            // Mercury to Pluto
  bool moons = false;              // of planets
  bool all = false;                // those, asteroids, comets and satellites
  std::vector<std::string> names;  // of single bodies, as the user wrote them
};

// "planets", "moons", "all", or names with commas between, among which the words may stand. Nothing for an
// empty text or name.
std::optional<OrbitRequest> ParseOrbits(std::string_view text);

// The text that ParseOrbits reads as the same.
std::string FormatOrbits(const OrbitRequest& request);

}  // namespace skyview
