// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "utils/mapped_file.h"

namespace skydata {

// A table of a FITS file (FITS standard 4.0): rows of equal size.
struct FitsTable {
  std::string column;  // the name of its first one
  std::uint64_t rowSize = 0, rows = 0;
  const unsigned char* bytes = nullptr;
};

// The tables of a FITS file by their first columns, which lie in memory as they stand in the file. Nothing
// that the file says of itself is believed beyond its size.
class FitsFile {
 public:
  // Throws SourceError for what is no FITS file and for one that ends early.
  explicit FitsFile(const std::filesystem::path& path);

  static bool IsFits(std::string_view firstBytes) { return firstBytes.starts_with("SIMPLE  ="); }

  // The table whose first column has that name. Throws SourceError when there is none, and when its rows are
  // not of that many bytes.
  const FitsTable& Get(const std::string& column, std::uint64_t rowSize) const;

  // The text of a card of the first header, "" when there is none.
  std::string GetText(const std::string& key) const;

  [[noreturn]] void Fail(const std::string& message) const;

 private:
  using Cards = std::map<std::string, std::string>;

  Cards ReadHeader(std::uint64_t& at) const;
  std::uint64_t ReadInteger(const Cards& cards, const std::string& key, std::uint64_t missing) const;
  std::uint64_t GetDataSize(const Cards& cards) const;

  std::string m_Path;
  MappedFile m_File;
  Cards m_First;
  std::vector<FitsTable> m_Tables;
};

}  // namespace skydata
