// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/display/text_extents.h"

#include "utils/utf8.h"

namespace scene {

TextExtents::~TextExtents() = default;

double TextExtents::GetWidth(const char* utf8, double size, unsigned) const {
  constexpr double kCharacterWidth = 0.62;
  return CountCharacters(utf8) * size * kCharacterWidth;
}

}  // namespace scene
