// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Real numbers, in a source of their own: the one place that needs the standard library's converters to
// double and float, which not every standard library has (real_numbers_c.cpp).
#include <charconv>
#include <cmath>
#include <system_error>

#include "companions/utils/signs.h"
#include "utils/numbers.h"

namespace {

template <class T>
bool Take(std::string_view& text, T& value) {
  const std::string_view digits = utils_internal::WithoutPlus(text);
  T number{};
  const auto [next, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc() || !std::isfinite(number)) return false;
  value = number;
  text.remove_prefix(static_cast<std::size_t>(next - text.data()));
  return true;
}

}  // namespace

bool TakeNumber(std::string_view& text, double& value) { return Take(text, value); }
bool TakeNumber(std::string_view& text, float& value) { return Take(text, value); }
