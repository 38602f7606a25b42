// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "scene/view/directions.h"

namespace scene {

// Appends the points of the great-circle arc from `a` to `b`, `a` left out and `b` put in, no two neighbours
// further apart than `maxAngle` radians. The ends are taken by value because they may stand in `points`
// itself.
void AppendArc(Direction a, Direction b, double maxAngle, std::vector<Direction>& points);

}  // namespace scene
