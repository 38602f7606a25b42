// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cmath>
#include <vector>

#include "bench/different_inputs.h"
#include "common_interfaces/camera.h"

namespace bench {

using Direction = std::array<double, 3>;

inline constexpr double kViewAngles[3] = {1.2, 0.4, 0.1};

// Unit vectors of mixed kinds: half of them anywhere on the sky, the others where the camera below looks.
inline std::vector<Direction> MakeDirections(std::size_t count = kInputs) {
  const double axis[3] = {std::cos(kViewAngles[1]) * std::cos(kViewAngles[0]),
                          std::cos(kViewAngles[1]) * std::sin(kViewAngles[0]), std::sin(kViewAngles[1])};
  const auto make = [&axis](std::mt19937& random) {
    const double z = Between(random, -1.0, 1.0), lon = Between(random, 0.0, 6.283185307179586);
    const double r = std::sqrt(1.0 - z * z);
    Direction d = {r * std::cos(lon), r * std::sin(lon), z};
    if (random() % 2 == 0) return d;
    for (int i = 0; i < 3; ++i) d[i] = axis[i] + 0.5 * d[i];
    const double length = std::hypot(d[0], d[1], d[2]);
    for (double& component : d) component /= length;
    return d;
  };
  return MakeInputs(1, make, count);
}

// Makes a camera of that direction with a window of 1280 x 800 at zoom 1.
inline void LookThere(CommonInterfaces::Camera& camera) {
  camera.SetWinRect({1280, 800, 1280, 800});
  camera.SetZoom(1.0);
  const double identity[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
  camera.SetReductionMatrix(identity);
  camera.SetRA_Dec({kViewAngles[0], kViewAngles[1], kViewAngles[2], 0});
}

}  // namespace bench
