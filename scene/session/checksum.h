// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// FNV-1a, 64 bits (Fowler, Noll & Vo 1991): tells versions of a file apart, protects against nobody.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace scene {

unsigned long long Checksum(std::string_view bytes);

// As 16 hexadecimal digits in small letters, and back: nothing for any other text.
std::string FormatChecksum(unsigned long long checksum);
std::optional<unsigned long long> ParseChecksum(std::string_view text);

}  // namespace scene
