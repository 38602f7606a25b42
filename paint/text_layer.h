// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "scene/display/display_list.h"

namespace paint {

// The texts of a list as a group of an SVG that is not seen.
std::string MakeTextLayer(const scene::DisplayList& list);

}  // namespace paint
