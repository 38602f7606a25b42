// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace skyview {

// The first so many characters of a text in UTF-8, the last one replaced by a full stop where it is cut.
std::string CutTo(const std::string& utf8, int characters);

// The items with commas between, on lines of at most so many characters, those behind the first indented.
// No item is broken.
std::string WrapList(const std::string& begin, const std::vector<std::string>& items, int characters,
                     int indent);

enum class Align { kLeft, kRight };

struct TextColumn {
  Align align;
  int widest = 100;  // what is longer is cut
};

// Rows of cells in columns that are as wide as their longest cell, two blanks apart, UTF-8. A row may have
// fewer cells than there are columns.
class TextTable {
 public:
  explicit TextTable(std::vector<TextColumn> columns) : m_Columns(std::move(columns)) {}

  void AddRow(std::vector<std::string> cells);
  bool HasRows() const { return m_Rows.size() > 1; }  // behind the head
  // Lines, each after so many blanks, without blanks at the end.
  std::string Format(int indent) const;

 private:
  std::vector<TextColumn> m_Columns;
  std::vector<std::vector<std::string>> m_Rows;
};

}  // namespace skyview
