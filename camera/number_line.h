// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Numbers of a text line, as scanf's %d and %lg and printf's %lg and %14.8lf give them in the "C" locale:
// what a file holds must not depend on the locale of the program.
#pragma once

#include <string>
#include <string_view>

namespace CommonInterfaces {

// Takes the numbers off a line from the left. Blanks may stand before a number, an end of text or a blank must
// follow it.
class NumberLine {
 public:
  explicit NumberLine(const char* text) : m_Rest(text) {}

  // False, with `value` as it was, for anything that is no such number, is out of range or is not finite.
  bool Read(int& value);
  bool Read(double& value);

 private:
  template <class T>
  bool Take(T& value);

  std::string_view m_Rest;
};

// What is not finite is written as 0: no reader would take the line, nor what follows it.
std::string FormatGeneral(double value);           // 6 significant digits
std::string FormatFixed(double value, int width);  // 8 decimals, blanks before it up to the width

}  // namespace CommonInterfaces
