// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace skydata {

struct ShownCell {
  std::string text;
  bool isNumber = false;

  ShownCell(std::string content) : text(std::move(content)) {}
  ShownCell(const char* content) : text(content) {}
  ShownCell(int number) : text(std::to_string(number)), isNumber(true) {}

  // With as many decimals; what is not finite as text.
  static ShownCell Real(double value, int decimals);
  // Digits as they stand in a file; a text where JSON has no such number.
  static ShownCell Number(std::string digits);
  // A number that the record lacks: blank, null in JSON.
  static ShownCell Missing();
};

// The records of a file, ready to be printed. The unit of a column stands in brackets behind its name.
struct ShownTable {
  std::vector<std::string> columns;
  std::vector<std::vector<ShownCell>> rows;  // as many cells as there are columns
  int unreadable = 0;                        // records or lines that were left out
};

// One line of names and one a record, in columns: numbers to the right, texts to the left.
std::string FormatTable(const ShownTable& table);

// One JSON array (RFC 8259) of objects, the columns their names, ended by a line feed.
std::string FormatTableAsJson(const ShownTable& table);

}  // namespace skydata
