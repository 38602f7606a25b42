// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "skydata/settings/reader/file.h"

namespace skydata {

// The record of a field, not decoded yet.
struct RawRecord {
  std::size_t offset;  // of its length
  std::string_view bytes;
};

// What stands at a place of a settings file, read as if it were a block.
struct BlockScan {
  FileBlock block;  // without fields
  std::vector<RawRecord> records;
  int passed = 0;                 // records up to the end of the block, those behind a damage included
  bool isFramed = false;          // the end of the block is known
  std::optional<Finding> damage;  // the first; neither framed nor damaged: there is not even a key
};

BlockScan ScanBlock(std::string_view bytes, std::size_t begin);

// "1 byte", "2 bytes"
std::string CountOf(long long count, const char* what);

}  // namespace skydata
