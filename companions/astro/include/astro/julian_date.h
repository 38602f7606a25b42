// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Julian day numbers and the calendar. Dates before 1582-10-15 are of the Julian calendar, from that day on of
// the Gregorian one; years are astronomical (0 is 1 BC). A moment is a whole day number and a fraction of the day
// added to it; day number N with fraction 0 is noon.
#pragma once

#include "astro/api.h"

struct CalendarDate {
  int year = 0;
  int month = 1;  // 1 to 12
  int day = 1;    // 1 to 31
  int hour = 0, minute = 0;
  double second = 0.0;  // below 60
};

// Julian date to calendar. The time of day is rounded to 0.1 millisecond before it is split, so that no 60 and no
// 59.99999 appears; the rounding may carry into the next day. Exact for every day of the years -32768 to 32767;
// day numbers outside saturate there. A fraction that is not finite counts as 0.
ASTRO_API void JD(int day, double fraction, CalendarDate& date);

// Calendar to Julian date, the fraction in [-0.5, 0.5) for a time of day in range. A day, hour, minute or second
// out of its range counts on (32 January is 1 February), a month outside 1 to 12 moves the year.
ASTRO_API void DJ(const CalendarDate& date, int& day, double& fraction);

// Brings the fraction into [-0.5, 0.5), so that `day` is the Julian day number of the civil day.
ASTRO_API void Adjust_JD(int& day, double& fraction);
