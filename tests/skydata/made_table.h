// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/skydata/source_text.h"

namespace skydata_test {

// A table with cells by record and column name.
class MadeTable {
 public:
  explicit MadeTable(const std::string& bytes) : m_Records(SplitTable(bytes)) {
    for (std::size_t i = 0; i < m_Records[0].size(); ++i) m_Columns[m_Records[0][i]] = i;
  }
  std::size_t GetCount() const { return m_Records.size() - 1; }
  const std::string& GetText(std::size_t record, const std::string& column) const {
    return m_Records[record + 1].at(m_Columns.at(column));
  }
  double GetNumber(std::size_t record, const std::string& column) const {
    return std::strtod(GetText(record, column).c_str(), nullptr);
  }
  std::size_t Find(const std::string& column, const std::string& text) const {
    for (std::size_t i = 0; i < GetCount(); ++i) {
      if (GetText(i, column) == text) return i;
    }
    throw std::out_of_range(column + " " + text);
  }

 private:
  std::vector<std::vector<std::string>> m_Records;
  std::map<std::string, std::size_t> m_Columns;
};

}  // namespace skydata_test
