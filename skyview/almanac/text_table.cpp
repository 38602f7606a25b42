// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/almanac/text_table.h"

#include <algorithm>

#include "utils/utf8.h"

namespace skyview {
namespace {

std::string Blanks(int count) { return std::string(static_cast<std::size_t>(std::max(count, 0)), ' '); }

}  // namespace

std::string CutTo(const std::string& utf8, int characters) {
  if (CountCharacters(utf8) <= characters) return utf8;
  std::size_t end = 0;
  for (int count = 0; end < utf8.size(); ++end) {
    if (!ContinuesCharacter(utf8[end]) && ++count == characters) break;
  }
  return utf8.substr(0, end) + ".";
}

std::string WrapList(const std::string& begin, const std::vector<std::string>& items, int characters,
                     int indent) {
  std::string text, line = begin;
  for (std::size_t i = 0; i < items.size(); ++i) {
    const std::string item = items[i] + (i + 1 < items.size() ? "," : "");
    if (i > 0 && CountCharacters(line) + 1 + CountCharacters(item) > characters) {
      text += line + "\n";
      line = Blanks(indent) + item;
    } else {
      line += (line.empty() ? "" : " ") + item;
    }
  }
  return text + line + "\n";
}

void TextTable::AddRow(std::vector<std::string> cells) {
  for (std::size_t i = 0; i < cells.size(); ++i) cells[i] = CutTo(cells[i], m_Columns[i].widest);
  m_Rows.push_back(std::move(cells));
}

std::string TextTable::Format(int indent) const {
  std::vector<int> widths(m_Columns.size(), 0);
  for (const auto& row : m_Rows) {
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], CountCharacters(row[i]));
  }
  std::string text;
  for (const auto& row : m_Rows) {
    std::string line = Blanks(indent);
    for (std::size_t i = 0; i < row.size(); ++i) {
      const std::string rest = Blanks(widths[i] - CountCharacters(row[i]));
      line += (i > 0 ? "  " : "") + (m_Columns[i].align == Align::kLeft ? row[i] + rest : rest + row[i]);
    }
    const auto last = line.find_last_not_of(' ');
    text += line.substr(0, last == std::string::npos ? 0 : last + 1) + "\n";
  }
  return text;
}

}  // namespace skyview
