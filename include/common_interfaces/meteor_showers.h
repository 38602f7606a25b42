// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The meteor showers, which stand in the string table as texts 6101, 6102 ... :
// docs/formats/meteor_showers.md.
#pragma once

#include <cstddef>
#include <type_traits>
#include <vector>

#include "common_interfaces/api.h"

namespace CommonInterfaces {

// One shower; a plain record of fixed size. Days count from 1 to 31, months from 1 to 12, in an average year;
// a shower may begin in December and end in January. Texts are in the code page of the language,
// zero-terminated, and cut to their field.
struct SHOWER {
  char name[64] = "";
  short beginDay = 0;
  short beginMonth = 0;
  short maximumDay = 0;
  short maximumMonth = 0;
  short endDay = 0;
  short endMonth = 0;
  char code[8] = "";         // of the International Astronomical Union, for example "PER"; as it stands
  char parentBody[60] = "";  // where its meteoroids come from, "109P/Swift-Tuttle"; without blanks around it
  double ra = 0.0;           // the radiant at the maximum, radians: right ascension, 0 to 2 pi,
  double dec = 0.0;          // and declination, signed, -pi/2 to pi/2
  short raHours = 0;         // the same as written: right ascension in hours
  short raMinutes = 0;       // and minutes,
  short decDegrees = 0;      // declination in whole degrees, without its sign,
  char decSign = '+';        // '+' or '-': that of "-0" is '-'
};
static_assert(std::is_trivially_copyable_v<SHOWER>);
static_assert(offsetof(SHOWER, beginDay) == 64 && offsetof(SHOWER, endMonth) == 74);
static_assert(offsetof(SHOWER, code) == 76 && offsetof(SHOWER, parentBody) == 84);
static_assert(offsetof(SHOWER, ra) == 144 && offsetof(SHOWER, dec) == 152);
static_assert(offsetof(SHOWER, raHours) == 160 && offsetof(SHOWER, decSign) == 166 && sizeof(SHOWER) == 168);

// Appends the showers to the list, in the order of their identifiers, up to the first text that is missing or
// has no ";". A text with fewer than 12 fields, or with something else where a number belongs, prints "Bad
// string for meteor shower %s\n" and is passed over. True when at least one was appended; a null list takes
// none. Loads the string table if nobody has; for its thread.
COMMON_INTERFACES_API bool ReadMeteorShowers(std::vector<SHOWER>* showers);

}  // namespace CommonInterfaces
