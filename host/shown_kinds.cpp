// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "host/shown_kinds.h"

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

// A class without a section is drawn: nobody switched it off.
bool IsClassOn(SettingsData& settings, unsigned section) {
  return !HasSection(settings, section) || settings.GetSectionStatus(section, false) != 0;
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
  shown.stars = IsClassOn(settings, FourCC("star"));
  shown.clusters = IsClassOn(settings, FourCC("clst"));
  shown.galaxies = IsClassOn(settings, FourCC("gala"));
  shown.nebulae = IsClassOn(settings, FourCC("nebu"));
  shown.otherDeepsky = IsClassOn(settings, FourCC("dsnv"));
  return shown;
}

}  // namespace skyview
