// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/display/text_extents.h"

namespace scene {

TextExtents::~TextExtents() = default;

double TextExtents::GetWidth(const char* utf8, double size, unsigned) const {
  constexpr double kCharacterWidth = 0.62;
  int characters = 0;
  for (const char* c = utf8; *c; ++c) {
    if ((static_cast<unsigned char>(*c) & 0xC0) != 0x80) ++characters;  // continuation bytes do not count
  }
  return characters * size * kCharacterWidth;
}

}  // namespace scene
