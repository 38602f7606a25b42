// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Real numbers where the standard library has no converter to them: over those of the C library, in the
// locale that has a point. They take more than a number here is (hexadecimal digits, "inf", blanks in
// front), so the longest number is found first.
#include <locale.h>  // newlocale
#include <stdlib.h>  // strtod_l

#include <cmath>
#include <string>

#include "companions/utils/signs.h"
#include "utils/characters.h"
#include "utils/numbers.h"

namespace {

std::size_t CountDigits(std::string_view text) {
  std::size_t count = 0;
  while (count < text.size() && IsDigit(text[count])) ++count;
  return count;
}

// How many characters the longest number at the front of the text has; 0: none begins there.
std::size_t FindEnd(std::string_view text) {
  std::size_t end = text.starts_with('-') ? 1 : 0;
  std::size_t digits = CountDigits(text.substr(end));
  end += digits;
  if (text.substr(end).starts_with('.')) {
    const std::size_t fraction = CountDigits(text.substr(end + 1));
    digits += fraction;
    if (digits > 0) end += 1 + fraction;
  }
  if (digits == 0) return 0;
  const std::string_view rest = text.substr(end);
  if (!rest.starts_with('e') && !rest.starts_with('E')) return end;
  const std::size_t sign = rest.size() > 1 && (rest[1] == '-' || rest[1] == '+') ? 1 : 0;
  const std::size_t exponent = CountDigits(rest.substr(1 + sign));
  return exponent > 0 ? end + 1 + sign + exponent : end;
}

// A number that is 0 although it has another digit than 0 was below the smallest one.
bool IsZero(std::string_view number) {
  return number.substr(0, number.find_first_of("eE")).find_first_of("123456789") == std::string_view::npos;
}

template <class T, class Convert>
bool Take(std::string_view& text, T& value, Convert convert) {
  const std::string_view digits = utils_internal::WithoutPlus(text);
  const std::string number(digits.substr(0, FindEnd(digits)));  // ends with a zero
  if (number.empty()) return false;
  static const locale_t kPoint = newlocale(LC_ALL_MASK, "C", nullptr);
  const T converted = convert(number.c_str(), nullptr, kPoint);
  if (!std::isfinite(converted) || (converted == 0 && !IsZero(number))) return false;
  value = converted;
  text.remove_prefix(text.size() - digits.size() + number.size());
  return true;
}

}  // namespace

bool TakeNumber(std::string_view& text, double& value) { return Take(text, value, strtod_l); }
bool TakeNumber(std::string_view& text, float& value) { return Take(text, value, strtof_l); }
