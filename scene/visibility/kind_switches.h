// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "common_interfaces/settings_data.h"
#include "scene/visibility/shown_kinds.h"

namespace scene {

bool HasSection(const CommonInterfaces::SettingsData& settings, unsigned section);

// Of "star", "clst", "gala", "nebu", "dsnv", "plnt", "moon", "astr", "comt", "scft" and, for the names of the
// constellations, "cnst".
KindState ReadKindState(CommonInterfaces::SettingsData& settings, int kind);

// Of a switch of a section; `otherwise`: what it is where the settings lack it.
KindState ReadSwitchState(CommonInterfaces::SettingsData& settings, unsigned section, const char* name,
                          bool otherwise);

}  // namespace scene
