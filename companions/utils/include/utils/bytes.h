// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The one place where bytes of files become numbers and back, whatever the byte order of the machine.
#pragma once

#include <cstdint>

// The number at an address of any alignment: little-endian (LE) or big-endian (BE).
inline std::uint16_t LoadLE16(const void* from) {
  const auto* b = static_cast<const unsigned char*>(from);
  return static_cast<std::uint16_t>(b[0] | b[1] << 8);
}
inline std::uint32_t LoadLE32(const void* from) {
  const auto* b = static_cast<const unsigned char*>(from);
  return static_cast<std::uint32_t>(LoadLE16(b)) | static_cast<std::uint32_t>(LoadLE16(b + 2)) << 16;
}
inline std::uint64_t LoadLE64(const void* from) {
  const auto* b = static_cast<const unsigned char*>(from);
  return LoadLE32(b) | static_cast<std::uint64_t>(LoadLE32(b + 4)) << 32;
}
inline std::uint32_t LoadBE32(const void* from) {
  const auto* b = static_cast<const unsigned char*>(from);
  return static_cast<std::uint32_t>(b[0]) << 24 | static_cast<std::uint32_t>(b[1]) << 16 |
         static_cast<std::uint32_t>(b[2]) << 8 | b[3];
}
inline std::uint64_t LoadBE64(const void* from) {
  const auto* b = static_cast<const unsigned char*>(from);
  return static_cast<std::uint64_t>(LoadBE32(b)) << 32 | LoadBE32(b + 4);
}

// Puts the number at an address of any alignment, little-endian.
inline void StoreLE16(void* to, std::uint16_t value) {
  auto* b = static_cast<unsigned char*>(to);
  b[0] = static_cast<unsigned char>(value);
  b[1] = static_cast<unsigned char>(value >> 8);
}
inline void StoreLE32(void* to, std::uint32_t value) {
  StoreLE16(to, static_cast<std::uint16_t>(value));
  StoreLE16(static_cast<unsigned char*>(to) + 2, static_cast<std::uint16_t>(value >> 16));
}
inline void StoreLE64(void* to, std::uint64_t value) {
  StoreLE32(to, static_cast<std::uint32_t>(value));
  StoreLE32(static_cast<unsigned char*>(to) + 4, static_cast<std::uint32_t>(value >> 32));
}
