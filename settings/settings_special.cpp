// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The fields that the container itself understands: favourites, lists of objects, integration flags, the aim.
#include <algorithm>

#include "common_interfaces/settings_data.h"
#include "settings/field_index.h"
#include "settings/field_values.h"
#include "utils/one_thread.h"
#include "utils/text.h"

namespace CommonInterfaces {

namespace {

constexpr unsigned kFlagElements = 9;    // elements of a field with an integration flag
constexpr unsigned kPlanetFlag = 8;      // the element with the flag of a planet
constexpr unsigned kSmallBodyFlag = 4;   // the same of an asteroid or comet
constexpr unsigned kAimElements = 8;     // the fewest elements of a field that describes an object
constexpr unsigned kAimClearedFlag = 2;  // the element that a new aim clears
constexpr unsigned char kZero[8] = {};   // an element of any width

unsigned char FavouriteFlags(const Favourite& favourite) {
  unsigned flags = favourite.flags[0];
  for (unsigned i = 1; i < sizeof favourite.flags; ++i)
    if (favourite.flags[i] != 0) flags |= 2u << i;
  return static_cast<unsigned char>(flags);
}

}  // namespace

int SettingsData::FindSectionThatIsOn(int section) const {
  const int index = FindSection(static_cast<unsigned>(section), true);
  return index >= 0 && m_Sections[static_cast<std::size_t>(index)].status != 0 ? index : -1;
}

bool SettingsData::GetFavoInfo(std::map<int, unsigned char>* favourites, int section) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  favourites->clear();
  const int index = FindSectionThatIsOn(section);
  if (index < 0) return false;
  const FieldRun run = GetRunOf(index);
  for (int i = run.begin; i < run.end; ++i) {
    Favourite favourite;
    if (GetFieldAt(i)->GetCompareStatus() != 0 && LoadFavourite(*GetFieldAt(i), favourite))
      favourites->insert({favourite.key, FavouriteFlags(favourite)});
  }
  return true;
}

bool SettingsData::GetObjectInfo(std::vector<int>& ids, int section, int type) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  ids.clear();
  const int index = FindSectionThatIsOn(section);
  if (index < 0) return false;
  const int key = type != -1 ? type : section;
  const FieldRun run = GetRunOf(index);
  for (int i = run.begin; i < run.end; ++i) {
    const SettingField& field = *GetFieldAt(i);
    int kind = 0, number = 0;
    if (field.GetType() == kFieldInt32 && field.GetCompareStatus() != 0 && LoadInt(field, 0, kind) &&
        kind == key && LoadInt(field, 1, number))
      ids.push_back(number);
  }
  std::sort(ids.begin(), ids.end());
  return true;
}

bool SettingsData::GetIntegrPlnt(SSO_ID* planet) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  planet->kind = planet->number = -1;
  const int index = FindSectionThatIsOn(FourCC("plnt"));
  if (index < 0) return false;
  const FieldRun run = GetRunOf(index);
  for (int i = run.begin; i < run.end; ++i) {
    const SettingField& field = *GetFieldAt(i);
    if (field.GetType() != kFieldInt32 || field.GetSize() != kFlagElements || field.GetCompareStatus() == 0)
      continue;
    int flag = 0;
    LoadInt(field, kPlanetFlag, flag);
    if (flag == 0) continue;
    LoadInt(field, 0, planet->kind);
    LoadInt(field, 1, planet->number);
    return true;
  }
  return false;
}

// A section that is off is cleared as well: its objects would be integrated again once it is on.
void SettingsData::ClearIntegrFlag() {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  const struct {
    int section;
    unsigned element;
  } kFlags[] = {
      {FourCC("astr"), kSmallBodyFlag}, {FourCC("comt"), kSmallBodyFlag}, {FourCC("plnt"), kPlanetFlag}};
  for (const auto& flag : kFlags) {
    const int index = FindSection(static_cast<unsigned>(flag.section), true);
    if (index < 0) continue;
    const FieldRun run = GetRunOf(index);
    for (int i = run.begin; i < run.end; ++i)
      if (GetFieldAt(i)->GetSize() == kFlagElements) GetFieldAt(i)->SetElement(kZero, flag.element);
  }
}

void SettingsData::SetAimObject(const SSO_ID& object) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  if (object == m_AimObject) return;
  if (object.kind != FourCC("plnt") && object.kind != FourCC("moon")) {
    m_AimObject.kind = m_AimObject.number = -1;
    return;
  }
  const int index = FindSection(static_cast<unsigned>(object.kind), false);
  m_AimObject = object;
  if (index < 0) return;
  const FieldRun run = GetRunOf(index);
  for (int i = run.begin; i < run.end; ++i) {
    SettingField& field = *GetFieldAt(i);
    if (field.GetType() != kFieldInt32 || field.GetSize() < kAimElements || !Describes(field, object))
      continue;
    field.SetElement(kZero, kAimClearedFlag);
    field.SetCompareStatus(1);
  }
}

}  // namespace CommonInterfaces
