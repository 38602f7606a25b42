// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Writes conversions itself instead of handing them to printf: the C library's decimal mark follows the
// locale that a host happens to set, its exponents differ between platforms, and a format that came from a
// file never gets near it.
#include "text/format_render.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

#include "text/format_conversion.h"

namespace CommonInterfaces {
namespace {

// The longest number: 309 digits, a point, 999 decimals.
constexpr int kMaxNumber = 1400;
constexpr int kDefaultPrecision = 6;

// Of a letter.
bool IsUpper(char letter) { return letter <= 'Z'; }

// Of a number, which has nothing behind the letters.
void MakeUpper(std::string& text) {
  for (char& c : text) {
    if (c >= 'a') c = static_cast<char>(c - 'a' + 'A');
  }
}

std::string GetSign(bool isNegative, const FormatConversion& conversion) {
  if (isNegative) return "-";
  if (conversion.hasPlus) return "+";
  return conversion.hasBlank ? " " : "";
}

// `prefix` (sign and "0x") stays in front of filling zeros and behind filling blanks.
void AppendFilled(std::string& out, const std::string& prefix, const std::string& body,
                  const FormatConversion& conversion, bool mayZeroFill) {
  const auto width = static_cast<std::size_t>(conversion.width);
  const auto length = prefix.size() + body.size();
  const std::size_t fill = width > length ? width - length : 0;
  const bool isZeroFilled = conversion.isZeroFilled && mayZeroFill && !conversion.isLeft;
  if (!isZeroFilled && !conversion.isLeft) out.append(fill, ' ');
  out += prefix;
  if (isZeroFilled) out.append(fill, '0');
  out += body;
  if (conversion.isLeft) out.append(fill, ' ');
}

int GetBase(char letter) {
  if (letter == 'o') return 8;
  return letter == 'x' || letter == 'X' ? 16 : 10;
}

// The value as C converts it to the type that a length names: its low bits, signed or not.
int Narrow(int value, bool isSigned, int bits) {
  if (bits == 8) return isSigned ? static_cast<signed char>(value) : static_cast<unsigned char>(value);
  if (bits == 16) return isSigned ? static_cast<short>(value) : static_cast<unsigned short>(value);
  return value;
}

void AppendInt(std::string& out, int number, const FormatConversion& conversion) {
  const bool isSigned = conversion.letter == 'd' || conversion.letter == 'i';
  const int value = Narrow(number, isSigned, conversion.bits);
  const bool isNegative = isSigned && value < 0;
  const unsigned bits = static_cast<unsigned>(value);
  const unsigned magnitude = isNegative ? 0u - bits : bits;
  char buffer[16];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, magnitude, GetBase(conversion.letter)).ptr;
  std::string digits(buffer, end);
  if (conversion.precision == 0 && magnitude == 0) digits.clear();
  const auto least = static_cast<std::size_t>(conversion.precision > 0 ? conversion.precision : 0);
  if (digits.size() < least) digits.insert(0, least - digits.size(), '0');
  std::string prefix = isSigned ? GetSign(isNegative, conversion) : "";
  if (conversion.isAlternate) {
    if (conversion.letter == 'o' && (digits.empty() || digits[0] != '0')) digits.insert(0, 1, '0');
    if (GetBase(conversion.letter) == 16 && magnitude != 0) prefix += "0x";
  }
  if (conversion.letter == 'X') {
    MakeUpper(prefix);
    MakeUpper(digits);
  }
  AppendFilled(out, prefix, digits, conversion, conversion.precision < 0);
}

std::string WriteDigits(double magnitude, std::chars_format form, int precision) {
  char buffer[kMaxNumber];
  const auto written = std::to_chars(buffer, buffer + sizeof buffer, magnitude, form, precision);
  return std::string(buffer, written.ptr);
}

// The flag # keeps a decimal point without decimals, in front of an exponent if there is one.
void KeepPoint(std::string& digits) {
  if (digits.find('.') != std::string::npos) return;
  const auto exponent = digits.find_first_of("ep");
  digits.insert(exponent == std::string::npos ? digits.size() : exponent, 1, '.');
}

// %#g keeps the zeros at the end that %g removes, so its two forms are told apart here: C17 7.21.6.1, "g,G".
std::string WriteGeneralWithZeros(double magnitude, int precision) {
  const std::string scientific = WriteDigits(magnitude, std::chars_format::scientific, precision - 1);
  const char* exponentText = scientific.c_str() + scientific.find('e') + 1;
  if (*exponentText == '+') ++exponentText;
  int exponent = 0;
  std::from_chars(exponentText, scientific.c_str() + scientific.size(), exponent);
  if (exponent < -4 || exponent >= precision) return scientific;
  return WriteDigits(magnitude, std::chars_format::fixed, precision - 1 - exponent);
}

std::string WriteHexadecimal(double magnitude, int precision) {
  if (precision >= 0) return WriteDigits(magnitude, std::chars_format::hex, precision);
  char buffer[kMaxNumber];
  const auto written = std::to_chars(buffer, buffer + sizeof buffer, magnitude, std::chars_format::hex);
  return std::string(buffer, written.ptr);
}

std::string WriteMagnitude(double magnitude, const FormatConversion& conversion) {
  const int precision = conversion.precision < 0 ? kDefaultPrecision : conversion.precision;
  std::string digits;
  switch (conversion.letter | 0x20) {
    case 'e':
      digits = WriteDigits(magnitude, std::chars_format::scientific, precision);
      break;
    case 'f':
      digits = WriteDigits(magnitude, std::chars_format::fixed, precision);
      break;
    case 'g': {
      const int significant = precision == 0 ? 1 : precision;
      digits = conversion.isAlternate ? WriteGeneralWithZeros(magnitude, significant)
                                      : WriteDigits(magnitude, std::chars_format::general, significant);
      break;
    }
    default:
      digits = WriteHexadecimal(magnitude, conversion.precision);
  }
  if (conversion.isAlternate) KeepPoint(digits);
  return digits;
}

// What is no number has no sign: which one it gets differs between processors.
void AppendDouble(std::string& out, double value, const FormatConversion& conversion) {
  const bool isNumber = !std::isnan(value);
  std::string prefix = GetSign(isNumber && std::signbit(value), conversion);
  std::string digits;
  if (!std::isfinite(value)) {
    digits = isNumber ? "inf" : "nan";
  } else {
    if ((conversion.letter | 0x20) == 'a') prefix += "0x";
    digits = WriteMagnitude(std::fabs(value), conversion);
  }
  if (IsUpper(conversion.letter)) {
    MakeUpper(prefix);
    MakeUpper(digits);
  }
  AppendFilled(out, prefix, digits, conversion, std::isfinite(value));
}

void AppendText(std::string& out, const char* text, const FormatConversion& conversion) {
  std::string body = text != nullptr ? text : "";
  if (conversion.precision >= 0) body.resize(std::min(body.size(), std::size_t(conversion.precision)));
  AppendFilled(out, "", body, conversion, false);
}

void AppendArgument(std::string& out, const FormatArgument& argument, const FormatConversion& conversion) {
  switch (argument.type) {
    case 'd':
      AppendInt(out, argument.number, conversion);
      break;
    case 'f':
      AppendDouble(out, argument.real, conversion);
      break;
    case 's':
      AppendText(out, argument.text, conversion);
      break;
    default: {
      const char text[2] = {static_cast<char>(argument.number), '\0'};
      FormatConversion whole = conversion;
      whole.precision = -1;
      AppendText(out, text, whole);
    }
  }
}

}  // namespace

std::string RenderFormat(const char* format, std::initializer_list<FormatArgument> arguments) {
  std::string out;
  auto argument = arguments.begin();
  while (const char* percent = std::strchr(format, '%')) {
    out.append(format, percent);
    FormatConversion conversion;
    if (ParseConversion(percent, conversion) != nullptr) return "";
    format = conversion.end;
    if (conversion.letter == '%') {
      out += '%';
      continue;
    }
    if (argument == arguments.end() || argument->type != GetArgumentType(conversion.letter)) return "";
    AppendArgument(out, *argument++, conversion);
  }
  return out += format;
}

}  // namespace CommonInterfaces
