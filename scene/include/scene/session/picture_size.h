// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "scene/api.h"

namespace scene {

// Pixels.
struct PictureSize {
  int width = 1600;  // 64 to 16384
  int height = 1000;
};

SCENE_API std::optional<PictureSize> ParseSize(std::string_view text);  // "1600x1000"

}  // namespace scene
