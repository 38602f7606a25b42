// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "scene/api.h"
#include "scene/view/earth_observer.h"

namespace scene {

// The middle of tonight at a place: of the night that is on, or by day of the coming one, so that it is the
// night that ends with the next sunrise; within an hour and a half of midnight by most clocks. The middle is
// the Sun's lowest point, which lies within a minute of the middle between sunset and sunrise except where
// the Sun barely sets or rises. Where it does neither there is a lowest point all the same, and the next one
// is taken. Near the poles, where the Sun circles level, any moment of the day may come out. Nothing when
// nobody can tell where the Sun is (astro/planets.h has the range). Allocates; every thread may call.
SCENE_API std::optional<SkyMoment> FindTonight(const SkyMoment& now, const EarthPlace& place);

}  // namespace scene
