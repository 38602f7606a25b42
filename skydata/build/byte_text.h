// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Appends integers to the bytes of a file, in the byte order that the name says.
#pragma once

#include <string>

#include "utils/bytes.h"

namespace skydata {

inline void AppendLE32(std::string& bytes, int value) {
  char word[4];
  StoreLE32(word, static_cast<std::uint32_t>(value));
  bytes.append(word, sizeof word);
}

inline void AppendBE16(std::string& bytes, int value) {
  bytes += static_cast<char>(value >> 8 & 0xFF);
  bytes += static_cast<char>(value & 0xFF);
}

inline void AppendBE32(std::string& bytes, int value) {
  AppendBE16(bytes, value >> 16);
  AppendBE16(bytes, value);
}

}  // namespace skydata
