// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the options ask of the catalogs of images. The reader answers nothing for a text that is not wholly of
// the accepted form.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "scene/api.h"
#include "scene/frame/image_groups.h"

namespace scene {

// "constellations,deepsky,milkyway", in any order and each at most once. FormatImageGroups writes what the
// reader takes, in that order.
SCENE_API std::optional<unsigned> ParseImageGroups(std::string_view text);
SCENE_API std::string FormatImageGroups(unsigned groups);

}  // namespace scene
