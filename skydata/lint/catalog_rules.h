// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace skydata {

// What the values of a column of that name may be.
struct ColumnRange {
  const char* name;
  double least, most;
  double mostDegrees;  // up to which a value beyond looks like degrees; 0: it does not
};

// Null for a column whose values may be anything.
const ColumnRange* FindRange(const std::string& column);

// Which catalog has which columns, and of what kind its objects are.
struct CatalogRule {
  const char* name;  // of the file, without ".txt"
  std::vector<const char*> columns;
  const char* kind;  // of the objects; "": that in the column Type; null: they are none
};

// The rule of the catalog in the file of this name; null for one that nothing is known of.
const CatalogRule* FindCatalogRule(const std::string& fileName);

}  // namespace skydata
