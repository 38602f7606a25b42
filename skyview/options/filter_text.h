// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "scene/visibility/object_filter.h"

namespace skyview {

// One English line for each rule of the filter that the object does not pass: the field, what it lets pass, what the
// object has.
std::vector<std::string> DescribeRejections(const ObjectFilter& filter, int section,
                                            const ObjectTraits& traits);

}  // namespace skyview
