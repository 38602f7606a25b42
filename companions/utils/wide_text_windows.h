// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace utils_internal {

// UTF-8 to the system's wide text; empty when it is not UTF-8.
std::wstring Widen(const std::string& text);

// The system's wide text, with its terminator, to UTF-8.
std::string Narrow(const wchar_t* wide);

}  // namespace utils_internal
