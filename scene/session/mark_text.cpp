// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/session/mark_text.h"

#include "scene/visibility/setting_values.h"
#include "utils/numbers.h"

namespace scene {
namespace {

// A number from `low` to `high` off the front; as people write them, without a plus.
bool Take(std::string_view& text, double low, double high, double& value) {
  return !text.starts_with('+') && TakeNumber(text, value) && value >= low && value <= high;
}

bool TakeChar(std::string_view& text, char c) {
  if (!text.starts_with(c)) return false;
  text.remove_prefix(1);
  return true;
}

bool TakeRightAscension(std::string_view& text, double& degrees) {
  constexpr double kDegreesPerHour = 15.0;
  if (!Take(text, 0.0, 360.0, degrees)) return false;
  if (!TakeChar(text, 'h')) return true;
  degrees *= kDegreesPerHour;
  return degrees <= 360.0;
}

}  // namespace

std::optional<SkyMark> ParseMark(std::string_view text) {
  SkyMark mark;
  if (!TakeRightAscension(text, mark.ra) || !TakeChar(text, ',') || !Take(text, -90.0, 90.0, mark.dec))
    return std::nullopt;
  if (text.empty()) return mark;
  int id = 0;
  if (!TakeChar(text, ',') || text.starts_with('+') || !TakeNumber(text, id, 0) || !text.empty())
    return std::nullopt;
  mark.id = id;
  return mark;
}

std::string FormatMark(const SkyMark& mark) {
  return FormatExact(mark.ra) + "," + FormatExact(mark.dec) + "," + std::to_string(mark.id.value_or(0));
}

}  // namespace scene
