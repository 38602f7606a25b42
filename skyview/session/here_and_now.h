// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What a run shows that says neither view nor time: tonight, from where the user is at home. And the moments
// that are told by the clock.
#pragma once

#include <optional>

#include "common_interfaces/camera.h"
#include "skyview/options/view_group.h"
#include "skyview/session/clock.h"

namespace skyview {

// Whether the options leave it to the clock when they show the sky: no saved view, session or home, and no
// written time.
bool FollowsClock(const ViewOptions& options);

// Where the observer of such a run stands.
enum class Standpoint { kGiven, kHome, kDefault };
Standpoint FindStandpoint(const ViewOptions& options, const CommonInterfaces::Camera& camera);

// Place, its name and zone of the home on the Earth, which must be there.
void StandAtHome(CommonInterfaces::Camera& camera);

// Where such a run looks by itself: as the home on the Earth does when it stands there, else at an altitude
// of 30 degrees where the Sun is at noon.
void LookAround(Standpoint standpoint, CommonInterfaces::Camera& camera);

// The moment that the clock means for the camera's place and zone: today is noon by the clocks of the zone,
// tonight scene::FindTonight. Nothing for a night that nobody has: away from the Earth's surface.
std::optional<UniversalMoment> FindMoment(ClockTime time, const UniversalMoment& now,
                                          const CommonInterfaces::Camera& camera);

}  // namespace skyview
