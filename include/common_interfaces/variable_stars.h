// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Light curves of a few famous variable stars, novae and supernovae: simple models that look right, not
// ephemerides. Any thread may call; nothing is kept.
#pragma once

#include "common_interfaces/api.h"

namespace CommonInterfaces {

// The visual magnitude at Julian date `jd` (the date of the observer; the models are coarser than the light
// time) of a star of the catalogue, by its 32-bit identifier: six periodic variables, a recurrent nova and a
// nova. False, and `*mag` untouched, for a star without a model; else true, also for a date that is not a
// number, whose magnitude is then unspecified. `mag` must not be null.
COMMON_INTERFACES_API bool GetVarStarMagnitude(double* mag, unsigned starId, double jd);

// The same for the stars of the user's list: seven historical novae and supernovae, 16.0 (one of them 23.0)
// outside the year of their outburst.
COMMON_INTERFACES_API bool GetVarUserStarMagnitude(double* mag, unsigned starId, double jd);

}  // namespace CommonInterfaces
