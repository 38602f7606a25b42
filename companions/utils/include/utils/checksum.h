// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "utils/api.h"

// What one byte does to a sum of the reflected polynomial 0xEDB88320: the table that makers of such sums
// keep.
constexpr std::uint32_t GetCrc32Entry(unsigned char byte) {
  std::uint32_t entry = byte;
  for (int bit = 0; bit < 8; ++bit) entry = entry >> 1 ^ (entry & 1u ? 0xEDB88320u : 0u);
  return entry;
}

// The CRC-32 of zip, PNG and gzip: of that polynomial, begun and ended with all bits turned
// over. `crc` is that of the bytes before, 0 at the beginning, so that a text may come in pieces. Any thread.
UTILS_API std::uint32_t GetCrc32(std::string_view bytes, std::uint32_t crc = 0) noexcept;

// A fingerprint of 64 bits, ten times as fast, by which two texts are told apart: those that differ anywhere
// have different ones but for one in 2^64 by chance, and nobody who wants two alike is kept from finding
// them. Files keep it. Any thread.
UTILS_API std::uint64_t GetFingerprint(std::string_view bytes) noexcept;
