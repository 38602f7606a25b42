// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cerrno>

namespace utils_internal {

// The answers of the system that mean "there is no such file". Every other failure leaves open what is there.
inline bool IsAbsence(int code) { return code == ENOENT || code == ENOTDIR; }

}  // namespace utils_internal
