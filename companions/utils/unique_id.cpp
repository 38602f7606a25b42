// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <array>

#include "utils/checksum.h"
#include "utils/text.h"

namespace {

// The table of the reflected CRC-32 polynomial. Made at compile time: name ids are computed by static
// initialisers of other libraries, which may run before any of this one.
constexpr std::array<unsigned, 256> MakeTable() {
  std::array<unsigned, 256> table{};
  for (unsigned i = 0; i < 256; ++i) table[i] = GetCrc32Entry(static_cast<unsigned char>(i));
  return table;
}

constexpr std::array<unsigned, 256> kTable = MakeTable();

}  // namespace

// The shift is deliberately the arithmetic one of a signed value, and nothing is inverted at the start or the
// end: a plain CRC-32 gives other ids, and files keep these.
int GetUniqueID(const char* name) {
  if (!name) return 0;
  int hash = 0;
  for (; *name; ++name) {
    const unsigned index = (static_cast<unsigned>(hash) ^ static_cast<unsigned char>(*name)) & 0xFF;
    hash = hash >> 8 ^ static_cast<int>(kTable[index]);
  }
  return hash & 0x7FFFFFFF;
}
