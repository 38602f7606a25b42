// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace utils_internal {

// Where diagnostic texts go while no sink is installed: standard error, and under Windows the debugger too.
// One call writes the whole text.
void WriteDebugText(const char* text);

}  // namespace utils_internal
