// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <windows.h>

#include <cstdio>

#include "companions/utils/debug_platform.h"

namespace utils_internal {

void WriteDebugText(const char* text) {
  std::fputs(text, stderr);
  OutputDebugStringA(text);
}

}  // namespace utils_internal
