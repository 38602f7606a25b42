// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "common_interfaces/record_source.h"
#include "scene/api.h"

namespace scene {

// A catalog table of the data root as a record source: UTF-8 text, fields separated by tabs. Lines that begin
// with '#' and blank lines are passed over; the first other line is the header, each column "Name:type" with
// the type i8 u8 i16 u16 i32 u32 f32 f64 or text; then one record a line. An empty cell means that the record
// lacks the field, and so do cells missing at the end of a line. A byte-order mark and CR LF are understood.
//
// A last line without an end is a record like any other, unless cells are missing at its end: then it was cut
// off, and so may the last of its cells be.
//
// Load reads the whole table into memory; the file is not needed afterwards. The fields of the record chosen
// by Select are asked for by name id, GetUniqueID("VisMagnitude").
class SCENE_API CatalogTable : public CommonInterfaces::BaseDB {
 public:
  // Reads the file at a resolved path. False when it cannot be read, has no header or a header that is not of
  // that form: GetError then says why in one line, beginning with the path, and the table is empty. A record
  // that is not of that form (a number out of its type's range, more cells than columns) or cut off is left
  // out with one diagnostic line that names file and line; the others are kept.
  bool Load(const char* path);
  // Leaves that to the first Select, for a table that is asked for seldom; until then it counts no records.
  // What is wrong with the file is then one diagnostic line.
  void Defer(const char* path);
  const std::string& GetError() const { return m_Error; }

  int GetCount() const { return m_Count; }
  // Makes the record current: 0 to GetCount() - 1, anything else leaves no record current.
  void Select(int record);

  // Of the current record; a text is zero-terminated and its type the code of signed 8-bit values.
  const void* GetField(int fieldId) const override;
  unsigned GetFieldType(int fieldId) const override;
  bool IsText(int fieldId) const;  // whether the table has that column and it holds texts
  double GetNumber(int fieldId, double missing) const;  // FieldNumber, below
  const char* GetText(int fieldId) const;               // FieldText

 private:
  struct Column {
    unsigned type;    // element type code of settings fields, or a code of texts
    unsigned offset;  // of its value in a record; of a text the value is where it begins in m_Texts
  };
  struct Lines;

  int FindColumn(int fieldId) const;  // -1: none
  const unsigned char* FindValue(int column) const;
  bool ReadHeader(std::string_view line, const std::string& where);
  void LayOutRecords();
  void ReadRecords(const char* path, Lines& lines);
  bool ReadRecord(char* line, char* end, bool isWhole);
  int ReadCells(char* cell, char* end, unsigned char* record);

  std::string m_Error;
  std::string m_Deferred;  // the file that is still to be read
  std::vector<Column> m_Columns;
  std::vector<int> m_NameIds;  // of the columns
  // Record after record: the values of the columns, each at a multiple of its width, and behind them a byte a
  // column that says whether there is one.
  std::vector<unsigned char> m_Records;
  unsigned m_Presence = 0, m_RecordSize = 0;  // offset of those bytes; a multiple of the largest width
  std::string m_Texts;                        // the file, its texts ended by zero bytes
  int m_Count = 0;
  int m_Current = -1;
};

// The value of a numeric field in any encoding, or `missing` when the record lacks it or it is a text.
SCENE_API double FieldNumber(const CatalogTable& record, int fieldId, double missing);

// The same without its fraction; `missing` also for a number that no int holds: a table may give any column
// as real numbers.
SCENE_API int FieldInteger(const CatalogTable& record, int fieldId, int missing);

// The text of a field, "" when the record lacks it or it is a number.
SCENE_API const char* FieldText(const CatalogTable& record, int fieldId);

}  // namespace scene
