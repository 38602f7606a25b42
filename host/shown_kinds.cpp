// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "host/shown_kinds.h"

#include "common_interfaces/field_data.h"
#include "utils/text.h"

namespace skyview {
namespace {

using CommonInterfaces::SettingsData;

bool HasSection(const SettingsData& settings, unsigned section) {
  for (int i = 0; i < settings.GetSectionCount(); ++i) {
    if (settings.GetSectionAt(i)->id == section) return true;
  }
  return false;
}

bool IsOn(SettingsData& settings, unsigned section, const char* name, bool otherwise) {
  if (!HasSection(settings, section)) return otherwise;
  if (settings.GetSectionStatus(section, false) == 0) return false;
  const unsigned before = settings.SetCurSection(section);
  const int nameId = GetUniqueID(name);
  unsigned char value = otherwise;
  if (settings.GetAtField(section, nameId, false) &&
      settings.GetFieldType(nameId) == CommonInterfaces::kFieldUInt8) {
    settings.GetFieldElement(nameId, &value, 0);
  }
  settings.SetCurSection(before);
  return value != 0;
}

}  // namespace

bool ShownKinds::IsShown(int kind) const {
  if (kind == FourCC("star")) return stars;
  if (kind == FourCC("clst")) return clusters;
  if (kind == FourCC("gala")) return galaxies;
  if (kind == FourCC("nebu")) return nebulae;
  return kind == FourCC("dsnv") && otherDeepsky;
}

ShownKinds ReadShownKinds(SettingsData& settings) {
  ShownKinds shown;
  const struct {
    bool& flag;
    unsigned section;
    const char* name;
  } switches[] = {{shown.stars, FourCC("star"), "Draw"},
                  {shown.clusters, FourCC("clst"), "ClusterDraw"},
                  {shown.galaxies, FourCC("gala"), "GalaxyDraw"},
                  {shown.nebulae, FourCC("nebu"), "CloudsDraw"},
                  {shown.otherDeepsky, FourCC("dsnv"), "NonOpticDraw"},
                  {shown.figures, FourCC("cnst"), "PatternsVisible"},
                  {shown.constellationNames, FourCC("cnst"), "LabelsVisible"},
                  {shown.englishNames, FourCC("cnst"), "EnglishName"},
                  {shown.milkyWay, FourCC("grid"), "MilkyWayVisible"},
                  {shown.horizon, FourCC("grid"), "HorizonDraw"},
                  {shown.compass, FourCC("grid"), "Compass"}};
  for (const auto& entry : switches) entry.flag = IsOn(settings, entry.section, entry.name, entry.flag);
  return shown;
}

}  // namespace skyview
