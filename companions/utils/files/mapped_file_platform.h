// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What mapping a file asks of the system: mapped_file_posix.cpp and mapped_file_windows.cpp.
#pragma once

#include <cstddef>
#include <string>

namespace utils_internal {

inline constexpr char kTooLargeToMap[] = "it is too large for the memory that a process can address";

// The bytes of a regular file and their number; null and 0 for an empty one. False with the reason.
bool MapFile(const char* path, const unsigned char*& bytes, std::size_t& size, std::string& reason);

void UnmapFile(const unsigned char* bytes, std::size_t size) noexcept;

}  // namespace utils_internal
