// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "text/bounded_copy.h"

#include <algorithm>
#include <cstring>

#include "utils/debug.h"

namespace CommonInterfaces {

int CopyBounded(std::string_view text, char* out) {
  const std::size_t kept = std::min<std::size_t>(text.size(), kLongestText);
  if (kept != text.size()) {
    PrintDebugString("A text of %d bytes is cut to %d\n", static_cast<int>(text.size()), kLongestText);
  }
  std::memmove(out, text.data(), kept);
  out[kept] = '\0';
  return static_cast<int>(kept);
}

}  // namespace CommonInterfaces
