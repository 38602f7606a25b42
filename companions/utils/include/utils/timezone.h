// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Offsets of local time, from the zones of the IANA time zone database.
#pragma once

#include "utils/api.h"

// Local time minus Universal Time in days, east positive, in the zone `zone` (for example "Europe/Berlin") at
// the moment `julianDate` (Universal Time, taken to the nearest millisecond), daylight saving included:
//
//   getLocalUTCDeltaForTimezone("Europe/Berlin", 2451545.0)    // 2000-01-01 12:00: 1 h, 0.041666...
//   getLocalUTCDeltaForTimezone("Asia/Kolkata", 2451545.0)     // 5 h 30 min, 0.2291666...
//
// Compiled zone files (TZif version 2 and up, footer rule included; version 1 data where there is no more)
// are read from the data root, "media:zoneinfo:", then from the folder that the environment variable TZDIR
// names and from the system's zoneinfo folder, and kept for the process. A moment before a zone's first
// change has the zone's first offset, as a rule the mean time of its place.
//
// A damaged file gives one line, and the next place is tried. A zone that no place has gives 0 and one line.
// A name that leaves the zone folder ("..", an absolute path, a backslash) is refused with one line and 0.
// Each once a name. Null and "" give 0 without a line, and so does a moment that is not a number. One thread
// only.
UTILS_API double getLocalUTCDeltaForTimezone(const char* zone, double julianDate);

// Whether there is an undamaged file of the zone. The line about one that has none comes once a name, from
// either function. Null and "": false without a line. One thread only.
UTILS_API bool isTimezoneKnown(const char* zone);
