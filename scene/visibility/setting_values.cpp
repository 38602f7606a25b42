// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/visibility/setting_values.h"

#include <charconv>
#include <cstring>

#include "common_interfaces/field_data.h"
#include "scene/visibility/object_filter.h"
#include "utils/bytes.h"
#include "utils/text.h"

namespace scene {
namespace {

using CommonInterfaces::SettingField;
using CommonInterfaces::SettingsData;

template <class T>
std::string ToChars(T value) {
  char text[32];
  return std::string(text, std::to_chars(text, text + sizeof text, value).ptr);
}

std::string FormatValue(unsigned type, const unsigned char* bytes) {
  switch (type) {
    case CommonInterfaces::kFieldInt8:
      return ToChars(static_cast<int>(static_cast<signed char>(*bytes)));
    case CommonInterfaces::kFieldInt16:
      return ToChars(static_cast<int>(static_cast<short>(LoadLE16(bytes))));
    case CommonInterfaces::kFieldUInt16:
      return ToChars(static_cast<int>(LoadLE16(bytes)));
    case CommonInterfaces::kFieldInt32:
      return ToChars(static_cast<int>(LoadLE32(bytes)));
    case CommonInterfaces::kFieldUInt32:
      return ToChars(static_cast<unsigned>(LoadLE32(bytes)));
    case CommonInterfaces::kFieldFloat: {
      float value = 0.0f;
      std::memcpy(&value, bytes, sizeof value);
      return FormatExact(static_cast<double>(value));  // exact: readers go through a double
    }
    case CommonInterfaces::kFieldDouble: {
      double value = 0.0;
      std::memcpy(&value, bytes, sizeof value);
      return FormatExact(value);
    }
    default:
      return ToChars(static_cast<int>(*bytes));
  }
}

SettingField* FindSame(const SettingField& field, SettingsData& defaults) {
  const unsigned before = defaults.SetCurSection(field.GetSection());
  SettingField* const same = defaults.GetCurSection() != 0
                                 ? defaults.GetAtField(field.GetSection(), field.GetNameId(), false)
                                 : nullptr;
  defaults.SetCurSection(before);
  return same;
}

bool CanFilter(const SettingField& field) {
  return field.GetCondition() != kNoCondition || field.GetType() == CommonInterfaces::kFieldBytes;
}

void AddFieldChange(const SettingField& field, SettingsData& defaults, std::vector<std::string>& changes) {
  const SettingField* const same = FindSame(field, defaults);
  if (!same || same->GetType() != field.GetType() || same->GetSize() != field.GetSize()) return;
  const std::string values = FormatValues(field);
  const bool on = field.GetCompareStatus() != 0;
  const bool switched = CanFilter(field) && on != (same->GetCompareStatus() != 0);
  const bool changed = values != FormatValues(*same);
  if (!switched && !changed) return;
  std::string change =
      GetCodeText(static_cast<int>(field.GetSection())) + "." + GetFieldTitle(field.GetNameId());
  if (changed) change += "=" + values;
  if (switched) change += on ? ":on" : ":off";
  changes.push_back(change);
}

}  // namespace

std::string FormatExact(double value) { return ToChars(value); }

std::string FormatValues(const SettingField& field) {
  const unsigned width = CommonInterfaces::FieldElementWidth(field.GetType());
  std::vector<unsigned char> bytes(static_cast<std::size_t>(field.GetSize()) * width);
  if (bytes.empty()) return "";
  field.GetData(bytes.data());
  std::string text;
  for (std::size_t at = 0; at < bytes.size(); at += width) {
    if (at > 0) text += ",";
    text += FormatValue(field.GetType(), bytes.data() + at);
  }
  return text;
}

std::vector<std::string> FindChanges(SettingsData& settings, SettingsData& defaults) {
  std::vector<std::string> changes;
  for (int i = 0; i < settings.GetSectionCount(); ++i) {
    const unsigned id = settings.GetSectionAt(i)->id;
    const bool on = settings.GetSectionAt(i)->status != 0;
    bool known = false;
    for (int k = 0; k < defaults.GetSectionCount(); ++k) known = known || defaults.GetSectionAt(k)->id == id;
    if (known && on != (defaults.GetSectionStatus(id, false) != 0)) {
      changes.push_back(GetCodeText(static_cast<int>(id)) + (on ? ":on" : ":off"));
    }
  }
  for (int i = 0; i < settings.GetFieldCount(); ++i)
    AddFieldChange(*settings.GetFieldAt(i), defaults, changes);
  return changes;
}

}  // namespace scene
