// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

#include "utils/api.h"

// The CRC-32 of zip, PNG and gzip: the reflected polynomial 0xEDB88320, begun and ended with all bits turned
// over. `crc` is that of the bytes before, 0 at the beginning, so that a text may come in pieces. `bytes` may
// be null where size is 0. Any thread.
UTILS_API std::uint32_t GetCrc32(const void* bytes, std::size_t size, std::uint32_t crc = 0) noexcept;
