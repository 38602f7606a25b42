// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "common_interfaces/object_outputs.h"

namespace scene {

// What SkyFrame lists of its last frame. Valid until the next one is computed.

// A star of the frame: its output record (in the frame's pool), what it is, how it is drawn.
struct DrawnStar {
  CommonInterfaces::StarOutput* output;
  int star;                // index in the catalogue of bright stars; -1: a star of a tile catalog
  int number;              // that names it with the kind "star"
  float opacity;           // 0 to 1
  unsigned char spectrum;  // GetSpectrType, of its tint
};

// The same of a deep-sky object.
struct DrawnDeepsky {
  CommonInterfaces::DeepskyOutput* output;
  int object;
  float opacity;
  float angle;  // of the symbol's larger axis in the picture: from the x axis downwards, radians
};

}  // namespace scene
