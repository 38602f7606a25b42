// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/meteor_showers.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <string>

#include "astro/coordinates.h"
#include "catalogs/line_fields.h"
#include "common_interfaces/string_table.h"
#include "utils/characters.h"
#include "utils/debug.h"
#include "utils/text.h"

namespace CommonInterfaces {
namespace {

constexpr unsigned kFirstShower = 6101;
constexpr char kShowerDelimiter = ';';
constexpr std::size_t kFieldCount = 12;

using Fields = std::vector<std::string>;

// False for a number that 16 bits do not hold.
bool ReadSmallNumber(const std::string& field, short& value) {
  int number = 0;
  if (!ReadNumber(field, number, SHRT_MIN, SHRT_MAX)) return false;
  value = static_cast<short>(number);
  return true;
}

// Cut to the field, and ended.
template <std::size_t size>
void CopyText(const char* text, char (&out)[size]) {
  std::memcpy(out, text, std::min(std::strlen(text), size - 1));
}

bool ReadDates(const Fields& fields, SHOWER& shower) {
  return ReadSmallNumber(fields[1], shower.beginDay) && ReadSmallNumber(fields[2], shower.beginMonth) &&
         ReadSmallNumber(fields[3], shower.maximumDay) && ReadSmallNumber(fields[4], shower.maximumMonth) &&
         ReadSmallNumber(fields[5], shower.endDay) && ReadSmallNumber(fields[6], shower.endMonth);
}

// The sign is taken from the text: the number -0 would not show it.
bool ReadDeclination(std::string field, SHOWER& shower) {
  DeleteBorderSpace(field.data());
  const char* digits = field.c_str();
  if (*digits == '-' || *digits == '+') shower.decSign = *digits++;
  if (!IsDigit(*digits) || !ReadSmallNumber(digits, shower.decDegrees)) return false;
  const double magnitude = GMS2Rad({shower.decDegrees, 0, 0.0f}, kAngleDegrees);
  shower.dec = shower.decSign == '-' ? -magnitude : magnitude;
  return true;
}

bool ReadRadiant(const Fields& fields, SHOWER& shower) {
  if (!ReadSmallNumber(fields[9], shower.raHours) || !ReadSmallNumber(fields[10], shower.raMinutes))
    return false;
  shower.ra = GMS2Rad({shower.raHours, shower.raMinutes, 0.0f}, kAngleHours);
  return ReadDeclination(fields[11], shower);
}

bool ReadShower(const char* text, SHOWER& shower) {
  Fields fields = GetSubStrings(text, kShowerDelimiter);
  if (fields.size() < kFieldCount) return false;
  DeleteBorderSpace(fields[8].data());
  CopyText(fields[0].c_str(), shower.name);
  CopyText(fields[7].c_str(), shower.code);
  CopyText(fields[8].c_str(), shower.parentBody);
  return ReadDates(fields, shower) && ReadRadiant(fields, shower);
}

}  // namespace

bool ReadMeteorShowers(std::vector<SHOWER>* showers) {
  if (!showers) return false;
  const QX4Strings strings;
  std::vector<SHOWER> read;
  for (unsigned identifier = kFirstShower;; ++identifier) {
    const char* const text = QX4Strings::GetString(identifier, true);
    if (!text || !std::strchr(text, kShowerDelimiter)) break;
    SHOWER shower;
    if (ReadShower(text, shower)) {
      read.push_back(shower);
    } else {
      PrintDebugString("Bad string for meteor shower %s\n", text);
    }
  }
  showers->insert(showers->end(), read.begin(), read.end());
  return !read.empty();
}

}  // namespace CommonInterfaces
