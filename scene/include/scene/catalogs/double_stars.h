// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "scene/api.h"

namespace scene {

// Two components of a double star as they were last measured.
struct StarPair {
  int brightStar, hipparcos;            // numbers of the primary in the two catalogues, 0: none
  std::string discoverer;               // "STF 1744"; "" where it is unknown
  std::string components;               // "AB"
  std::optional<double> magnitudes[2];  // of the brighter and the fainter one
  double separation;                    // radians
  double angle;  // of the fainter one as seen from the brighter, radians from north over east
};

// Those of "catalogs:double_stars.txt". Without it none; nor with a damaged one, which is told in one
// diagnostic line.
SCENE_API std::vector<StarPair> LoadStarPairs();

}  // namespace scene
