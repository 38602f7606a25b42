// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/files/catalog_reader.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <limits>

#include "utils/numbers.h"

namespace skydata {
namespace {

struct IntegerType {
  const char* name;
  double least, most;
};
constexpr IntegerType kIntegers[] = {{"i8", -128.0, 127.0},
                                     {"u8", 0.0, 255.0},
                                     {"i16", -32768.0, 32767.0},
                                     {"u16", 0.0, 65535.0},
                                     {"i32", -2147483648.0, 2147483647.0},
                                     {"u32", 0.0, 4294967295.0}};

std::optional<double> ParseInteger(const std::string& text) {
  long long value = 0;
  const char* const begin = text.data() + (text.starts_with('+') && !text.starts_with("+-") ? 1 : 0);
  const char* const end = text.data() + text.size();
  const auto [behind, error] = std::from_chars(begin, end, value);
  if (error != std::errc() || behind != end) return std::nullopt;
  return static_cast<double>(value);
}

CatalogColumn SplitColumn(const std::string& cell) {
  const auto colon = cell.find(':');
  return {cell.substr(0, colon), colon == std::string::npos ? "" : cell.substr(colon + 1)};
}

}  // namespace

int CatalogData::FindColumn(const std::string& name) const {
  const auto found = std::find_if(columns.begin(), columns.end(),
                                  [&name](const CatalogColumn& column) { return column.name == name; });
  return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

const TextField* CatalogData::FindCell(const CatalogRecord& record, int column) const {
  if (column < 0 || column >= static_cast<int>(record.cells.size())) return nullptr;
  const TextField& cell = record.cells[static_cast<std::size_t>(column)];
  return cell.text.empty() ? nullptr : &cell;
}

std::optional<double> CatalogData::FindNumber(const CatalogRecord& record, const char* name) const {
  const int column = FindColumn(name);
  const TextField* const cell = FindCell(record, column);
  if (!cell) return std::nullopt;
  return ParseCatalogNumber(columns[static_cast<std::size_t>(column)].type, cell->text);
}

CatalogData ReadCatalog(const TextLines& lines) {
  CatalogData data;
  for (const TextLine& line : lines) {
    if (line.text.empty() || line.text.front() == '#') continue;
    auto cells = SplitAtTabs(line);
    if (data.headerLine > 0) {
      data.records.push_back({line.number, static_cast<int>(line.text.size()) + 1, std::move(cells)});
      continue;
    }
    data.headerLine = line.number;
    for (const TextField& cell : cells) data.columns.push_back(SplitColumn(cell.text));
    data.headerCells = std::move(cells);
  }
  return data;
}

bool IsCatalogType(const std::string& type) {
  return type == "f32" || type == "f64" || type == "text" ||
         std::any_of(std::begin(kIntegers), std::end(kIntegers),
                     [&type](const IntegerType& known) { return type == known.name; });
}

std::optional<double> ParseCatalogNumber(const std::string& type, const std::string& cell) {
  for (const IntegerType& known : kIntegers) {
    if (type != known.name) continue;
    const auto value = ParseInteger(cell);
    return value && *value >= known.least && *value <= known.most ? value : std::nullopt;
  }
  if (type == "f32") return ParseNumber<float>(cell);
  return ParseNumber<double>(cell);
}

}  // namespace skydata
