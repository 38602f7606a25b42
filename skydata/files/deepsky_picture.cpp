// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/files/deepsky_picture.h"

#include <algorithm>
#include <cstring>

#include "common_interfaces/record_lines.h"

namespace skydata {
namespace {

constexpr char kDigits[] = "0123456789";
constexpr char kNumberCharacters[] = "0123456789.eE-";
constexpr char kAngleMarks[] = "hgms'\"\xB0";

bool IsIn(char c, const char* set) { return c != '\0' && std::strchr(set, c) != nullptr; }

bool HasDigit(const std::string& text) { return text.find_first_of(kDigits) != std::string::npos; }

}  // namespace

const char* NamePictureColumn(int column) {
  static constexpr const char* kNames[] = {"number",      "size",      "right ascension", "declination",
                                           "rotation",    "flags",     "aspect ratio",    "layer",
                                           "black point", "brightness"};
  return kNames[column];
}

std::vector<TextField> SplitAtBlanks(const TextLine& line) {
  std::vector<TextField> fields;
  const std::string& text = line.text;
  for (std::size_t at = text.find_first_not_of(" \t\r"); at < text.size();) {
    const std::size_t end = std::min(text.find_first_of(" \t\r", at), text.size());
    if (text[at] == '!') break;
    fields.push_back({text.substr(at, end - at), static_cast<int>(at) + 1});
    at = text.find_first_not_of(" \t\r", end);
  }
  return fields;
}

std::optional<double> ParsePlainNumber(const std::string& text, bool isWhole) {
  std::string copy = text[0] == '+' ? text.substr(1) : text;
  char* cursor = copy.data();
  double value = 0.0;
  int whole = 0;
  const bool isRead = isWhole ? GetLong1(cursor, whole) == 1 : GetDouble(cursor, value) == 1;
  if (!isRead || *cursor != '\0' || !HasDigit(copy)) return std::nullopt;
  return isWhole ? whole : value;
}

std::optional<double> ParseAngle(const std::string& text, bool& lacksMark) {
  std::string copy = text[0] == '+' ? text.substr(1) : text;
  lacksMark = copy.find_first_of(kAngleMarks) != std::string::npos && !IsIn(copy.back(), kAngleMarks);
  for (std::size_t at = 0; at < copy.size(); ++at) {
    const bool isMark = IsIn(copy[at], kAngleMarks);
    const bool followsNumber = at > 0 && IsIn(copy[at - 1], kDigits);
    const bool endsInPoint = at > 0 && copy[at - 1] == '.';
    if (isMark ? !(followsNumber || endsInPoint) : !IsIn(copy[at], kNumberCharacters)) return std::nullopt;
  }
  char* cursor = copy.data();
  double degrees = 0.0;
  if (!HasDigit(copy) || GetRaOrDec(cursor, degrees) != 1 || *cursor != '\0') return std::nullopt;
  return degrees;
}

bool ParsePictureNumber(const std::string& text, int& number, char& letter) {
  const std::size_t end = std::min(text.find_first_not_of(kDigits), text.size());
  letter = end < text.size() ? text[end] : '\0';
  if (end == 0 || end + 1 < text.size() || (letter != '\0' && (letter < 'A' || letter > 'G'))) return false;
  number = static_cast<int>(*ParsePlainNumber(text.substr(0, end), true));
  return true;
}

}  // namespace skydata
