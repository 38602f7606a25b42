// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "output/unusable_record.h"

#include "utils/debug.h"

namespace CommonInterfaces {

void PrintUnusable(const SSO_ID& id, const char* reason) {
  char kind[5] = "";
  for (int i = 0; i < 4; ++i) {
    const int byte = id.kind >> (24 - 8 * i) & 255;
    kind[i] = byte >= ' ' && byte <= '~' ? static_cast<char>(byte) : '?';
  }
  PrintDebugString("Object %s %d: %s\n", kind, id.number, reason);
}

}  // namespace CommonInterfaces
