// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The sphere in cells of equal area: the HEALPix grid in its nested numbering (Gorski et al. 2005, ApJ 622,
// 759). A grid of order k has 12 * 4^k cells; cell c is the four cells 4 c to 4 c + 3 of the next order.
// Directions are vectors of length 1, right-handed, longitude from the first axis towards the second; the
// poles are the third axis. Nothing here keeps state, allocates or fails; every thread may call.
#pragma once

#include <cstdint>

#include "astro/api.h"

namespace astro {

// Cells of 26 arc seconds; their numbers fit 32 bits.
inline constexpr int kMaxHealpixOrder = 13;

// order: 0 to kMaxHealpixOrder, here and below.
constexpr std::uint32_t GetHealpixCellCount(int order) { return 12u << 2 * order; }

// The cell that holds the direction. One that lies on a border within the last digits of a double belongs to
// either side.
ASTRO_API std::uint32_t GetHealpixCell(int order, const double direction[3]);

// The direction of the cell's centre. cell: below GetHealpixCellCount(order).
ASTRO_API void GetHealpixCentre(int order, std::uint32_t cell, double direction[3]);

// The directions of the four corners: north, west, south, east.
ASTRO_API void GetHealpixCorners(int order, std::uint32_t cell, double corners[4][3]);

// Radians: no point of any cell of the order is farther from the centre of its cell.
ASTRO_API double GetHealpixRadius(int order);

// Receives the cells from `first` to `last`, both included.
using HealpixRangeVisitor = void (*)(void* context, std::uint32_t first, std::uint32_t last);

// Calls `visit` with ranges of cells of the order that together hold every cell that the cone about the
// direction `axis` with the half-angle `angle` (radians) touches, and some of those beside it: none whose
// centre is farther from the cone than GetHealpixRadius. Ranges rise and do not overlap. An angle below 0
// touches nothing, one from pi on the whole sphere, and so does one that is not a number.
ASTRO_API void VisitHealpixCone(int order, const double axis[3], double angle, HealpixRangeVisitor visit,
                                void* context);

// The same with anything that can be called: visit(first, last).
template <class Visit>
void VisitHealpixCone(int order, const double axis[3], double angle, Visit&& visit) {
  VisitHealpixCone(
      order, axis, angle,
      [](void* context, std::uint32_t first, std::uint32_t last) {
        (*static_cast<decltype(&visit)>(context))(first, last);
      },
      &visit);
}

}  // namespace astro
