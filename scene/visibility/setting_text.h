// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The text of one change of a setting; its grammar stands with ChangeSetting.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace scene {

struct SettingText {
  std::string section;
  std::string field;  // "" for a change of the whole section, which then has `on`
  std::optional<unsigned> index;
  std::vector<std::string> values;  // empty when none are given
  std::optional<bool> on;

  int GetNameId() const;  // of the field
};

// Nothing for a text that is not of the form.
std::optional<SettingText> ParseSettingText(std::string_view text);

// Appends the bytes of one value, little-endian, as fields keep it. False, and nothing appended, when the
// text is no value of that element type. Numbers are written with a point, whatever the locale.
bool AppendSettingValue(unsigned type, const std::string& text, std::vector<unsigned char>& bytes);

// "a whole number from 0 to 255", for messages.
std::string DescribeElementType(unsigned type);

}  // namespace scene
