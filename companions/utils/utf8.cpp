// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/utf8.h"

namespace {

unsigned GetByte(const std::string& text, int at) {
  return static_cast<unsigned char>(text[static_cast<std::size_t>(at)]);
}

// The number of bytes that a character of UTF-8 has by its first byte; 0 for a byte that begins none.
int GetSequenceLength(unsigned first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first < 0xE0) return 2;  // 0xC0 and 0xC1 would begin overlong forms
  if (first >= 0xE0 && first < 0xF0) return 3;
  return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

bool IsCharacter(int c, int length) {
  constexpr int kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
  return c >= kLeast[length] && c <= 0x10FFFF && (c < 0xD800 || c > 0xDFFF);
}

}  // namespace

int DecodeUtf8(const std::string& utf8, int at, int* length) {
  if (length) *length = 1;
  const unsigned first = GetByte(utf8, at);
  const int count = GetSequenceLength(first);
  if (count < 2) return count == 1 ? static_cast<int>(first) : -1;
  if (static_cast<int>(utf8.size()) - at < count) return -1;
  int c = static_cast<int>(first & (0x7Fu >> count));
  for (int i = 1; i < count; ++i) {
    const unsigned next = GetByte(utf8, at + i);
    if ((next & 0xC0) != 0x80) return -1;
    c = c << 6 | static_cast<int>(next & 0x3F);
  }
  if (!IsCharacter(c, count)) return -1;
  if (length) *length = count;
  return c;
}
