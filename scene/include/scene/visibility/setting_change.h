// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Changes of settings as text, for command lines, pages and whoever has no other way to say them.
#pragma once

#include <string>

#include "common_interfaces/settings_data.h"
#include "scene/api.h"

namespace scene {

// One change:
//
//   SECTION:on  SECTION:off             the whole section
//   SECTION.FIELD=VALUE[,VALUE...]      all values of a field, as many as it has
//   SECTION.FIELD[INDEX]=VALUE          one of them, counted from 0
//   SECTION.FIELD:on  SECTION.FIELD:off whether the field takes part as a filter; may stand behind values
//
// A value is a number that the field's element type holds, for real numbers with "deg" behind it for degrees
// that are kept in radians. FIELD is a name, or "@" and the hexadecimal name id. False, and nothing is
// changed, when the text is not wholly good: `error` is then a piece of a line that says what is accepted.
SCENE_API bool ChangeSetting(const std::string& text, CommonInterfaces::SettingsData& settings,
                             std::string& error);

// What keeps the field that the change names from changing any picture (shown_kinds.h); null for a field that
// acts, a whole section, and a text that is no change. Static text.
SCENE_API const char* FindUndrawnReason(const std::string& text);

}  // namespace scene
