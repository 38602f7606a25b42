// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// When a comet is seen best. File format: docs/formats/observation_times.md.
#pragma once

#include "astro/object_id.h"
#include "common_interfaces/api.h"
#include "common_interfaces/date.h"

namespace CommonInterfaces {

// The best moment to observe the object in a year, in Universal Time, from
// "catalogs:comets:best_observation_time.ini". Which entry answers, of those of the object:
//   1. one whose year is written as -1 stands for every year: its day, month and hour in the year asked for
//   2. the one of that year
//   3. the one of the nearest earlier year (a comet that was seen best in 1996 is no news for 1995)
// and of two that are alike the first one in the file. When there is none, and for a null `date`, false;
// `date` is then as it was. A missing file has no entries and prints nothing.
//
// The file is read once, by the first call in the process, and never again. This is the one table of the
// library that several threads may ask for at once, that first call included.
COMMON_INTERFACES_API bool GetObsTimeFromFile(_Date* date, const SSO_ID& object, int year);

}  // namespace CommonInterfaces
