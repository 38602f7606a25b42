// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Numbers are converted here and not by the C library, whose decimal point is that of the process's locale.
#include <climits>
#include <cmath>
#include <cstddef>
#include <string_view>

#include "common_interfaces/record_lines.h"
#include "text/record_lines_inside.h"
#include "utils/characters.h"
#include "utils/numbers.h"

namespace CommonInterfaces::record_lines {

namespace {

constexpr int kCountedDigits = 19;  // so many digits fit 64 bits, whichever they are
constexpr unsigned long long kLargestExact = 9007199254740992;  // every integer up to 2^53 is a double
constexpr double kExactPowers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                   1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr int kExactPower = 22;  // so is every power of ten up to this
constexpr int kLargestExponent = 100000000;

// The number at the start of a run: [begin, end) is its text, digits * 10^exponent its value.
struct Decimal {
  const char* begin;
  const char* end;
  unsigned long long digits;  // wrapped where more than kCountedDigits of them count
  std::ptrdiff_t digitCount;  // leading zeros included; 0: no number
  long long exponent;
  bool isNegative;
};

inline const char* ScanDigits(const char* text, Decimal& number) {
  const char* const start = text;
  for (; IsDigit(*text); ++text) number.digits = number.digits * 10 + static_cast<unsigned>(*text - '0');
  number.digitCount += text - start;
  return text;
}

// An exponent counts only if it has a digit; one beyond any double stops growing.
inline void ScanExponent(Decimal& number) {
  const char* text = number.end;
  if (*text != 'e' && *text != 'E') return;
  ++text;
  const bool isNegative = *text == '-';
  if (isNegative) ++text;
  if (!IsDigit(*text)) return;
  int exponent = 0;
  for (; IsDigit(*text); ++text) {
    if (exponent < kLargestExponent) exponent = exponent * 10 + (*text - '0');
  }
  number.exponent += isNegative ? -exponent : exponent;
  number.end = text;
}

inline Decimal Scan(const char* text) {
  Decimal number = {text, text, 0, 0, 0, *text == '-'};
  if (number.isNegative) ++text;
  text = ScanDigits(text, number);
  if (*text == '.') {
    const char* const fraction = text + 1;
    text = ScanDigits(fraction, number);
    number.exponent = fraction - text;
  }
  number.end = text;
  if (number.digitCount != 0) ScanExponent(number);
  return number;
}

// The power of ten of the first digit that is not 0, of a number of any length.
long long FindMagnitude(const Decimal& number) {
  const char* text = number.begin + (number.isNegative ? 1 : 0);
  long long magnitude = 0;
  while (*text == '0') ++text;
  if (*text != '.') {
    for (; IsDigit(*text); ++text) ++magnitude;
  } else {
    for (++text; *text == '0'; ++text) --magnitude;
  }
  while (text != number.end && *text != 'e' && *text != 'E') ++text;
  if (text == number.end) return magnitude;
  Decimal exponent = {text, text, 0, 0, 0, false};
  ScanExponent(exponent);
  return magnitude + exponent.exponent;
}

// Long numbers and far exponents; the general converter rounds them correctly but does not say on which side
// a number is out of range.
double ConvertSlowly(const Decimal& number) {
  double value = 0.0;
  std::string_view text(number.begin, static_cast<std::size_t>(number.end - number.begin));
  if (TakeNumber(text, value)) return value;
  return std::copysign(FindMagnitude(number) > 0 ? HUGE_VAL : 0.0, number.isNegative ? -1.0 : 1.0);
}

std::ptrdiff_t CountLeadingZeros(const Decimal& number) {
  std::ptrdiff_t count = 0;
  for (const char* text = number.begin + (number.isNegative ? 1 : 0); *text == '0' || *text == '.'; ++text) {
    if (*text == '0') ++count;
  }
  return count;
}

// Whether the digits and the power of ten are doubles both. Deliberately no narrower than the test that the
// library's converter makes for itself: on 32-bit systems that converter may have been compiled for registers
// of 80 bits, where the one operation would round twice.
inline bool IsExact(const Decimal& number) {
  if (number.digits > kLargestExact || number.exponent < -kExactPower || number.exponent > kExactPower)
    return false;
  return number.digitCount <= kCountedDigits ||
         number.digitCount - CountLeadingZeros(number) <= kCountedDigits;
}

// Both operands of the quick way are exact, so its one operation rounds correctly (W. D. Clinger, "How to
// read floating point numbers accurately", 1990).
inline double Convert(const Decimal& number) {
  if (number.digitCount == 0) return 0.0;
  if (!IsExact(number)) return ConvertSlowly(number);
  const auto digits = static_cast<double>(static_cast<long long>(number.digits));
  const auto power = static_cast<int>(number.exponent);
  const double value = power < 0 ? digits / kExactPowers[-power] : digits * kExactPowers[power];
  return number.isNegative ? -value : value;
}

inline int TakeInteger(char*& cursor) {
  unsigned number = 0;
  for (; IsDigit(*cursor); ++cursor) {
    const auto digit = static_cast<unsigned>(*cursor - '0');
    number = number > (INT_MAX - digit) / 10 ? static_cast<unsigned>(INT_MAX) : number * 10 + digit;
  }
  return static_cast<int>(number);
}

}  // namespace

double TakeReal(char*& cursor) {
  const Decimal number = Scan(cursor);
  cursor += number.end - number.begin;
  while (Is(*cursor, kNumberPart)) ++cursor;
  return Convert(number);
}

}  // namespace CommonInterfaces::record_lines

using namespace CommonInterfaces::record_lines;

int GetSign(char*& cursor) { return TakeSign(cursor); }

int GetLong1(char*& cursor, int& value) {
  if (Is(*cursor, kNumberStop)) return 0;
  value = TakeInteger(cursor);
  return 1;
}

int GetDouble(char*& cursor, double& value) {
  if (Is(*cursor, kNumberStop)) return 0;
  value = TakeReal(cursor);
  return 1;
}

int GetRGB(char* text, short& r, short& g, short& b) {
  int colours[3];
  for (int& colour : colours) {
    SkipBlanks(text);
    if (!GetLong1(text, colour)) return 0;
  }
  r = static_cast<short>(colours[0]);
  g = static_cast<short>(colours[1]);
  b = static_cast<short>(colours[2]);
  return 1;
}
