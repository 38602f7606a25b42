// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace utils_internal {

// Makes writing to a closed pipe an error of that writing, and keeps the numbers of closed standard streams
// from being given to files.
void PrepareStandardStreams();

// The system's number of the calling thread, the one that debuggers show; never 0.
unsigned long GetThreadNumber();

}  // namespace utils_internal
