// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace CommonInterfaces {

// What the time that a user sees is counted in. Camera files keep these numbers.
enum TimeKind : int { kLocalTime = 0, kUniversalTime = 1, kThirdTime = 2 };

// A moment. The name is what every caller spells, though C++ reserves names of its form.
struct _Date {
  int day = 0;  // Julian day number; with fraction 0 it is noon of the civil day
  // Of the day, added to `day`; any finite number (Adjust_JD brings it into [-0.5, 0.5)).
  double fraction = 0.0;
  // TimeKind: how the moment is shown, not the scale that day and fraction count in.
  int type = kUniversalTime;
};
// The fraction is aligned as a double is: 4 bytes on 32-bit Linux, 8 elsewhere.
static_assert(offsetof(_Date, day) == 0 && offsetof(_Date, fraction) == alignof(_Date));
static_assert(offsetof(_Date, type) == alignof(_Date) + 8);

}  // namespace CommonInterfaces
