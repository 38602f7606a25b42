// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Offsets of local time, from the zones of the IANA time zone database.
#pragma once

#include "utils/api.h"

// Local time minus Universal Time in days, east positive, in the zone `zone` (for example "Europe/Berlin") at
// the moment `julianDate` (Universal Time), daylight saving included. Compiled zone files (TZif version 2 and
// up, footer rule included; version 1 data where there is no more) are read from the data root,
// "media:zoneinfo:", then from the system's zoneinfo folder, and kept for the process. An unknown or damaged
// zone gives 0 and one diagnostic line, once per name; null and "" give 0 without a line. One thread only.
UTILS_API double getLocalUTCDeltaForTimezone(const char* zone, double julianDate);
