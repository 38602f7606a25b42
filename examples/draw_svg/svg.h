// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>

#include "scene/display/display_list.h"

// Writes the display list as an SVG picture. `out` must write numbers with a decimal point. What is left out
// for the sake of shortness: glows, the dark side of discs, shadows on them and the soft edges of areas.
void WriteSvg(const scene::DisplayList& list, std::ostream& out);
