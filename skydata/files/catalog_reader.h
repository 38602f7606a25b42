// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A catalog table (docs/formats/catalog_tables.md) as it lies on the disk: every cell with its place.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "skydata/files/text_lines.h"

namespace skydata {

struct CatalogColumn {
  std::string name, type;
};

struct CatalogRecord {
  int line = 0;
  int end = 0;  // the column behind the last cell
  std::vector<TextField> cells;
};

struct CatalogData {
  int headerLine = 0;  // 0: none
  std::vector<CatalogColumn> columns;
  std::vector<TextField> headerCells;
  std::vector<CatalogRecord> records;

  int FindColumn(const std::string& name) const;  // -1: none
  // The cell of a record, null where the record lacks it or it is empty.
  const TextField* FindCell(const CatalogRecord& record, int column) const;
  // The number in the column of that name; none where there is no such number.
  std::optional<double> FindNumber(const CatalogRecord& record, const char* name) const;
};

CatalogData ReadCatalog(const TextLines& lines);

// Whether the name of a type is one of a catalog table.
bool IsCatalogType(const std::string& type);

// The number of a cell of that type: none when it is no number, not finite, or does not fit the type.
std::optional<double> ParseCatalogNumber(const std::string& type, const std::string& cell);

}  // namespace skydata
