// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "common_interfaces/field_data.h"
#include "common_interfaces/settings_data.h"
#include "support/temp_dir.h"
#include "utils/text.h"

namespace test_support {

// One field of a settings file: name, element type and the bytes of its values.
struct RecordField {
  std::string key;
  CommonInterfaces::FieldType type;
  unsigned short count;
  std::vector<unsigned char> bytes;
};

template <class T>
RecordField MakeField(std::string key, CommonInterfaces::FieldType type, std::initializer_list<T> values) {
  RecordField field{std::move(key), type, static_cast<unsigned short>(values.size()), {}};
  const auto* bytes = reinterpret_cast<const unsigned char*>(values.begin());
  field.bytes.assign(bytes, bytes + values.size() * sizeof(T));
  return field;
}
inline RecordField Int8(std::string key, int value) {
  return MakeField(std::move(key), CommonInterfaces::kFieldInt8, {static_cast<signed char>(value)});
}
inline RecordField UInt8(std::string key, int value) {
  return MakeField(std::move(key), CommonInterfaces::kFieldUInt8, {static_cast<unsigned char>(value)});
}
inline RecordField Int16(std::string key, std::initializer_list<short> values) {
  return MakeField(std::move(key), CommonInterfaces::kFieldInt16, values);
}
inline RecordField Int32(std::string key, int value) {
  return MakeField(std::move(key), CommonInterfaces::kFieldInt32, {value});
}
inline RecordField UInt32(std::string key, unsigned value) {
  return MakeField(std::move(key), CommonInterfaces::kFieldUInt32, {value});
}
inline RecordField Float(std::string key, float value) {
  return MakeField(std::move(key), CommonInterfaces::kFieldFloat, {value});
}
inline RecordField Double(std::string key, double value) {
  return MakeField(std::move(key), CommonInterfaces::kFieldDouble, {value});
}

using RecordFields = std::vector<RecordField>;

// Every key of the camera record in its order, at its type and default (docs/formats/camera_record.md).
inline RecordFields CameraFields() {
  const double degree = 0.017453292519943295;
  return {
      Int16("m_FinderSize", {20}),
      Int32("m_JT", 2451545),
      Double("m_TJ", 0.0),
      Int32("timeType", 1),
      Int8("FST", 0),
      Double("m_Zoom", 1.0),
      Int8("m_ObsMovingType", 0),
      UInt32("m_ObsObjType", 0x706C6E74),  // "plnt"
      Int32("m_ObsObjID", 3),
      UInt8("m_ObsLocatType", 2),
      UInt8("m_DispCoorSysObserver", 2),
      Double("m_fi", 57 * degree),
      Double("m_lam", 37 * degree),
      Double("m_dist", 0.0),
      UInt8("m_distUnits", 0),
      UInt8("m_dirLock", 0),
      UInt8("m_FirstLook", 0),
      Int32("m_dirObjType", -1),
      Int32("m_dirObjID", -1),
      UInt8("m_AimingDispType", 0),
      Double("m_alp", 265.6 * degree),
      Double("m_bet", -28.92 * degree),
      Double("m_slp", 0.0),
      UInt8("m_BasePlane", 0),
      Double("m_TimeStep", 0.1),
      Int32("m_TimeStepUnits", 0),
      Double("m_RotateStep", degree),
      Int32("m_RotStepUnits", 0),
      Double("m_AimStepAlp", degree),
      Int32("m_AimStepAlpUnits", 0),
      Double("m_AimStepBet", degree),
      Int32("m_AimStepBetUnits", 0),
      Double("m_PosStepLon", degree),
      Int32("m_PosStepLonUnits", 0),
      Double("m_PosStepLat", degree),
      Int32("m_PosStepLatUnits", 0),
      Double("m_HeightStep", 0.0),
      Int32("m_DistStepUnits", 0),
      Double("m_ZoomStep", 1.2),
      Double("m_3DFlightStep", 100000.0),
      Int32("m_3DFlightStepUnits", 4),
      Int32("StartYear", 0),
      Int16("IsDST", {0}),
      Int16("DateFrom", {0, 0, 0, 0, 0}),
      Int16("DateTo", {0, 0, 0, 0, 0}),
      Int16("DS_Shift", {0, 0}),
      Int16("IsCalendarDate", {0, 0}),
      Float("TimeZone", 3.0f),
      Int16("IsNorth", {0}),
  };
}

// The field of that name in the list, to be changed or taken away; a name that is not there is a mistake of
// the test.
inline RecordFields::iterator FindField(RecordFields& fields, std::string_view key) {
  const auto found = std::find_if(fields.begin(), fields.end(),
                                  [key](const RecordField& field) { return field.key == key; });
  if (found == fields.end()) {
    ADD_FAILURE() << key << " is no field of the record";
    std::abort();
  }
  return found;
}

inline void ReplaceField(RecordFields& fields, RecordField with) {
  *FindField(fields, with.key) = std::move(with);
}

inline void AddField(CommonInterfaces::SettingsData& settings, unsigned section, const RecordField& field) {
  CommonInterfaces::FieldData header = {};
  header.section = section;
  header.nameId = ::GetUniqueID(field.key.c_str());
  header.type = field.type;
  header.size = field.count;
  header.querySection = CommonInterfaces::kOwnQuerySection;
  std::vector<unsigned char> record(CommonInterfaces::kFieldHeaderSize + field.bytes.size());
  std::memcpy(record.data(), &header, CommonInterfaces::kFieldHeaderSize);
  std::copy(field.bytes.begin(), field.bytes.end(), record.begin() + CommonInterfaces::kFieldHeaderSize);
  settings.CreateField(reinterpret_cast<const CommonInterfaces::FieldData*>(record.data()),
                       static_cast<int>(record.size()), false);
}

inline constexpr unsigned kCAMR = 0x43414D52;           // the camera's identifier
inline constexpr unsigned kCameraSection = 0x63616D72;  // "camr"

// Appends a block with the key (first, second) and one section to the settings file `path`.
inline void AppendBlock(const std::string& path, unsigned first, unsigned second, unsigned section,
                        const RecordFields& fields) {
  CommonInterfaces::SettingsData settings(second, first, path.c_str());
  for (const RecordField& field : fields) AddField(settings, section, field);
  settings.Write(path.c_str());
}

// Appends the defaults of a camera record to "filters.data" in the data root: with the identifier CAMR those
// of the camera itself, with another those of a moving type.
inline void WriteCameraDefaults(const TempRoots& roots, const RecordFields& fields = CameraFields(),
                                unsigned identifier = kCAMR) {
  AppendBlock(roots.dir.Path("data/filters.data"), identifier, CommonInterfaces::SettingsData::kDefaultsTag,
              kCameraSection, fields);
}

}  // namespace test_support
