// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "camera/camera_record.h"

#include <algorithm>

#include "camera/saturate.h"

namespace CommonInterfaces {

SettingField* FindRecordField(SettingsData& settings, const char* key, unsigned width, unsigned count) {
  SettingField* field = FindFieldQuietly(settings, kCameraSection, GetUniqueID(key));
  if (field == nullptr || FieldElementWidth(field->GetType()) != width || field->GetSize() != count)
    return nullptr;
  return field;
}

bool RecordReader::Take(const char* key, void* out, unsigned width, unsigned count) {
  const SettingField* field = FindRecordField(m_Settings, key, width, count);
  if (field != nullptr) field->GetData(out);
  return field != nullptr;
}

void RecordWriter::Put(const char* key, const void* in, unsigned width, unsigned count) {
  if (FindRecordField(m_Settings, key, width, count) != nullptr) {
    m_Settings.SetField(key, in);
  } else {
    m_Whole = false;
  }
}

namespace {

constexpr unsigned kDateValues = 5;  // of a DaylightSavingDate: three of the date, two of the time

void ReadDate(RecordReader& reader, const char* key, DaylightSavingDate& date) {
  short values[kDateValues];
  if (!reader.Values(key, values)) return;
  std::copy_n(values, 3, date.date);
  std::copy_n(values + 3, 2, date.time);
}

void WriteDate(RecordWriter& writer, const char* key, const DaylightSavingDate& date) {
  short values[kDateValues];
  std::transform(date.date, date.date + 3, values, [](int value) { return static_cast<short>(value); });
  std::copy_n(date.time, 2, values + 3);
  writer.Values(key, values);
}

void ReadFlag(RecordReader& reader, const char* key, bool& flag) {
  short value;
  if (reader.Value(key, value)) flag = value != 0;
}

void WriteFlag(RecordWriter& writer, const char* key, bool flag) {
  const short value = flag ? 1 : 0;
  writer.Value(key, value);
}

}  // namespace

void ReadDaylightSavings(RecordReader& reader, DaylightSavingsData& dst) {
  reader.Value("StartYear", dst.StartYear);
  ReadFlag(reader, "IsDST", dst.IsDST);
  ReadDate(reader, "DateFrom", dst.DateFrom);
  ReadDate(reader, "DateTo", dst.DateTo);
  short pair[2];
  if (reader.Values("DS_Shift", pair)) std::copy_n(pair, 2, dst.DS_Shift);
  if (reader.Values("IsCalendarDate", pair))
    std::transform(pair, pair + 2, dst.IsCalendarDate,
                   [](short value) { return static_cast<unsigned char>(value); });
  reader.Value("TimeZone", dst.TimeZone);
  ReadFlag(reader, "IsNorth", dst.IsNorth);
}

void WriteDaylightSavings(RecordWriter& writer, const DaylightSavingsData& dst) {
  writer.Value("StartYear", dst.StartYear);
  WriteFlag(writer, "IsDST", dst.IsDST);
  WriteDate(writer, "DateFrom", dst.DateFrom);
  WriteDate(writer, "DateTo", dst.DateTo);
  short pair[2];
  std::transform(dst.DS_Shift, dst.DS_Shift + 2, pair,
                 [](float shift) { return SaturatingTruncate<short>(shift, 0); });
  writer.Values("DS_Shift", pair);
  std::copy_n(dst.IsCalendarDate, 2, pair);
  writer.Values("IsCalendarDate", pair);
  writer.Value("TimeZone", dst.TimeZone);
  WriteFlag(writer, "IsNorth", dst.IsNorth);
}

}  // namespace CommonInterfaces
