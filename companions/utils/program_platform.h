// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace utils_internal {

// Makes writing to a closed pipe an error of that writing, and keeps the numbers of closed standard streams
// from being given to files.
void PrepareStandardStreams();

}  // namespace utils_internal
