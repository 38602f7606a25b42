// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>

#include "common_interfaces/zoom_dependence.h"

namespace CommonInterfaces {

// Which rows of a table to look at: a class has its object rows at even places and its label rows at odd
// ones.
enum class ZoomRows { kAll, kObjects, kLabels };

inline constexpr int kNoZoomRow = -1;

// The place of the first of those rows whose class is `cls`, or kNoZoomRow.
int FindZoomRow(std::span<const ZoomDependDesc> table, int cls, ZoomRows rows);

}  // namespace CommonInterfaces
