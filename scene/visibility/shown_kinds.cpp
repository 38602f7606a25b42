// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/shown_kinds.h"

#include "common_interfaces/field_data.h"
#include "scene/visibility/kind_switches.h"
#include "utils/text.h"

namespace scene {
namespace {

using CommonInterfaces::SettingsData;

struct Switch {
  bool ShownKinds::*flag;
  unsigned section;
  const char* name;
};
constexpr Switch kSwitches[] = {{&ShownKinds::stars, FourCC("star"), "Draw"},
                                {&ShownKinds::clusters, FourCC("clst"), "ClusterDraw"},
                                {&ShownKinds::galaxies, FourCC("gala"), "GalaxyDraw"},
                                {&ShownKinds::nebulae, FourCC("nebu"), "CloudsDraw"},
                                {&ShownKinds::otherDeepsky, FourCC("dsnv"), "NonOpticDraw"},
                                {&ShownKinds::constellationNames, FourCC("cnst"), "LabelsVisible"},
                                {&ShownKinds::figures, FourCC("cnst"), "PatternsVisible"},
                                {&ShownKinds::englishNames, FourCC("cnst"), "EnglishName"},
                                {&ShownKinds::milkyWay, FourCC("grid"), "MilkyWayVisible"},
                                {&ShownKinds::horizon, FourCC("grid"), "HorizonDraw"},
                                {&ShownKinds::compass, FourCC("grid"), "Compass"},
                                {&ShownKinds::planets, FourCC("plnt"), "Draw"},
                                {&ShownKinds::planetPhases, FourCC("plnt"), "PlanetPhases"},
                                {&ShownKinds::moons, FourCC("moon"), "Draw"},
                                {&ShownKinds::moonPhases, FourCC("moon"), "MoonPhases"},
                                {&ShownKinds::asteroids, FourCC("astr"), "Draw"},
                                {&ShownKinds::comets, FourCC("comt"), "Draw"},
                                {&ShownKinds::spacecraft, FourCC("scft"), "Draw"}};

// What the settings lack counts as `otherwise`, a whole section as on.
KindState ReadState(SettingsData& settings, const Switch& entry, bool otherwise) {
  KindState state = {entry.name, true, otherwise};
  if (!HasSection(settings, entry.section)) return state;
  state.sectionOn = settings.GetSectionStatus(entry.section, false) != 0;
  const unsigned before = settings.SetCurSection(entry.section);
  const int nameId = GetUniqueID(entry.name);
  unsigned char value = otherwise;
  if (settings.GetAtField(entry.section, nameId, false) &&
      settings.GetFieldType(nameId) == CommonInterfaces::kFieldUInt8) {
    settings.GetFieldElement(nameId, &value, 0);
  }
  settings.SetCurSection(before);
  state.switchOn = value != 0;
  return state;
}

}  // namespace

bool HasSection(const SettingsData& settings, unsigned section) {
  for (int i = 0; i < settings.GetSectionCount(); ++i) {
    if (settings.GetSectionAt(i)->id == section) return true;
  }
  return false;
}

bool ShownKinds::IsShown(int kind) const {
  if (kind == FourCC("star")) return stars;
  if (kind == FourCC("clst")) return clusters;
  if (kind == FourCC("gala")) return galaxies;
  if (kind == FourCC("nebu")) return nebulae;
  if (kind == FourCC("plnt")) return planets;
  if (kind == FourCC("moon")) return moons;
  if (kind == FourCC("astr")) return asteroids;
  if (kind == FourCC("comt")) return comets;
  if (kind == FourCC("scft")) return spacecraft;
  return kind == FourCC("dsnv") && otherDeepsky;
}

KindState ReadKindState(SettingsData& settings, int kind) {
  for (const auto& entry : kSwitches) {
    if (entry.section == static_cast<unsigned>(kind)) return ReadState(settings, entry, true);
  }
  return {nullptr, true, false};
}

ShownKinds ReadShownKinds(SettingsData& settings) {
  ShownKinds shown;
  for (const auto& entry : kSwitches) {
    const KindState state = ReadState(settings, entry, shown.*entry.flag);
    shown.*entry.flag = state.sectionOn && state.switchOn;
  }
  return shown;
}

}  // namespace scene
