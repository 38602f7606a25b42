// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cstdio>

#include "companions/utils/debug_platform.h"

namespace utils_internal {

void WriteDebugText(const char* text) { std::fputs(text, stderr); }

}  // namespace utils_internal
