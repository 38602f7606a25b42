// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/session/checksum.h"

#include <charconv>

#include "utils/messages.h"

namespace scene {

unsigned long long Checksum(std::string_view bytes) {
  constexpr unsigned long long kBasis = 0xCBF29CE484222325u, kPrime = 0x100000001B3u;
  unsigned long long checksum = kBasis;
  for (const char byte : bytes) checksum = (checksum ^ static_cast<unsigned char>(byte)) * kPrime;
  return checksum;
}

std::string FormatChecksum(unsigned long long checksum) {
  return FormatText("%08x%08x", static_cast<unsigned>(checksum >> 32), static_cast<unsigned>(checksum));
}

std::optional<unsigned long long> ParseChecksum(std::string_view text) {
  unsigned long long value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
  if (error != std::errc() || end != text.data() + text.size() || FormatChecksum(value) != text)
    return std::nullopt;
  return value;
}

}  // namespace scene
