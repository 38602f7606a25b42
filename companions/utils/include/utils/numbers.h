// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Numbers at the front of a text, the same in every locale. Each function takes the longest number that
// begins right there, blanks in front of it are the caller's (utils/characters.h), and leaves `text` behind
// it. False, with `text` and `value` as they were, when no number begins there and for one that is out of
// range. Any thread.
//
//   std::string_view text = "-12/7";
//   TakeNumber(text, number)    ->  true, number == -12, text == "/7"
#pragma once

#include <climits>
#include <limits>
#include <optional>
#include <string_view>

#include "utils/api.h"

// A decimal integer with an optional sign, from `least` to `most`.
UTILS_API bool TakeNumber(std::string_view& text, int& value, int least = INT_MIN, int most = INT_MAX);

// A decimal number with an optional sign, with or without fraction and exponent, its decimal mark a point;
// correctly rounded to its type. Only finite numbers: "nan" and "inf" are none, and what overflows or is
// below the smallest number above 0 is out of range.
UTILS_API bool TakeNumber(std::string_view& text, double& value);
UTILS_API bool TakeNumber(std::string_view& text, float& value);

// The whole text as such an int, double or float from `least` to `most`; nothing when it is none.
template <class T>
std::optional<T> ParseNumber(std::string_view text, T least = std::numeric_limits<T>::lowest(),
                             T most = std::numeric_limits<T>::max()) {
  T value{};
  if (!TakeNumber(text, value) || !text.empty() || value < least || value > most) return std::nullopt;
  return value;
}

// Hexadecimal digits of either case, without sign and prefix, at most 32 bits of them.
UTILS_API bool TakeHexadecimal(std::string_view& text, unsigned& value);

// A decimal integer with an optional sign, of any length: modulo 2^32, as scanf's "%u" has it, a "-" negates.
UTILS_API bool TakeModulo32(std::string_view& text, unsigned& value);
