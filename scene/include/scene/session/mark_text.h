// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "scene/api.h"
#include "scene/frame/sky_markers.h"

namespace scene {

inline constexpr int kMaxMarks = 100;  // of a picture

// "83.8,-5.4", "5.59h,-5.4,7": right ascension in degrees or hours, declination, and its identifier if it has
// one. Nothing for any other text.
SCENE_API std::optional<SkyMark> ParseMark(std::string_view text);
// The text that ParseMark reads as the same; 0 for an identifier that is not given.
SCENE_API std::string FormatMark(const SkyMark& mark);

}  // namespace scene
