// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/text/values.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <type_traits>

#include "astro/constants.h"
#include "common_interfaces/field_data.h"
#include "common_interfaces/settings_data.h"
#include "utils/numbers.h"

namespace skydata {
namespace {

constexpr char kBlanks[] = " \t";
using astro::kRadiansPerDegree;

constexpr std::string_view kTypeNames[] = {"i8", "u8", "i16", "u16", "i32", "u32", "f32", "f64", "byte"};

bool TakePrefix(std::string_view& text, std::string_view prefix) {
  if (text.substr(0, prefix.size()) != prefix) return false;
  text.remove_prefix(prefix.size());
  return true;
}

bool TakeSuffix(std::string_view& text, std::string_view suffix) {
  if (text.size() < suffix.size() || text.substr(text.size() - suffix.size()) != suffix) return false;
  text.remove_suffix(suffix.size());
  return true;
}

template <class T, class... Base>
std::optional<T> ParseAll(std::string_view text, Base... base) {
  T value{};
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, value, base...);
  if (text.empty() || result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return value;
}

unsigned MakeCode(std::string_view text) {
  unsigned code = 0;
  for (const char c : text) code = code << 8 | static_cast<unsigned char>(c);
  return code;
}

bool IsCode(std::string_view text) {
  if (text.size() != 4 || (text[0] >= '0' && text[0] <= '9') || text[0] == '-' || text[0] == '+')
    return false;
  for (const char c : text) {
    if (c <= ' ' || c > '~') return false;
  }
  return true;
}

// The bit pattern of a value, in hexadecimal after "0x".
template <class Bits>
std::optional<Bits> ParseBits(std::string_view text) {
  if (!TakePrefix(text, "0x")) return std::nullopt;
  return ParseAll<Bits>(text, 16);
}

template <class Bits>
void AppendBits(Bits bits, std::string& bytes) {
  for (std::size_t i = 0; i < sizeof bits; ++i) {
    bytes.push_back(static_cast<char>(static_cast<unsigned char>(bits >> (8 * i) & 0xFF)));
  }
}

template <class T>
std::optional<std::make_unsigned_t<T>> ParseInteger(std::string_view text) {
  using Bits = std::make_unsigned_t<T>;
  if (const auto bits = ParseBits<Bits>(text)) return bits;
  if (const auto value = ParseAll<T>(text)) return static_cast<Bits>(*value);
  if (sizeof(T) == 4 && IsCode(text)) return static_cast<Bits>(MakeCode(text));
  return std::nullopt;
}

template <class T, class Bits>
std::optional<Bits> ParseFloating(std::string_view text) {
  if (const auto bits = ParseBits<Bits>(text)) return bits;
  std::optional<T> value;
  if (TakeSuffix(text, "deg")) {
    const auto degrees = ParseNumber<double>(TrimBlanks(text));
    if (degrees) value = static_cast<T>(*degrees * kRadiansPerDegree);
  } else {
    value = ParseNumber<T>(text);
  }
  if (!value || !std::isfinite(*value)) return std::nullopt;
  return std::bit_cast<Bits>(*value);
}

template <class Bits>
bool AppendParsed(const std::optional<Bits>& bits, std::string& bytes) {
  if (bits) AppendBits(*bits, bytes);
  return bits.has_value();
}

}  // namespace

std::string_view TrimBlanks(std::string_view text) {
  const auto begin = text.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

std::optional<unsigned> ParseUnsigned(std::string_view text, unsigned highest) {
  auto value = ParseBits<unsigned>(text);
  if (!value) value = ParseAll<unsigned>(text);
  if (value && *value > highest) return std::nullopt;
  return value;
}

std::optional<unsigned> ParseWord(std::string_view text) {
  if (text == "none") return CommonInterfaces::SettingsData::kNoSection;
  if (text == "defaults") return CommonInterfaces::SettingsData::kDefaultsTag;
  if (TakePrefix(text, "bytes:")) {
    if (text.size() != 4) return std::nullopt;
    const unsigned code = MakeCode(text);
    return code >> 24 | (code >> 8 & 0xFF00) | (code << 8 & 0xFF0000) | code << 24;
  }
  if (IsCode(text)) return MakeCode(text);
  return ParseUnsigned(text, std::numeric_limits<unsigned>::max());
}

std::optional<unsigned char> ParseType(std::string_view text) {
  for (unsigned char code = 0; code < std::size(kTypeNames); ++code) {
    if (text == kTypeNames[code]) return code;
  }
  if (!TakePrefix(text, "type")) return std::nullopt;
  const auto code = ParseUnsigned(text, 255);
  if (!code) return std::nullopt;
  return static_cast<unsigned char>(*code);
}

std::string FormatType(unsigned char type) {
  return type < std::size(kTypeNames) ? std::string(kTypeNames[type]) : "type" + std::to_string(type);
}

bool AppendValue(unsigned char type, std::string_view text, std::string& bytes) {
  using namespace CommonInterfaces;
  switch (type) {
    case kFieldInt8:
      return AppendParsed(ParseInteger<signed char>(text), bytes);
    case kFieldUInt8:
    case kFieldBytes:
      return AppendParsed(ParseInteger<unsigned char>(text), bytes);
    case kFieldInt16:
      return AppendParsed(ParseInteger<short>(text), bytes);
    case kFieldUInt16:
      return AppendParsed(ParseInteger<unsigned short>(text), bytes);
    case kFieldInt32:
      return AppendParsed(ParseInteger<int>(text), bytes);
    case kFieldUInt32:
      return AppendParsed(ParseInteger<unsigned>(text), bytes);
    case kFieldFloat:
      return AppendParsed(ParseFloating<float, unsigned>(text), bytes);
    case kFieldDouble:
      return AppendParsed(ParseFloating<double, unsigned long long>(text), bytes);
    default:
      return false;
  }
}

bool AppendHexBytes(std::string_view text, std::string& bytes) {
  if (text.size() % 2 != 0) return false;
  for (std::size_t i = 0; i < text.size(); i += 2) {
    const auto value = ParseAll<unsigned char>(text.substr(i, 2), 16);
    if (!value) return false;
    bytes.push_back(static_cast<char>(*value));
  }
  return true;
}

}  // namespace skydata
