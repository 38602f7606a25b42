// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "scene/api.h"

namespace scene {

// The text, UTF-8, with each negative angle that has no degrees written as people do: the library's formats
// put the sign before the first part that is not 0, "0°-17'57", which becomes "-0°17'57".
SCENE_API std::string PutSignsFirst(const std::string& text);

}  // namespace scene
