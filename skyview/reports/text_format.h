// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "utils/debug.h"

namespace skyview {

// As std::printf, for formats of the program itself; at most 511 bytes.
std::string Format(const char* format, ...) UTILS_PRINTF_FORMAT(1, 2);

}  // namespace skyview
