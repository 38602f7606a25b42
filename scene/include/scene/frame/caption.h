// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "scene/api.h"

namespace scene {

// Where the caption stands in the lower left corner of a picture, in pixels of the standard picture of 1600 x
// 1000.
inline constexpr double kCaptionFont = 13.0;
inline constexpr double kCaptionLeft = 14.0;
inline constexpr double kCaptionLineStep = 1.5 * kCaptionFont;

// The lines of the caption of a picture of that size, pixels: as many of the texts beside each other as fit,
// broken between texts; one that alone is too wide begins a line of its own and is broken between words.
// Lines that would reach higher than a third of the picture are left out, and so is a word wider than the
// picture. Texts are UTF-8.
SCENE_API std::vector<std::string> MakeCaption(const std::vector<std::string>& texts, int width, int height);

}  // namespace scene
