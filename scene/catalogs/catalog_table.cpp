// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/catalog_table.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cstring>
#include <utility>

#include "utils/debug.h"
#include "utils/numbers.h"
#include "utils/text.h"
#include "utils/whole_file.h"

namespace scene {
namespace {

// Element type codes of settings fields, and one of the table's own for texts.
enum TypeCode : unsigned { kI8, kU8, kI16, kU16, kI32, kU32, kF32, kF64, kText };

struct TypeName {
  std::string_view name;
  unsigned type;
  unsigned width;  // bytes
};

constexpr TypeName kTypes[] = {{"i8", kI8, 1},   {"u8", kU8, 1},   {"i16", kI16, 2},
                               {"u16", kU16, 2}, {"i32", kI32, 4}, {"u32", kU32, 4},
                               {"f32", kF32, 4}, {"f64", kF64, 8}, {"text", kText, 4}};

const TypeName* FindType(std::string_view name) {
  for (const auto& type : kTypes) {
    if (type.name == name) return &type;
  }
  return nullptr;
}

template <class T>
T LoadValue(const void* from) {
  T value;
  std::memcpy(&value, from, sizeof(T));
  return value;
}

// The cell that begins at `cell` as a number of type T, which must end where the cell does; an infinity or a
// value that is not a number is no number of a catalog. Leaves `cell` at its end.
template <class T>
bool TakeValue(char*& cell, const char* lineEnd, unsigned char* value) {
  T number{};
  const char* const begin = cell + (*cell == '+' ? 1 : 0);
  const char* end = begin;
  if constexpr (std::is_floating_point_v<T>) {
    std::string_view text(begin, static_cast<std::size_t>(lineEnd - begin));
    if (*begin == '+' || !TakeNumber(text, number)) return false;
    end = text.data();
  } else {
    const auto taken = std::from_chars(begin, lineEnd, number);
    if (taken.ec != std::errc()) return false;
    end = taken.ptr;
  }
  if (end != lineEnd && *end != '\t') return false;
  std::memcpy(value, &number, sizeof(T));
  cell += end - cell;
  return true;
}

bool TakeTyped(unsigned type, char*& cell, const char* lineEnd, unsigned char* value) {
  switch (type) {
    case kI8:
      return TakeValue<signed char>(cell, lineEnd, value);
    case kU8:
      return TakeValue<unsigned char>(cell, lineEnd, value);
    case kI16:
      return TakeValue<short>(cell, lineEnd, value);
    case kU16:
      return TakeValue<unsigned short>(cell, lineEnd, value);
    case kI32:
      return TakeValue<int>(cell, lineEnd, value);
    case kU32:
      return TakeValue<unsigned>(cell, lineEnd, value);
    case kF32:
      return TakeValue<float>(cell, lineEnd, value);
    default:
      return TakeValue<double>(cell, lineEnd, value);
  }
}

// The next piece of `rest` up to the separator, which is passed over.
std::string_view TakePiece(std::string_view& rest, char separator) {
  const auto end = rest.find(separator);
  const auto piece = rest.substr(0, end);
  rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
  return piece;
}

unsigned RoundUp(unsigned offset, unsigned width) { return (offset + width - 1) / width * width; }

}  // namespace

// The lines of a text that are neither blank nor comments.
struct CatalogTable::Lines {
  char* next;
  char* end;
  char *line = nullptr, *lineEnd = nullptr;
  bool isWhole = true;  // has a line end
  int number = 0;

  explicit Lines(std::string& text) : next(text.data()), end(next + text.size()) {
    if (text.starts_with("\xEF\xBB\xBF")) next += 3;
  }

  bool Take() {
    while (next < end) {
      line = next;
      const auto left = static_cast<std::size_t>(end - line);
      auto* const feed = static_cast<char*>(std::memchr(line, '\n', left));
      isWhole = feed != nullptr;
      lineEnd = isWhole ? feed : end;
      next = isWhole ? feed + 1 : end;
      ++number;
      if (lineEnd > line && lineEnd[-1] == '\r') --lineEnd;
      if (lineEnd > line && *line != '#') return true;
    }
    return false;
  }
};

bool CatalogTable::Load(const char* path) {
  *this = CatalogTable();
  std::string content, reason;
  if (!ReadWholeFile(path, content, reason)) {
    m_Error = std::string(path) + ": " + reason;
    return false;
  }
  m_Texts = std::move(content);
  Lines lines(m_Texts);
  if (!lines.Take()) {
    m_Error = std::string(path) + ": no header line";
    return false;
  }
  const std::string_view header(lines.line, static_cast<std::size_t>(lines.lineEnd - lines.line));
  if (!ReadHeader(header, std::string(path) + ":" + std::to_string(lines.number))) return false;
  LayOutRecords();
  ReadRecords(path, lines);
  return true;
}

bool CatalogTable::ReadHeader(std::string_view line, const std::string& where) {
  std::vector<Column> columns;
  std::vector<int> nameIds;
  while (!line.empty()) {
    auto type = TakePiece(line, '\t');
    const std::string name(TakePiece(type, ':'));
    const auto* found = FindType(type);
    if (name.empty() || !found) {
      m_Error =
          where + ": column '" + name + ":" + std::string(type) + "' is not NAME:TYPE with a known type";
      return false;
    }
    nameIds.push_back(GetUniqueID(name.c_str()));
    columns.push_back({found->type, 0});
  }
  m_Columns = std::move(columns);
  m_NameIds = std::move(nameIds);
  return true;
}

void CatalogTable::LayOutRecords() {
  constexpr unsigned kLargestWidth = sizeof(double);
  unsigned size = 0;
  for (auto& column : m_Columns) {
    const unsigned width = kTypes[column.type].width;
    column.offset = RoundUp(size, width);
    size = column.offset + width;
  }
  m_Presence = size;
  m_RecordSize = RoundUp(size + static_cast<unsigned>(m_Columns.size()), kLargestWidth);
}

void CatalogTable::ReadRecords(const char* path, Lines& lines) {
  while (lines.Take()) {
    if (ReadRecord(lines.line, lines.lineEnd, lines.isWhole)) {
      ++m_Count;
    } else {
      PrintDebugString("%s:%d: not a record of this table, left out\n", path, lines.number);
    }
  }
}

bool CatalogTable::ReadRecord(char* line, char* end, bool isWhole) {
  const std::size_t begin = m_Records.size();
  m_Records.resize(begin + m_RecordSize);
  const int cells = ReadCells(line, end, m_Records.data() + begin);
  const bool isCutOff = !isWhole && cells < static_cast<int>(m_Columns.size());
  if (cells < 0 || isCutOff) m_Records.resize(begin);
  return cells >= 0 && !isCutOff;
}

// How many cells the line has, at most as many as there are columns; -1 for a line that is no record. Texts
// end where their cells do, at a tab or at the end of the line, where a zero byte takes its place.
int CatalogTable::ReadCells(char* cell, char* end, unsigned char* record) {
  int count = 0;
  for (const Column& column : m_Columns) {
    unsigned char& isPresent = record[m_Presence + static_cast<unsigned>(count++)];
    isPresent = cell < end && *cell != '\t';
    if (isPresent && column.type == kText) {
      const auto place = static_cast<unsigned>(cell - m_Texts.data());
      std::memcpy(record + column.offset, &place, sizeof place);
      cell = std::find(cell, end, '\t');
    } else if (isPresent && !TakeTyped(column.type, cell, end, record + column.offset)) {
      return -1;
    }
    const bool isLast = cell == end;
    if (column.type == kText) *cell = '\0';
    if (isLast) return count;
    ++cell;
  }
  return cell == end ? count : -1;
}

void CatalogTable::Defer(const char* path) {
  *this = CatalogTable();
  m_Deferred = path;
}

void CatalogTable::Select(int record) {
  if (!m_Deferred.empty()) {
    const std::string path = std::move(m_Deferred);
    if (!Load(path.c_str())) PrintDebugString("%s\n", m_Error.c_str());
  }
  m_Current = record >= 0 && record < m_Count ? record : -1;
}

int CatalogTable::FindColumn(int fieldId) const {
  const auto found = std::find(m_NameIds.begin(), m_NameIds.end(), fieldId);
  return found == m_NameIds.end() ? -1 : static_cast<int>(found - m_NameIds.begin());
}

const unsigned char* CatalogTable::FindValue(int column) const {
  if (m_Current < 0 || column < 0) return nullptr;
  const auto place = static_cast<std::size_t>(column);
  const unsigned char* const record = m_Records.data() + static_cast<std::size_t>(m_Current) * m_RecordSize;
  return record[m_Presence + place] != 0 ? record + m_Columns[place].offset : nullptr;
}

const void* CatalogTable::GetField(int fieldId) const {
  const int column = FindColumn(fieldId);
  const unsigned char* const value = FindValue(column);
  if (!value || m_Columns[static_cast<std::size_t>(column)].type != kText) return value;
  return m_Texts.c_str() + LoadValue<unsigned>(value);
}

unsigned CatalogTable::GetFieldType(int fieldId) const {
  const int column = FindColumn(fieldId);
  const unsigned type = column < 0 ? kText : m_Columns[static_cast<std::size_t>(column)].type;
  return type == kText ? static_cast<unsigned>(kI8) : type;
}

bool CatalogTable::IsText(int fieldId) const {
  const int column = FindColumn(fieldId);
  return column >= 0 && m_Columns[static_cast<std::size_t>(column)].type == kText;
}

double CatalogTable::GetNumber(int fieldId, double missing) const {
  const int column = FindColumn(fieldId);
  const unsigned char* const value = FindValue(column);
  if (!value) return missing;
  switch (m_Columns[static_cast<std::size_t>(column)].type) {
    case kI8:
      return LoadValue<signed char>(value);
    case kU8:
      return *value;
    case kI16:
      return LoadValue<short>(value);
    case kU16:
      return LoadValue<unsigned short>(value);
    case kI32:
      return LoadValue<int>(value);
    case kU32:
      return LoadValue<unsigned>(value);
    case kF32:
      return static_cast<double>(LoadValue<float>(value));
    case kF64:
      return LoadValue<double>(value);
    default:
      return missing;
  }
}

const char* CatalogTable::GetText(int fieldId) const {
  const int column = FindColumn(fieldId);
  const unsigned char* const value = FindValue(column);
  if (!value || m_Columns[static_cast<std::size_t>(column)].type != kText) return "";
  return m_Texts.c_str() + LoadValue<unsigned>(value);
}

double FieldNumber(const CatalogTable& record, int fieldId, double missing) {
  return record.GetNumber(fieldId, missing);
}

int FieldInteger(const CatalogTable& record, int fieldId, int missing) {
  const double number = record.GetNumber(fieldId, missing);
  return number > INT_MIN - 1.0 && number < INT_MAX + 1.0 ? static_cast<int>(number) : missing;
}

const char* FieldText(const CatalogTable& record, int fieldId) { return record.GetText(fieldId); }

}  // namespace scene
