// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/words/angle_text.h"

#include <cctype>
#include <string_view>

namespace scene {
namespace {

bool IsDigitAt(const std::string& text, std::size_t at) {
  return at < text.size() && std::isdigit(static_cast<unsigned char>(text[at])) != 0;
}

}  // namespace

std::string PutSignsFirst(const std::string& text) {
  std::string moved = text;
  for (const std::string_view zero : {"0\u00B0-", "0\u00B000'-"}) {
    for (std::size_t at = 0; (at = moved.find(zero, at)) != std::string::npos; ++at) {
      if ((at > 0 && IsDigitAt(moved, at - 1)) || !IsDigitAt(moved, at + zero.size())) continue;
      moved.erase(at + zero.size() - 1, 1);
      moved.insert(at, 1, '-');
    }
  }
  return moved;
}

}  // namespace scene
