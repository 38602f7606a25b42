// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace CommonInterfaces {

// Kind and number as one number whose order is theirs: kind first, both signed.
inline std::uint64_t ObjectKey(int kind, int number) {
  constexpr std::uint32_t kSign = 0x80000000u;
  const auto high = static_cast<std::uint32_t>(kind) ^ kSign,
             low = static_cast<std::uint32_t>(number) ^ kSign;
  return static_cast<std::uint64_t>(high) << 32 | low;
}

}  // namespace CommonInterfaces
