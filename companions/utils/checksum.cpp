// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/checksum.h"

#include <array>

#include "utils/bytes.h"

namespace {

// Table k: what a byte does to the sum when k more bytes follow it. Eight bytes a step are several times as
// fast as one.
using Tables = std::array<std::array<std::uint32_t, 256>, 8>;

constexpr Tables MakeTables() {
  Tables tables{};
  for (std::size_t byte = 0; byte < 256; ++byte)
    tables[0][byte] = GetCrc32Entry(static_cast<unsigned char>(byte));
  for (std::size_t k = 1; k < tables.size(); ++k) {
    for (std::size_t byte = 0; byte < 256; ++byte) {
      const std::uint32_t before = tables[k - 1][byte];
      tables[k][byte] = before >> 8 ^ tables[0][before & 0xFFu];
    }
  }
  return tables;
}

constexpr Tables kTables = MakeTables();

// One step of the fingerprint: every bit of the word moves bits above its own, the shift brings them down.
std::uint64_t Mix(std::uint64_t state, std::uint64_t word) {
  constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15u;  // 2^64 over the golden ratio, odd
  const std::uint64_t product = (state ^ word) * kFactor;
  return product ^ product >> 32;
}

std::uint32_t Look(int table, std::uint32_t word, int shift) { return kTables[table][word >> shift & 0xFFu]; }

}  // namespace

std::uint32_t GetCrc32(std::string_view bytes, std::uint32_t crc) noexcept {
  const auto* at = reinterpret_cast<const unsigned char*>(bytes.data());
  std::size_t size = bytes.size();
  crc = ~crc;
  for (; size >= 8; size -= 8, at += 8) {
    const std::uint32_t low = LoadLE32(at) ^ crc, high = LoadLE32(at + 4);
    crc = Look(7, low, 0) ^ Look(6, low, 8) ^ Look(5, low, 16) ^ Look(4, low, 24) ^ Look(3, high, 0) ^
          Look(2, high, 8) ^ Look(1, high, 16) ^ Look(0, high, 24);
  }
  for (; size > 0; --size, ++at) crc = crc >> 8 ^ Look(0, crc ^ *at, 0);
  return ~crc;
}

// Four lanes, so that a multiplication need not wait for the one before. A step is one to one in state and
// word, so that no single change of a word is lost.
std::uint64_t GetFingerprint(std::string_view bytes) noexcept {
  const auto* at = reinterpret_cast<const unsigned char*>(bytes.data());
  std::size_t size = bytes.size();
  std::uint64_t lanes[4] = {1, 2, 3, 4};
  for (; size >= 32; size -= 32, at += 32) {
    for (int i = 0; i < 4; ++i) lanes[i] = Mix(lanes[i], LoadLE64(at + 8 * i));
  }
  std::uint64_t sum = bytes.size();
  for (const std::uint64_t lane : lanes) sum = Mix(sum, lane);
  for (; size > 0; --size, ++at) sum = Mix(sum, *at);
  return Mix(sum, 0);
}
