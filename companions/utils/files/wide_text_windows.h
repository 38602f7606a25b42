// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace utils_internal {

// UTF-8 to the system's wide text; empty when it is not UTF-8.
std::wstring Widen(const std::string& text);

// The system's wide text, with its terminator, to UTF-8.
std::string Narrow(const wchar_t* wide);

// The answers of the system (GetLastError) that mean "there is no such file": a name that no file can have is
// one of them. Every other failure leaves open what is there.
bool IsAbsence(unsigned long code);

}  // namespace utils_internal
