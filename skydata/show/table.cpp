// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/show/table.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "skydata/files/text_lines.h"
#include "utils/json.h"

namespace skydata {
namespace {

// Control characters would tear the line apart.
std::string Printable(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c >= '\0' && c < ' '; }, ' ');
  return text;
}

std::size_t SkipDigits(const std::string& text, std::size_t at) {
  return std::min(text.find_first_not_of("0123456789", at), text.size());
}

// Digits of JSON: no "+" before them, no 0 before another digit, digits on both sides of the point.
bool IsJsonNumber(const std::string& text) {
  const std::size_t begin = text.starts_with('-') ? 1 : 0;
  std::size_t at = SkipDigits(text, begin);
  if (at == begin || (text[begin] == '0' && at > begin + 1)) return false;
  if (at < text.size() && text[at] == '.') {
    const std::size_t point = at++;
    at = SkipDigits(text, at);
    if (at == point + 1) return false;
  }
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    ++at;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
    const std::size_t exponent = at;
    at = SkipDigits(text, at);
    if (at == exponent) return false;
  }
  return at == text.size();
}

std::string FormatCellAsJson(const ShownCell& cell) {
  if (!cell.isNumber) return JsonString(cell.text);
  return cell.text.empty() ? "null" : cell.text;
}

// A longer text moves what follows in its own line: one of a damaged file, as long as the file, would
// otherwise be the width of every line.
constexpr int kWidestColumn = 200;

std::vector<int> MeasureColumns(const ShownTable& table) {
  std::vector<int> widths;
  for (const std::string& column : table.columns) widths.push_back(CountCharacters(column));
  for (const auto& row : table.rows) {
    for (std::size_t i = 0; i < row.size(); ++i)
      widths[i] = std::max(widths[i], CountCharacters(row[i].text));
  }
  for (int& width : widths) width = std::min(width, kWidestColumn);
  return widths;
}

void AppendCell(const std::string& text, bool isRight, int width, std::string& line) {
  const std::string fill(static_cast<std::size_t>(std::max(width - CountCharacters(text), 0)), ' ');
  if (!line.empty()) line += "  ";
  line += isRight ? fill + text : text + fill;
}

void EndLine(std::string& line, std::string& lines) {
  lines += line.substr(0, line.find_last_not_of(' ') + 1) + '\n';
  line.clear();
}

}  // namespace

ShownCell ShownCell::Real(double value, int decimals) {
  if (!std::isfinite(value)) return "-";
  char text[400];
  std::snprintf(text, sizeof text, "%.*f", decimals, value);
  return Number(text);
}

ShownCell ShownCell::Number(std::string digits) {
  ShownCell cell(std::move(digits));
  cell.isNumber = IsJsonNumber(cell.text);
  return cell;
}

ShownCell ShownCell::Missing() {
  ShownCell cell("");
  cell.isNumber = true;
  return cell;
}

std::string FormatTable(const ShownTable& table) {
  const std::vector<int> widths = MeasureColumns(table);
  std::string lines, line;
  for (std::size_t i = 0; i < table.columns.size(); ++i) {
    const bool isRight = !table.rows.empty() && table.rows.front()[i].isNumber;
    AppendCell(table.columns[i], isRight, widths[i], line);
  }
  EndLine(line, lines);
  for (const auto& row : table.rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      AppendCell(Printable(row[i].text), row[i].isNumber, widths[i], line);
    }
    EndLine(line, lines);
  }
  return lines;
}

std::string FormatTableAsJson(const ShownTable& table) {
  std::vector<std::string> elements;
  for (const auto& row : table.rows) {
    std::vector<std::pair<std::string, std::string>> members;
    for (std::size_t i = 0; i < row.size(); ++i)
      members.emplace_back(table.columns[i], FormatCellAsJson(row[i]));
    elements.push_back(JsonObject(members));
  }
  return JsonArray(elements);
}

}  // namespace skydata
