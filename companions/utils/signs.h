// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace utils_internal {

// The library's converters know no "+". One in front of another sign stays, so that the text is no number.
constexpr std::string_view WithoutPlus(std::string_view text) {
  const bool isSign = text.size() > 1 && text[0] == '+' && text[1] != '-';
  return isSign ? text.substr(1) : text;
}

}  // namespace utils_internal
