// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/visibility/setting_text.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <utility>

#include "common_interfaces/field_data.h"
#include "scene/view/directions.h"
#include "utils/bytes.h"
#include "utils/numbers.h"
#include "utils/text.h"

namespace scene {
namespace {

// The whole text as an integer of type T.
template <class T>
bool ReadInteger(std::string_view text, T& value, int base = 10) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
  return error == std::errc() && end == text.data() + text.size();
}

bool ReadReal(std::string_view text, double& value) {
  const bool degrees = text.ends_with("deg");
  if (degrees) text.remove_suffix(3);
  if (!TakeNumber(text, value) || !text.empty()) return false;
  if (degrees) value *= kRadiansPerDegree;
  return true;
}

struct IntegerRange {
  long long least, most;
};

IntegerRange RangeOf(unsigned type) {
  switch (type) {
    case CommonInterfaces::kFieldInt8:
      return {-128, 127};
    case CommonInterfaces::kFieldInt16:
      return {-32768, 32767};
    case CommonInterfaces::kFieldUInt16:
      return {0, 65535};
    case CommonInterfaces::kFieldInt32:
      return {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};
    case CommonInterfaces::kFieldUInt32:
      return {0, std::numeric_limits<unsigned>::max()};
    default:
      return {0, 255};
  }
}

void AppendLE(unsigned long long bits, unsigned width, std::vector<unsigned char>& bytes) {
  unsigned char stored[8];
  StoreLE64(stored, bits);
  bytes.insert(bytes.end(), stored, stored + width);
}

// Splits what stands behind the last ':' off when it is a switch.
std::optional<bool> TakeSwitch(std::string_view& text) {
  for (const auto& [word, on] : {std::pair<std::string_view, bool>(":on", true), {":off", false}}) {
    if (!text.ends_with(word)) continue;
    text.remove_suffix(word.size());
    return on;
  }
  return std::nullopt;
}

// "FIELD[2]" is field and index; false for a bracket that holds no number.
bool TakeField(std::string_view text, SettingText& change) {
  const auto bracket = text.find('[');
  if (bracket != std::string_view::npos) {
    unsigned index = 0;
    if (!text.ends_with(']') || !ReadInteger(text.substr(bracket + 1, text.size() - bracket - 2), index))
      return false;
    change.index = index;
    text = text.substr(0, bracket);
  }
  change.field = text;
  return !text.empty();
}

bool TakeValues(std::string_view text, SettingText& change) {
  while (true) {
    const auto comma = text.find(',');
    change.values.emplace_back(text.substr(0, comma));
    if (change.values.back().empty()) return false;
    if (comma == std::string_view::npos) return true;
    text.remove_prefix(comma + 1);
  }
}

}  // namespace

int SettingText::GetNameId() const {
  unsigned id = 0;
  if (field.size() > 1 && field.front() == '@' && ReadInteger(std::string_view(field).substr(1), id, 16)) {
    return static_cast<int>(id);
  }
  return GetUniqueID(field.c_str());
}

std::optional<SettingText> ParseSettingText(std::string_view text) {
  SettingText change;
  change.on = TakeSwitch(text);
  const auto equals = text.find('=');
  const auto name = text.substr(0, equals);
  const auto point = name.find('.');
  change.section = name.substr(0, point);
  if (change.section.empty()) return std::nullopt;
  if (point == std::string_view::npos) {
    if (equals != std::string_view::npos || !change.on) return std::nullopt;
    return change;
  }
  if (!TakeField(name.substr(point + 1), change)) return std::nullopt;
  if (equals != std::string_view::npos && !TakeValues(text.substr(equals + 1), change)) return std::nullopt;
  // An index is that of a value; and a change must change something.
  if (change.values.empty() && (change.index || !change.on)) return std::nullopt;
  return change;
}

bool AppendSettingValue(unsigned type, const std::string& text, std::vector<unsigned char>& bytes) {
  const unsigned width = CommonInterfaces::FieldElementWidth(type);
  if (type == CommonInterfaces::kFieldFloat || type == CommonInterfaces::kFieldDouble) {
    double value = 0.0;
    if (!ReadReal(text, value)) return false;
    unsigned long long bits = 0;
    if (type == CommonInterfaces::kFieldFloat) {
      if (std::fabs(value) > std::numeric_limits<float>::max()) return false;
      const auto narrow = static_cast<float>(value);
      unsigned word = 0;
      std::memcpy(&word, &narrow, sizeof word);
      bits = word;
    } else {
      std::memcpy(&bits, &value, sizeof bits);
    }
    AppendLE(bits, width, bytes);
    return true;
  }
  long long value = 0;
  const IntegerRange range = RangeOf(type);
  if (width == 0 || !ReadInteger(text, value) || value < range.least || value > range.most) return false;
  AppendLE(static_cast<unsigned long long>(value), width, bytes);
  return true;
}

std::string DescribeElementType(unsigned type) {
  if (type == CommonInterfaces::kFieldFloat || type == CommonInterfaces::kFieldDouble) return "a number";
  const IntegerRange range = RangeOf(type);
  return "a whole number from " + std::to_string(range.least) + " to " + std::to_string(range.most);
}

}  // namespace scene
