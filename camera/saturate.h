// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <limits>

namespace CommonInterfaces {

// The value truncated towards zero, held at the ends of the range of Int; `notANumber` for NaN. Plain
// conversion of such values is undefined behaviour.
template <class Int>
Int SaturatingTruncate(double value, Int notANumber) {
  if (value != value) return notANumber;
  if (value <= static_cast<double>(std::numeric_limits<Int>::min())) return std::numeric_limits<Int>::min();
  if (value >= static_cast<double>(std::numeric_limits<Int>::max())) return std::numeric_limits<Int>::max();
  return static_cast<Int>(value);
}

}  // namespace CommonInterfaces
