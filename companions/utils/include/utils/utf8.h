// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Characters of texts in UTF-8. Nothing here keeps state: any thread may call.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "utils/api.h"

// The character at byte `at` of a text in UTF-8 (0 <= at < size), with the number of its bytes in `length`;
// -1 and 1 where none begins, is cut off, overlong or a surrogate. A null `length` is allowed.
UTILS_API int DecodeUtf8(const std::string& utf8, int at, int* length);

// Whether the byte is one of a character's, but not its first.
constexpr bool ContinuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

// How many characters begin in the text. A byte that is no UTF-8 counts as one unless it continues something.
constexpr int CountCharacters(std::string_view utf8) {
  return static_cast<int>(utf8.size()) -
         static_cast<int>(std::count_if(utf8.begin(), utf8.end(), ContinuesCharacter));
}

// The beginning of the text that `bytes` bytes have room for, without half a character at its end.
constexpr std::string_view FitUtf8(std::string_view utf8, std::size_t bytes) {
  std::size_t length = std::min(utf8.size(), bytes);
  while (length > 0 && length < utf8.size() && ContinuesCharacter(utf8[length])) --length;
  return utf8.substr(0, length);
}
