// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "scene/object_filter.h"

namespace skyview {

// One English line for each of the rules that an object does not pass: the field, what it lets pass, what the
// object has.
std::vector<std::string> DescribeRejections(const std::vector<scene::FilterRule>& rejecting, int section,
                                            const scene::ObjectTraits& traits);

}  // namespace skyview
