// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/session/picture_size.h"

#include "utils/numbers.h"

namespace scene {

std::optional<PictureSize> ParseSize(std::string_view text) {
  constexpr int kMin = 64, kMax = 16384;
  PictureSize size;
  if (!TakeNumber(text, size.width, kMin, kMax) || !text.starts_with('x')) return std::nullopt;
  text.remove_prefix(1);
  if (!TakeNumber(text, size.height, kMin, kMax) || !text.empty()) return std::nullopt;
  return size;
}

}  // namespace scene
