// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/text/format.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>

#include "skydata/settings/text/values.h"
#include "utils/bytes.h"

namespace skydata {
namespace {

using CommonInterfaces::FieldElementWidth;

constexpr double kDegreesPerRadian = 57.29577951308232;
constexpr unsigned kLowestHexadecimal = 1000;
constexpr char kHexDigits[] = "0123456789ABCDEF";

// At least one digit, and at least `digits`.
std::string FormatHex(unsigned long long number, int digits) {
  std::string text;
  for (; number != 0 || digits > 0; number >>= 4, --digits)
    text.insert(text.begin(), kHexDigits[number & 0xF]);
  return text;
}

bool IsLetter(unsigned char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

// "" for a word that is no plain code.
std::string FormatCode(unsigned word) {
  std::string code;
  for (int shift = 24; shift >= 0; shift -= 8) code.push_back(static_cast<char>(word >> shift & 0xFF));
  const bool isPlain = IsLetter(static_cast<unsigned char>(code[0])) &&
                       std::all_of(code.begin(), code.end(), [](unsigned char c) {
                         return IsLetter(c) || (c >= '0' && c <= '9') || c == '_';
                       });
  return isPlain ? code : "";
}

template <class T, class... Precision>
std::string FormatDigits(T value, Precision... precision) {
  char text[64];
  const auto result = std::to_chars(text, text + sizeof text, value, precision...);
  return std::string(text, result.ptr);
}

bool ReadsBack(unsigned char type, const std::string& text, const char* bytes) {
  std::string again;
  return AppendValue(type, text, again) && std::equal(again.begin(), again.end(), bytes);
}

// Few enough digits of degrees that a number which was no angle is hardly ever taken for one.
template <class T, class Bits>
std::string FormatReal(unsigned char type, Bits bits, const char* bytes) {
  constexpr int kDegreeDigits = sizeof(T) == 8 ? 9 : 5;
  const T value = std::bit_cast<T>(bits);
  if (std::isfinite(value)) {
    const std::string digits = FormatDigits(value);
    const std::string degrees =
        FormatDigits(double{value} * kDegreesPerRadian, std::chars_format::general, kDegreeDigits) + "deg";
    if (degrees.size() < digits.size() && ReadsBack(type, degrees, bytes)) return degrees;
    if (ReadsBack(type, digits, bytes)) return digits;
  }
  return "0x" + FormatHex(bits, 2 * sizeof bits);
}

std::string FormatWord32(unsigned word, bool isSigned) {
  const std::string code = FormatCode(word);
  if (!code.empty()) return code;
  return isSigned ? std::to_string(static_cast<int>(word)) : std::to_string(word);
}

bool CanStandAsName(const std::string& name) {
  if (name.empty() || name != TrimBlanks(name) || std::string("[#@").find(name[0]) != std::string::npos)
    return false;
  if (name.find_first_of(std::string("=\n\r\0", 4)) != std::string::npos) return false;
  return name.find(" #") == std::string::npos && name.find("\t#") == std::string::npos;
}

std::string FormatTail(const std::string& bytes, std::size_t begin) {
  std::string text;
  for (std::size_t i = begin; i < bytes.size(); ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    text += {kHexDigits[byte >> 4], kHexDigits[byte & 0xF]};
  }
  return text;
}

}  // namespace

bool IsPlainCode(unsigned word) { return !FormatCode(word).empty(); }

std::string FormatWord(unsigned word) {
  if (word == ParseWord("none")) return "none";
  if (word == ParseWord("defaults")) return "defaults";
  const std::string code = FormatCode(word);
  if (!code.empty() && ParseWord(code) == word) return code;  // not so for the code "none"
  return word < kLowestHexadecimal ? std::to_string(word) : "0x" + FormatHex(word, 1);
}

std::string FormatValue(unsigned char type, const char* bytes) {
  using namespace CommonInterfaces;
  switch (type) {
    case kFieldInt8:
      return std::to_string(static_cast<signed char>(*bytes));
    case kFieldInt16:
      return std::to_string(static_cast<short>(LoadLE16(bytes)));
    case kFieldUInt16:
      return std::to_string(LoadLE16(bytes));
    case kFieldInt32:
    case kFieldUInt32:
      return FormatWord32(LoadLE32(bytes), type == kFieldInt32);
    case kFieldFloat:
      return FormatReal<float>(type, LoadLE32(bytes), bytes);
    case kFieldDouble:
      return FormatReal<double>(type, LoadLE64(bytes), bytes);
    default:
      return std::to_string(static_cast<unsigned char>(*bytes));
  }
}

std::string FormatNameId(int nameId) { return "@" + FormatHex(static_cast<unsigned>(nameId), 1); }

std::size_t CountValues(const FieldText& field) {
  const std::size_t width = FieldElementWidth(field.type);
  return width == 0 ? 0 : std::min<std::size_t>(field.size, field.values.size() / width);
}

std::string FormatFieldContent(const FieldText& field) {
  std::string text = FormatType(field.type);
  const std::size_t width = FieldElementWidth(field.type), held = CountValues(field);
  for (std::size_t i = 0; i < held; ++i)
    text += (i == 0 ? " " : ", ") + FormatValue(field.type, field.values.data() + i * width);

  std::string attributes;
  if (field.compareStatus != 0) attributes += " compare=" + std::to_string(field.compareStatus);
  if (field.condition != 0) attributes += " condition=" + FormatWord(field.condition);
  if (field.querySection != CommonInterfaces::kOwnQuerySection)
    attributes += " query=" + FormatWord(field.querySection);
  if (field.size != held) attributes += " size=" + std::to_string(field.size);
  if (field.values.size() > held * width) attributes += " tail=" + FormatTail(field.values, held * width);
  if (field.isAgain) attributes += " again";
  return attributes.empty() ? text : text + " |" + attributes;
}

std::string FormatField(const FieldText& field) {
  return (CanStandAsName(field.name) ? field.name : FormatNameId(field.nameId)) + " = " +
         FormatFieldContent(field);
}

std::string FormatBlockHeading(unsigned owner, unsigned id) {
  return "[block " + FormatWord(owner) + " " + FormatWord(id) + "]";
}

std::string FormatSectionHeading(const SectionText& section) {
  std::string text = "[section " + FormatWord(section.id);
  const SectionText usual;
  if (section.alias != usual.alias) text += " alias=" + FormatWord(section.alias);
  if (section.status != usual.status) text += " status=" + std::to_string(section.status);
  return text + "]";
}

}  // namespace skydata
