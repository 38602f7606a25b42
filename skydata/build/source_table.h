// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace skydata {

// A table in the form that people edit: UTF-8, cells separated by tabs, a header line with the columns'
// names, one record a line; blank lines and lines that begin with '#' are passed over. A cell may be empty.
class SourceTable {
 public:
  // Throws SourceError when the file cannot be read, has other columns than these in this order, or a line
  // with another number of cells.
  SourceTable(const std::filesystem::path& path, const std::vector<std::string>& columns);

  int GetRowCount() const { return static_cast<int>(m_Rows.size()); }
  const std::string& GetText(int row, int column) const;

  // The number in a cell. Throws SourceError, naming line and column, when it is none, is empty or lies
  // outside [low, high].
  double GetNumber(int row, int column, double low, double high) const;
  int GetInteger(int row, int column, int low, int high) const;

  // The same for a cell that may be empty.
  std::optional<double> FindNumber(int row, int column, double low, double high) const;

  // Throws SourceError that names the line of the row and the column.
  [[noreturn]] void Fail(int row, int column, const std::string& message) const;

 private:
  struct Row {
    int line = 0;
    std::vector<std::string> cells;
  };

  void AddRow(int line, const std::string& text);

  std::string m_File;
  std::vector<std::string> m_Columns;
  std::vector<Row> m_Rows;
};

}  // namespace skydata
