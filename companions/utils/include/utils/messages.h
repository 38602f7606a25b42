// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Pieces of lines for people.
#pragma once

#include <string>
#include <vector>

#include "utils/api.h"
#include "utils/debug.h"

// As std::printf, for formats that the program itself has; at most 511 bytes. Any thread.
UTILS_API std::string FormatText(const char* format, ...) UTILS_PRINTF_FORMAT(1, 2);

// "A, B, C"; "" for none. Any thread.
UTILS_API std::string JoinNames(const std::vector<std::string>& names);
