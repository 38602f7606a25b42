// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "camera/number_line.h"

#include <charconv>
#include <cmath>

#include "utils/characters.h"
#include "utils/numbers.h"

namespace CommonInterfaces {
namespace {

// As long as the largest double with 8 decimals.
constexpr int kLongestNumber = 330;

double Finite(double value) { return std::isfinite(value) ? value : 0.0; }

}  // namespace

template <class T>
bool NumberLine::Take(T& value) {
  std::string_view rest = m_Rest;
  SkipBlanks(rest);
  T number{};
  if (!TakeNumber(rest, number) || (!rest.empty() && !IsBlank(rest.front()))) return false;
  value = number;
  m_Rest = rest;
  return true;
}

bool NumberLine::Read(int& value) { return Take(value); }
bool NumberLine::Read(double& value) { return Take(value); }

std::string FormatGeneral(double value) {
  char text[kLongestNumber];
  const auto end = std::to_chars(text, text + sizeof text, Finite(value), std::chars_format::general, 6).ptr;
  return std::string(text, end);
}

std::string FormatFixed(double value, int width) {
  char text[kLongestNumber];
  const auto end = std::to_chars(text, text + sizeof text, Finite(value), std::chars_format::fixed, 8).ptr;
  std::string digits(text, end);
  const auto wanted = static_cast<std::size_t>(width);
  if (digits.size() < wanted) digits.insert(0, wanted - digits.size(), ' ');
  return digits;
}

}  // namespace CommonInterfaces
