// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "text/format_conversion.h"

#include <cstring>

#include "utils/characters.h"

namespace CommonInterfaces {
namespace {

constexpr int kMaxDigits = 3;

bool TakeFlag(char c, FormatConversion& conversion) {
  switch (c) {
    case '-':
      return conversion.isLeft = true;
    case '+':
      return conversion.hasPlus = true;
    case ' ':
      return conversion.hasBlank = true;
    case '#':
      return conversion.isAlternate = true;
    case '0':
      return conversion.isZeroFilled = true;
    default:
      return false;
  }
}

// False when the number has more digits than allowed; `text` then stands behind the first one too many.
bool TakeNumber(const char*& text, int& number) {
  int digits = 0;
  for (number = 0; IsDigit(*text); ++text) {
    if (++digits > kMaxDigits) {
      ++text;
      return false;
    }
    number = number * 10 + (*text - '0');
  }
  return true;
}

const char* TakeLetter(const char*& text, FormatConversion& conversion) {
  const bool isLong = *text == 'l';
  if (isLong) ++text;
  if (*text == '\0') return "is cut off";
  conversion.letter = *text++;
  const char type = GetArgumentType(conversion.letter);
  // A long double counts as another type, a long int too: it has another width on every target.
  return type == '\0' || (isLong && type != 'f') ? "is not allowed" : nullptr;
}

}  // namespace

const char* ParseConversion(const char* text, FormatConversion& conversion) {
  conversion = {};
  ++text;
  if (*text == '%') {
    conversion.letter = '%';
    conversion.end = text + 1;
    return nullptr;
  }
  while (TakeFlag(*text, conversion)) ++text;
  bool isShort = TakeNumber(text, conversion.width);
  if (isShort && *text == '.') isShort = TakeNumber(++text, conversion.precision);
  const char* const fault = isShort ? TakeLetter(text, conversion) : "has a number of more than three digits";
  conversion.end = text;
  return fault;
}

char GetArgumentType(char letter) {
  if (letter == '\0') return '\0';
  if (std::strchr("diuxXo", letter)) return 'd';
  if (std::strchr("eEfFgGaA", letter)) return 'f';
  return letter == 's' || letter == 'c' ? letter : '\0';
}

}  // namespace CommonInterfaces
