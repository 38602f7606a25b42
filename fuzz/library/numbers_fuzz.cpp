// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Numbers at the front of a text against the C library, which reads more forms: hexadecimal ones, infinities,
// numbers beyond the range.
#include <cctype>
#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "fuzz/scratch.h"
#include "utils/numbers.h"

namespace {

using fuzz::Require;

// Where a number in decimal digits begins, as the rules have it; what else the C library takes is none.
bool BeginsDecimal(std::string_view text, bool isReal) {
  if (!text.empty() && (text[0] == '-' || text[0] == '+')) text.remove_prefix(1);
  if (isReal && text.size() > 1 && text[0] == '.') text.remove_prefix(1);
  return !text.empty() && text[0] >= '0' && text[0] <= '9';
}
bool IsHexadecimal(std::string_view text) {
  if (!text.empty() && (text[0] == '-' || text[0] == '+')) text.remove_prefix(1);
  return text.size() > 1 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
}

void CheckInteger(const std::string& text) {
  std::string_view rest = text;
  int value = 77;
  const bool isTaken = TakeNumber(rest, value);
  char* end = nullptr;
  errno = 0;
  const long long expected = std::strtoll(text.c_str(), &end, 10);
  const bool fits = errno == 0 && expected >= INT_MIN && expected <= INT_MAX;
  Require(isTaken == (BeginsDecimal(text, false) && fits), "an integer where the C library has one");
  Require(isTaken ? value == expected : value == 77, "of the same value");
  const auto length = isTaken ? static_cast<std::size_t>(end - text.c_str()) : 0;
  Require(rest.data() == text.data() + length, "and of the same length");
}

template <class Real>
void CheckReal(const std::string& text, Real (*read)(const char*, char**)) {
  std::string_view rest = text;
  Real value = 77;
  const bool isTaken = TakeNumber(rest, value);
  if (IsHexadecimal(text)) {
    Require(isTaken && value == 0, "the nought before an x is a number");
    return;
  }
  char* end = nullptr;
  const Real expected = read(text.c_str(), &end);
  const std::string_view digits(text.c_str(), static_cast<std::size_t>(end - text.c_str()));
  const bool isZero = digits.substr(0, digits.find_first_of("eE")).find_first_of("123456789") == digits.npos;
  const bool fits = std::isfinite(expected) && (expected != 0 || isZero);
  Require(isTaken == (BeginsDecimal(text, true) && fits), "a number where the C library has one");
  if (!isTaken) {
    Require(value == 77 && rest.data() == text.data(), "what is no number changes nothing");
    return;
  }
  Require(std::memcmp(&value, &expected, sizeof value) == 0, "correctly rounded");
  Require(rest.data() == end - text.c_str() + text.data(), "and of the same length");
}

void CheckHexadecimal(const std::string& text) {
  std::string_view rest = text;
  unsigned value = 0;
  const bool isTaken = TakeHexadecimal(rest, value);
  unsigned long long expected = 0;
  std::size_t length = 0;
  for (; length < text.size() && std::isxdigit(static_cast<unsigned char>(text[length])); ++length) {
    const char c = static_cast<char>(std::tolower(static_cast<unsigned char>(text[length])));
    expected = expected << 4 | static_cast<unsigned>(c <= '9' ? c - '0' : c - 'a' + 10);
    if (expected > 0xFFFFFFFF) return Require(!isTaken, "more than 32 bits are out of range");
  }
  Require(isTaken == (length > 0) && (!isTaken || value == expected), "hexadecimal digits");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string whole(reinterpret_cast<const char*>(data), size);
  const std::string text = whole.substr(0, whole.find('\0'));
  if (!text.empty() && std::isspace(static_cast<unsigned char>(text[0]))) return 0;
  CheckInteger(text);
  CheckReal<double>(text, std::strtod);
  CheckReal<float>(text, std::strtof);
  CheckHexadecimal(text);
  return 0;
}
