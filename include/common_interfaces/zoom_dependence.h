// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// How the limiting magnitudes of each class of objects follow the zoom. The table is
// Camera::s_ZoomDependDesc.
//
// Limits are magnitude codes, code = (magnitude + 2.0) * 10, from 0 (magnitude -2.0) to 254 (magnitude 23.4).
#pragma once

#include <cstddef>

namespace CommonInterfaces {

inline constexpr double kMagCodeOffset = 2.0;    // magnitudes added before scaling
inline constexpr double kMagCodesPerMag = 10.0;  // codes per magnitude
inline constexpr int kMaxMagCode = 254;          // magnitude 23.4

// One row of the table. An even row is the limit for drawing the objects of a class, the odd row after it the
// limit for their labels.
struct ZoomDependDesc {
  unsigned objectClass;  // four-character code, and the settings section that holds the row's correction
  int fieldId;           // GetUniqueID of the name of the settings field that holds the correction
  int row;               // 0 to 19
  float base;            // the limit at zoom 1, in magnitudes above code 0: base 6 is magnitude 4.0
  float slope;           // magnitudes gained for each factor 10 of zoom
  int drawOffset;        // codes added to the limit by GetDarkMagDraw
  int reserved;          // -40 or 20; the camera does not use it
};
static_assert(sizeof(ZoomDependDesc) == 28 && offsetof(ZoomDependDesc, fieldId) == 4);
static_assert(offsetof(ZoomDependDesc, row) == 8 && offsetof(ZoomDependDesc, base) == 12);
static_assert(offsetof(ZoomDependDesc, slope) == 16 && offsetof(ZoomDependDesc, drawOffset) == 20);
static_assert(offsetof(ZoomDependDesc, reserved) == 24);

}  // namespace CommonInterfaces
