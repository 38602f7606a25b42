// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "common_interfaces/settings_data.h"

namespace skyview {

// What the settings say is to be drawn.
struct ShownKinds {
  bool stars = true;
  bool clusters = true;
  bool galaxies = true;
  bool nebulae = true;
  bool otherDeepsky = true;  // "dsnv", the objects that are not seen in visible light
  bool figures = true;
  bool constellationNames = true;
  bool milkyWay = true;
  bool horizon = true;
  bool compass = true;

  bool IsShown(int kind) const;  // of a class of objects, by its four-character code
};

// Reads the section of each class: a class is drawn while its section is on. The pictures of the sky itself follow
// the switches of the sections that have them; a switch that the settings lack leaves its picture on.
ShownKinds ReadShownKinds(CommonInterfaces::SettingsData& settings);

}  // namespace skyview
