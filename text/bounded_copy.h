// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace CommonInterfaces {

inline constexpr int kLongestText = 255;  // of a caller's buffer of 256 bytes

// Writes the text into a buffer of 256 bytes, terminated, and returns the length kept; a longer one is cut
// with one line. The text may stand in the buffer.
int CopyBounded(std::string_view text, char* out);

}  // namespace CommonInterfaces
