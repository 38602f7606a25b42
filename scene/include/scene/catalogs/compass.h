// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/api.h"

namespace scene {

// The letters of the eight directions from north over east: N, NE, E and so on.
struct CompassLetters {
  char text[8][16];  // zero-terminated UTF-8
};

// From the first characters of the string table's hemisphere letters, as UTF-8; the initials of the English
// names where it has none.
SCENE_API CompassLetters FetchCompassLetters();

}  // namespace scene
