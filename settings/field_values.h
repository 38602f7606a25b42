// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The field shapes that the settings container itself looks into, read with the bounds of the record.
#pragma once

#include "common_interfaces/settings_field.h"
#include "utils/bytes.h"

namespace CommonInterfaces {

// A favourite: a field of bytes, five flags and a signed 32-bit key.
struct Favourite {
  unsigned char flags[5];
  int key;
};

inline bool IsFavourite(const SettingField& field) { return field.GetType() == kFieldBytes; }

// False for a field that is too short to hold one.
inline bool LoadFavourite(const SettingField& field, Favourite& favourite) {
  unsigned char bytes[9];
  if (!IsFavourite(field) || field.GetSize() < sizeof bytes) return false;
  for (unsigned i = 0; i < sizeof bytes; ++i) field.GetElement(bytes + i, i);
  for (unsigned i = 0; i < sizeof favourite.flags; ++i) favourite.flags[i] = bytes[i];
  favourite.key = static_cast<int>(LoadLE32(bytes + 5));
  return true;
}

// One element of a field of 32-bit integers; false for other fields and for an element that it does not have.
inline bool LoadInt(const SettingField& field, unsigned index, int& value) {
  const unsigned type = field.GetType();
  if ((type != kFieldInt32 && type != kFieldUInt32) || index >= field.GetSize()) return false;
  return field.GetElement(&value, index);
}

// Whether elements 0 and 1 are kind and number of the object.
inline bool Describes(const SettingField& field, const SSO_ID& object) {
  int kind = 0, number = 0;
  return LoadInt(field, 0, kind) && LoadInt(field, 1, number) && SSO_ID(kind, number) == object;
}

}  // namespace CommonInterfaces
