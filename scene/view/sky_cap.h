// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>

#include "scene/view/directions.h"

namespace scene {

// A circle on the sphere and what lies inside.
struct SkyCap {
  Direction axis;
  double sine, cosine;  // of its radius; a cap wider than a right angle has the cosine 0 and holds not all
};

// A cap that holds the points, few of them or near to each other.
SkyCap MakeCap(std::span<const Direction> points);

}  // namespace scene
