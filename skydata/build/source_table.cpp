// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/build/source_table.h"

#include <cmath>

#include "skydata/files/source_error.h"
#include "skydata/files/whole_file.h"
#include "utils/numbers.h"

namespace skydata {
namespace {

std::vector<std::string> SplitCells(const std::string& text) {
  std::vector<std::string> cells;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find('\t', begin), text.size());
    cells.push_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  return cells;
}

std::string Join(const std::vector<std::string>& columns) {
  std::string text;
  for (const std::string& column : columns) text += (text.empty() ? "" : ", ") + column;
  return text;
}

}  // namespace

SourceTable::SourceTable(const std::filesystem::path& path, const std::vector<std::string>& columns)
    : m_File(path.string()), m_Columns(columns) {
  bool hasHeader = false;
  for (const TextLine& line : ReadLines(path)) {
    if (line.text.empty() || line.text[0] == '#') continue;
    if (hasHeader) {
      AddRow(line.number, line.text);
      continue;
    }
    if (SplitCells(line.text) != columns)
      throw SourceError(m_File, line.number, "wants the columns " + Join(columns));
    hasHeader = true;
  }
  if (!hasHeader) throw SourceError(m_File, 0, "wants the columns " + Join(columns));
}

// Empty cells at the end of a line may be left out: editors strip the tabs there.
void SourceTable::AddRow(int line, const std::string& text) {
  Row row{line, SplitCells(text)};
  if (row.cells.size() > m_Columns.size()) {
    throw SourceError(
        m_File, line,
        "has " + std::to_string(row.cells.size()) + " cells, wants " + std::to_string(m_Columns.size()));
  }
  row.cells.resize(m_Columns.size());
  m_Rows.push_back(std::move(row));
}

const std::string& SourceTable::GetText(int row, int column) const {
  return m_Rows[static_cast<std::size_t>(row)].cells[static_cast<std::size_t>(column)];
}

std::optional<double> SourceTable::FindNumber(int row, int column, double low, double high) const {
  const std::string& text = GetText(row, column);
  if (text.empty()) return std::nullopt;
  const auto value = ParseNumber<double>(text);
  if (!value) Fail(row, column, "'" + text + "' is no number");
  if (*value < low || *value > high) Fail(row, column, text + " is out of range");
  return value;
}

double SourceTable::GetNumber(int row, int column, double low, double high) const {
  const auto value = FindNumber(row, column, low, high);
  if (!value) Fail(row, column, "must not be empty");
  return *value;
}

int SourceTable::GetInteger(int row, int column, int low, int high) const {
  const double value = GetNumber(row, column, low, high);
  if (value != std::floor(value)) Fail(row, column, GetText(row, column) + " is no whole number");
  return static_cast<int>(value);
}

void SourceTable::Fail(int row, int column, const std::string& message) const {
  throw SourceError(m_File, m_Rows[static_cast<std::size_t>(row)].line,
                    m_Columns[static_cast<std::size_t>(column)] + ": " + message);
}

}  // namespace skydata
