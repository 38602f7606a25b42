// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Values of 1, 2, 4 or 8 bytes, which most fields have. Which of these lengths comes next cannot be guessed,
// and a wrong guess costs more than all that is done here: so nothing jumps.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

#include "common_interfaces/field_data.h"

namespace CommonInterfaces {

static_assert(std::endian::native == std::endian::little);

inline bool IsShort(unsigned size) {
  constexpr unsigned kLengths = 1u << 1 | 1u << 2 | 1u << 4 | 1u << 8;
  return size <= 8 && (kLengths >> size & 1) != 0;
}

// The value in the lowest bytes. It is taken with the bytes in front of it, for a record ends with its last
// value, but always has a header in front of the first.
inline std::uint64_t LoadShort(const unsigned char* value, unsigned size) {
  static_assert(kFieldHeaderSize >= 8);
  std::uint64_t bytes = 0;
  std::memcpy(&bytes, value + size - sizeof bytes, sizeof bytes);
  return bytes >> 8 * (sizeof bytes - size);
}

// The stores of greater lengths than the value's go to where nobody looks.
inline void StoreShort(void* out, std::uint64_t value, unsigned size) {
  unsigned char nobody[sizeof value];
  void* const places[] = {nobody, out};
  std::memcpy(places[size >= 8], &value, 8);
  std::memcpy(places[size >= 4], &value, 4);
  std::memcpy(places[size >= 2], &value, 2);
  std::memcpy(out, &value, 1);
}

}  // namespace CommonInterfaces
