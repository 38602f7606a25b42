// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "scene/api.h"

namespace scene {

// "2026-01-15 22:00", rounded to the minute: as skyview --time takes it. Julian day number and fraction of
// the moment.
SCENE_API std::string FormatMoment(int day, double fraction);
// Its date alone, "2026-01-15"; years count with a year 0.
SCENE_API std::string FormatDay(int day, double fraction);
// Whether such a text is of the year 0 or one before it.
SCENE_API bool IsBeforeFirstYear(const std::string& text);

}  // namespace scene
