// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/display/display_list.h"

namespace scene {

// What printed atlases draw at the dot of a star, in pixels, y downwards: through a double a bar along the
// line to its companion, around a variable a ring, around a star with planets a tilted path.
struct StarSign {
  float x, y, radius;  // of the dot
  unsigned marks;      // of StarMark
  float angle;         // of the bar, from the x axis downwards, radians
  Rgba colour;
  ObjectRef object;
};

// In the layer of symbols, below all dots: trails of stars have none. A line at most, and two ellipses.
void AddStarSign(const StarSign& sign, DisplayList& list);

// How far signs reach beyond the dot, pixels of the standard picture.
inline constexpr float kSignReach = 4.0f;

}  // namespace scene
