// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalog_table.h"

#include <charconv>
#include <cmath>
#include <cstring>

#include "utils/debug.h"
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
void AppendBytes(std::vector<unsigned char>& values, T value) {
  unsigned char bytes[sizeof(T)];
  std::memcpy(bytes, &value, sizeof(T));
  values.insert(values.end(), bytes, bytes + sizeof(T));
}

// The whole cell as a number of type T; an infinity or a value that is not a number is no number of a
// catalog.
template <class T>
bool AppendNumber(std::vector<unsigned char>& values, std::string_view cell) {
  T value{};
  if (cell.front() == '+') cell.remove_prefix(1);
  const auto [end, error] = std::from_chars(cell.data(), cell.data() + cell.size(), value);
  if (error != std::errc() || end != cell.data() + cell.size()) return false;
  if constexpr (std::is_floating_point_v<T>) {
    if (!std::isfinite(value)) return false;
  }
  AppendBytes(values, value);
  return true;
}

bool AppendTyped(unsigned type, std::vector<unsigned char>& values, std::string_view cell) {
  switch (type) {
    case kI8:
      return AppendNumber<signed char>(values, cell);
    case kU8:
      return AppendNumber<unsigned char>(values, cell);
    case kI16:
      return AppendNumber<short>(values, cell);
    case kU16:
      return AppendNumber<unsigned short>(values, cell);
    case kI32:
      return AppendNumber<int>(values, cell);
    case kU32:
      return AppendNumber<unsigned>(values, cell);
    case kF32:
      return AppendNumber<float>(values, cell);
    default:
      return AppendNumber<double>(values, cell);
  }
}

template <class T>
double Load(const void* from) {
  T value;
  std::memcpy(&value, from, sizeof(T));
  return static_cast<double>(value);
}

// The next piece of `rest` up to the separator, which is passed over.
std::string_view TakePiece(std::string_view& rest, char separator) {
  const auto end = rest.find(separator);
  const auto piece = rest.substr(0, end);
  rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
  return piece;
}

}  // namespace

bool CatalogTable::Load(const char* path) {
  *this = CatalogTable();
  std::string content, reason;
  if (!ReadWholeFile(path, content, reason)) {
    m_Error = std::string(path) + ": " + reason;
    return false;
  }
  std::string_view rest = content;
  if (rest.starts_with("\xEF\xBB\xBF")) rest.remove_prefix(3);
  for (int number = 1; !rest.empty(); ++number) {
    auto line = TakePiece(rest, '\n');
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.empty() || line.front() == '#') continue;
    if (m_Columns.empty()) {
      if (!ReadHeader(line, std::string(path) + ":" + std::to_string(number))) return false;
    } else if (!ReadRecord(line)) {
      PrintDebugString("%s:%d: not a record of this table, left out\n", path, number);
    }
  }
  if (m_Columns.empty()) m_Error = std::string(path) + ": no header line";
  return !m_Columns.empty();
}

bool CatalogTable::ReadHeader(std::string_view line, const std::string& where) {
  std::vector<Column> columns;
  while (!line.empty()) {
    auto type = TakePiece(line, '\t');
    const std::string name(TakePiece(type, ':'));
    const auto* found = FindType(type);
    if (name.empty() || !found) {
      m_Error =
          where + ": column '" + name + ":" + std::string(type) + "' is not NAME:TYPE with a known type";
      return false;
    }
    columns.push_back({GetUniqueID(name.c_str()), found->type, {}, {}});
  }
  m_Columns = std::move(columns);
  return true;
}

bool CatalogTable::ReadRecord(std::string_view line) {
  bool good = true;
  for (auto& column : m_Columns) good = AppendCell(column, TakePiece(line, '\t')) && good;
  if (!good || !line.empty()) {
    DropRecord();
    return false;
  }
  ++m_Count;
  return true;
}

// Every column grows by one value, present or not, so that a record is found by its index.
bool CatalogTable::AppendCell(Column& column, std::string_view cell) {
  column.present.push_back(!cell.empty());
  if (column.type == kText && !cell.empty()) {
    AppendBytes(column.values, static_cast<unsigned>(m_Texts.size()));
    m_Texts.append(cell);
    m_Texts.push_back('\0');
    return true;
  }
  if (!cell.empty() && AppendTyped(column.type, column.values, cell)) return true;
  column.values.insert(column.values.end(), kTypes[column.type].width, 0);
  return cell.empty();
}

void CatalogTable::DropRecord() {
  for (auto& column : m_Columns) {
    column.present.pop_back();
    column.values.erase(column.values.end() - kTypes[column.type].width, column.values.end());
  }
}

void CatalogTable::Select(int record) { m_Current = record >= 0 && record < m_Count ? record : -1; }

const CatalogTable::Column* CatalogTable::FindColumn(int fieldId) const {
  for (const auto& column : m_Columns) {
    if (column.nameId == fieldId) return &column;
  }
  return nullptr;
}

const void* CatalogTable::GetField(int fieldId) const {
  const auto* column = FindColumn(fieldId);
  if (m_Current < 0 || !column || !column->present[m_Current]) return nullptr;
  const unsigned char* value =
      column->values.data() + kTypes[column->type].width * static_cast<unsigned>(m_Current);
  if (column->type != kText) return value;
  unsigned offset;
  std::memcpy(&offset, value, sizeof offset);
  return m_Texts.c_str() + offset;
}

unsigned CatalogTable::GetFieldType(int fieldId) const {
  const auto* column = FindColumn(fieldId);
  if (!column) return kI8;
  return column->type == kText ? static_cast<unsigned>(kI8) : column->type;
}

bool CatalogTable::IsText(int fieldId) const {
  const auto* column = FindColumn(fieldId);
  return column && column->type == kText;
}

double FieldNumber(const CatalogTable& record, int fieldId, double missing) {
  const void* value = record.IsText(fieldId) ? nullptr : record.GetField(fieldId);
  if (!value) return missing;
  switch (record.GetFieldType(fieldId)) {
    case kI8:
      return Load<signed char>(value);
    case kU8:
      return Load<unsigned char>(value);
    case kI16:
      return Load<short>(value);
    case kU16:
      return Load<unsigned short>(value);
    case kI32:
      return Load<int>(value);
    case kU32:
      return Load<unsigned>(value);
    case kF32:
      return Load<float>(value);
    default:
      return Load<double>(value);
  }
}

const char* FieldText(const CatalogTable& record, int fieldId) {
  const void* value = record.IsText(fieldId) ? record.GetField(fieldId) : nullptr;
  return value ? static_cast<const char*>(value) : "";
}

}  // namespace scene
