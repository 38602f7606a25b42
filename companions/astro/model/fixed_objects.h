// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/object_records.h"
#include "astro/solar_system.h"
#include "companions/astro/model/moment.h"

namespace astro_internal {

// What stands beyond the solar system, as the observer sees it. False, and the result untouched, for a
// record with numbers that give no direction.
bool ObserveStar(const Moment& moment, const StarRecord& star, ObservedBody& result);
bool ObserveDeepsky(const Moment& moment, const DeepskyRecord& object, ObservedBody& result);
bool ObserveConstellation(const Moment& moment, const ConstellationRecord& constellation,
                          ObservedBody& result);

}  // namespace astro_internal
