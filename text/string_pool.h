// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace CommonInterfaces {

// Packs zero-terminated texts one after the other into a block that the caller owns.
class StringPool {
 public:
  StringPool(char* block, unsigned size) : m_Next(block), m_Left(size) {}

  // Resolves the escapes of `source` into the block and returns where the text stands, or null when the block
  // has no room for it: the block is then as it was. `source` may stand in the block itself, at or behind the
  // place where its text goes.
  char* Add(const char* source);

 private:
  char* m_Next;
  unsigned m_Left;
};

}  // namespace CommonInterfaces
