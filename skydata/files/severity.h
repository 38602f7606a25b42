// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace skydata {

// How bad it is what a command finds in a file.
enum class Severity { kInfo, kWarning, kError };

// "info", "warning" or "error".
inline const char* NameOf(Severity severity) {
  constexpr const char* kNames[] = {"info", "warning", "error"};
  return kNames[static_cast<int>(severity)];
}

}  // namespace skydata
