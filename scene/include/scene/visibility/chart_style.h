// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/api.h"

namespace scene {

struct ShownKinds;

// What a picture is made for. Sessions keep the numbers: frozen.
enum class ChartStyle : unsigned char {
  kScreen = 0,  // the sky as it looks, with everything that the settings show
  kPrint = 1,   // black stars on white paper
  kNight = 2,   // red on black, for eyes that are used to the dark
  kPhoto = 3    // a photograph: no lines and no names
};

// Sets the style, and what a picture of it never shows: that of a photograph lines, symbols and names. What
// the settings switch off stays off.
SCENE_API void SetChartStyle(ChartStyle style, ShownKinds& shown);

}  // namespace scene
