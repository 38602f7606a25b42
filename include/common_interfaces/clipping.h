// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Whether a segment of the screen can be seen in a rectangle, and the stretch of it that can.
#pragma once

#include "common_interfaces/api.h"
#include "utils/geometry.h"

namespace CommonInterfaces {

// Both functions clip the segment p0 p1 in place to the rectangle's usable area, x from left to right - 1 and
// y from top to bottom - 1, and return false when it is certainly invisible. What to expect of the result:
// - False may leave a point already moved; draw nothing then.
// - True is no promise: nothing is tested after the clipping in y, and a slanting segment that crosses both
//   the left and the right edge, or both the top and the bottom, ends beside its true crossing at one of
//   them. The window's own clipping must stay on.
// - A point exactly on an edge counts as outside: a segment along an edge is refused, and so may be one that
//   begins exactly at the top or bottom edge and leaves the area for good through the opposite one.
// - The area is taken as it is: one whose right edge lies left of its left edge is not noticed.
// Neither allocates, fails or keeps anything. Any thread.

// Pixels. A scale above 0.006457718232378999 (one hundredth of 37 degrees in radians) computes in 16.16 fixed
// point, which is meant for coordinates whose differences stay below 32768 and wraps to 32 bits beyond. Any
// other scale computes in doubles and truncates towards zero.
COMMON_INTERFACES_API bool line_in_rect(tPoint<int>* p0, tPoint<int>* p1, tRect<int> r, double scale);

// The same in doubles throughout.
COMMON_INTERFACES_API bool line_in_rectD(tPoint<double>* p0, tPoint<double>* p1, tRect<int> r);

}  // namespace CommonInterfaces
