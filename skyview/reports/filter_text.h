// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "scene/visibility/object_filter.h"

namespace skyview {

// What a rule that an object does not pass lets pass and what the object has, in English, to stand behind the
// field: ": it lets magnitudes 1.00 to 3.00 pass, it has 4.50". "" of the rule of favourites.
std::string DescribeRule(const scene::FilterRule& rule, int section, const scene::ObjectTraits& traits);

}  // namespace skyview
