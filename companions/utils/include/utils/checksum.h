// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "utils/api.h"

// The CRC-32 of zip, PNG and gzip: the reflected polynomial 0xEDB88320, begun and ended with all bits turned
// over. `crc` is that of the bytes before, 0 at the beginning, so that a text may come in pieces. Any thread.
UTILS_API std::uint32_t GetCrc32(std::string_view bytes, std::uint32_t crc = 0) noexcept;

// A fingerprint of 64 bits, ten times as fast, by which two texts are told apart: those that differ anywhere
// have different ones but for one in 2^64 by chance, and nobody who wants two alike is kept from finding
// them. Files keep it. Any thread.
UTILS_API std::uint64_t GetFingerprint(std::string_view bytes) noexcept;
