// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/visibility/setting_form.h"

#include "common_interfaces/field_data.h"
#include "scene/visibility/favourites.h"
#include "scene/visibility/object_filter.h"
#include "utils/text.h"

namespace scene {
namespace {

using CommonInterfaces::SettingField;

struct Named {
  unsigned section;
  const char* name;
  SettingForm form;
};
// Fields of one byte that are no switches, and those that the string table has a name for: 900021 and so on
// the classes of objects, 900414 and so on the circles of the sky.
constexpr Named kNamed[] = {{FourCC("star"), "Draw", {SettingKind::kSwitch, "", 900021}},
                            {FourCC("clst"), "ClusterDraw", {SettingKind::kSwitch, "", 900022}},
                            {FourCC("gala"), "GalaxyDraw", {SettingKind::kSwitch, "", 900023}},
                            {FourCC("nebu"), "CloudsDraw", {SettingKind::kSwitch, "", 900024}},
                            {FourCC("dsnv"), "NonOpticDraw", {SettingKind::kSwitch, "", 900025}},
                            {FourCC("plnt"), "Draw", {SettingKind::kSwitch, "", 900026}},
                            {FourCC("moon"), "Draw", {SettingKind::kSwitch, "", 900027}},
                            {FourCC("astr"), "Draw", {SettingKind::kSwitch, "", 900028}},
                            {FourCC("comt"), "Draw", {SettingKind::kSwitch, "", 900029}},
                            {FourCC("scft"), "Draw", {SettingKind::kSwitch, "", 900030}},
                            {FourCC("cnst"), "PatternsVisible", {SettingKind::kSum, "1,2", {}}},
                            {FourCC("cnst"), "EnglishName", {SettingKind::kChoice, "0,1,2", {}}},
                            {FourCC("cnst"), "ImagesBrightness", {SettingKind::kWhole, "", {}}},
                            {FourCC("grid"), "RADecGrid", {SettingKind::kSum, "1,2", {}}},
                            {FourCC("grid"), "RADecEquator", {SettingKind::kSum, "1,2", 900414}},
                            {FourCC("grid"), "EclEquator", {SettingKind::kSwitch, "", 900416}},
                            {FourCC("grid"), "GalGrid", {SettingKind::kChoice, "0,1,2", {}}},
                            {FourCC("grid"), "Meridian", {SettingKind::kSum, "1,2", 900418}},
                            {FourCC("grid"), "Poles", {SettingKind::kSum, "1,2,4,8,16", {}}},
                            {FourCC("grid"), "SkyDirt", {SettingKind::kSum, "1,2", {}}}};

bool IsReal(unsigned type) {
  return type == CommonInterfaces::kFieldFloat || type == CommonInterfaces::kFieldDouble;
}

}  // namespace

SettingForm FindSettingForm(const SettingField& field) {
  for (const Named& named : kNamed) {
    if (named.section == field.GetSection() && GetUniqueID(named.name) == field.GetNameId())
      return named.form;
  }
  const unsigned type = field.GetType();
  if (type == CommonInterfaces::kFieldBytes || GetFavouriteNumber(field)) return {SettingKind::kOther};
  if (field.GetCondition() == CommonInterfaces::kLabelListCondition) return {SettingKind::kOther};
  if (field.GetCondition() == kRangeCondition && field.GetSize() == 2) return {SettingKind::kRange};
  if (IsReal(type)) return {SettingKind::kReal};
  return {type == CommonInterfaces::kFieldUInt8 ? SettingKind::kSwitch : SettingKind::kWhole};
}

}  // namespace scene
