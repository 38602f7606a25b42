// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Integers. Real numbers: real_numbers.cpp.
#include "utils/numbers.h"

#include <charconv>
#include <system_error>

#include "companions/utils/signs.h"
#include "utils/characters.h"

namespace {

template <class T>
bool Take(std::string_view& text, std::string_view digits, T& value, int base) {
  T number{};
  const auto [next, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number, base);
  if (error != std::errc()) return false;
  value = number;
  text.remove_prefix(static_cast<std::size_t>(next - text.data()));
  return true;
}

}  // namespace

bool TakeNumber(std::string_view& text, int& value, int least, int most) {
  std::string_view rest = text;
  int number = 0;
  if (!Take(rest, utils_internal::WithoutPlus(text), number, 10) || number < least || number > most) {
    return false;
  }
  value = number;
  text = rest;
  return true;
}

bool TakeHexadecimal(std::string_view& text, unsigned& value) { return Take(text, text, value, 16); }

bool TakeModulo32(std::string_view& text, unsigned& value) {
  std::string_view rest = text;
  const bool negative = !rest.empty() && rest.front() == '-';
  if (negative || (!rest.empty() && rest.front() == '+')) rest.remove_prefix(1);
  if (rest.empty() || !IsDigit(rest.front())) return false;
  unsigned number = 0;
  for (; !rest.empty() && IsDigit(rest.front()); rest.remove_prefix(1)) {
    number = number * 10 + static_cast<unsigned>(rest.front() - '0');
  }
  value = negative ? 0 - number : number;
  text = rest;
  return true;
}
