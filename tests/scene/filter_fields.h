// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstring>
#include <string>
#include <vector>

#include "common_interfaces/field_data.h"
#include "common_interfaces/settings_data.h"
#include "utils/text.h"

namespace host_test {

// Adds a filter field, switched on, to a section that is on.
template <class T>
void AddFilter(CommonInterfaces::SettingsData& settings, const char* section, const char* name,
               CommonInterfaces::FieldType type, unsigned condition, const std::vector<T>& values) {
  CommonInterfaces::FieldData header = {};
  header.section = static_cast<unsigned>(GetFOURCC(section));
  header.nameId = ::GetUniqueID(name);
  header.type = type;
  header.size = static_cast<unsigned short>(values.size());
  header.condition = condition;
  header.compareStatus = 1;
  header.querySection = CommonInterfaces::kOwnQuerySection;
  std::vector<unsigned char> record(CommonInterfaces::kFieldHeaderSize + values.size() * sizeof(T));
  std::memcpy(record.data(), &header, CommonInterfaces::kFieldHeaderSize);
  if (!values.empty()) {
    std::memcpy(record.data() + CommonInterfaces::kFieldHeaderSize, values.data(), values.size() * sizeof(T));
  }
  settings.CreateField(reinterpret_cast<const CommonInterfaces::FieldData*>(record.data()),
                       static_cast<int>(record.size()), true);
  settings.SetSectionStatus(header.section, 1);
  settings.SetSectionChanged(header.section, true);
}

inline void AddRange(CommonInterfaces::SettingsData& settings, const char* section, const char* name,
                     float least, float most) {
  AddFilter<float>(settings, section, name, CommonInterfaces::kFieldFloat, 1, {least, most});
}

inline void AddBytes(CommonInterfaces::SettingsData& settings, const char* section, const char* name,
                     unsigned condition, const std::vector<unsigned char>& values) {
  AddFilter<unsigned char>(settings, section, name, CommonInterfaces::kFieldUInt8, condition, values);
}

}  // namespace host_test
