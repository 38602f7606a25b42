// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Distances are kept in astronomical units and shown in the unit that the user chose.
#pragma once

#include "common_interfaces/api.h"

namespace CommonInterfaces {

// The unit of a shown distance. Camera files keep these numbers, and the name of a unit is the text 1160 +
// code of the string table.
enum DistanceUnit : char {
  kMetre = 0,
  kKilometre = 1,
  kThousandKilometres = 2,
  kMillionKilometres = 3,
  kAstronomicalUnit = 4,  // 149597870.7 km, IAU 2012 resolution B2
  kLightYear = 5,
  kParsec = 6,      // 206264.80624709636 au
  kKiloparsec = 7,  // 1000 pc
};

// A distance in astronomical units, in the unit of that code; and back. 0.0 for any other code. Cannot fail
// otherwise; any thread may call.
//
//   ConvertUnitFromAU(1.0, kKilometre)  ->  149597870.7
//   ConvertUnitToAU(1.0, kParsec)       ->  206264.80624709636
//
// The light year is deliberately written in two ways: from astronomical units as a count of kilometres
// (9460730472580.799), to astronomical units as the product of days, seconds and the speed of light (365.25 *
// 86400 * 299792.458). Rounded to a double both are the same length. There and back again may differ from
// where it began in the last digit, in this unit as in the others.
COMMON_INTERFACES_API double ConvertUnitFromAU(double distance, char unit);
COMMON_INTERFACES_API double ConvertUnitToAU(double distance, char unit);

}  // namespace CommonInterfaces
