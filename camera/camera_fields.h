// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Values of a settings container as the camera takes them: by exact width and count, whatever the element
// type, and without a diagnostic line for what is missing, since a record may well hold fewer values than the
// camera knows.
#pragma once

#include "common_interfaces/field_data.h"
#include "common_interfaces/settings_data.h"
#include "common_interfaces/settings_field.h"

namespace CommonInterfaces {

// The field as the container looks it up once the section is current: that of the section, else the first of
// that name in any. Null when there is none, or no such section. The section becomes current when it exists.
inline SettingField* FindFieldQuietly(SettingsData& settings, unsigned section, int nameId) {
  settings.SetCurSection(section);
  // Without a current section the look-up of a field prints a line, however quiet it is asked to be.
  if (settings.GetCurSection() != section) return nullptr;
  return settings.GetAtField(SettingsData::kNoSection, nameId, false);
}

// One element, when it is there and as wide as `out`; else false, and `out` stays.
template <class T>
bool ReadFieldElement(SettingsData& settings, unsigned section, int nameId, unsigned index, T& out) {
  const SettingField* field = FindFieldQuietly(settings, section, nameId);
  if (field == nullptr || FieldElementWidth(field->GetType()) != sizeof(T) || index >= field->GetSize())
    return false;
  return field->GetElement(&out, index);
}

}  // namespace CommonInterfaces
