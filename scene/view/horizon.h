// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <vector>

#include "scene/view/directions.h"

namespace scene {

inline constexpr std::size_t kAltitudeCirclePoints = 360;

// The upper edges of the bands that lighten the sky towards the horizon, radians, highest first.
inline constexpr std::array<double, 12> kHazeAltitudes = {0.36,  0.31, 0.265, 0.225, 0.19,  0.157,
                                                          0.127, 0.1,  0.076, 0.054, 0.034, 0.016};

// Appends the circle of one altitude, kAltitudeCirclePoints directions of the horizon frame.
void AppendAltitudeCircle(double altitude, std::vector<Direction>& points);

}  // namespace scene
