// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Julian day numbers and the calendar. Dates before 1582-10-15 are of the Julian calendar, from that day on
// of the Gregorian one, so 1582-10-04 is followed by 1582-10-15; years are astronomical (0 is 1 BC). A moment
// is a whole day number and a fraction of the day added to it; day number N with fraction 0 is noon. Whole
// numbers throughout: no day is lost to rounding. Nothing here keeps state: every thread may call.
//   2451545, 0.0     ->  2000-01-01 12:00:00
//   2436116, 0.31    ->  1957-10-04 19:26:24
#pragma once

#include "astro/api.h"

// A date and a time of day.
struct CalendarDate {
  int year = 0;
  int month = 1;  // 1 to 12
  int day = 1;    // 1 to 31
  int hour = 0, minute = 0;
  double second = 0.0;  // below 60
};

// Julian date to calendar. The fraction may have any size. The time of day is rounded to 0.1 millisecond
// before it is split, so that no 60 and no 59.99999 appears; the rounding may carry into the next day. Exact
// for every day of the years -32768 to 32767; an earlier moment gives the first one of that range, a later
// moment the last one. A fraction that is not finite counts as 0.
ASTRO_API void JD(int day, double fraction, CalendarDate& date);

// Calendar to Julian date, the fraction in [-0.5, 0.5) for a time of day in range. A day, hour, minute or
// second out of its range counts on (32 January is 1 February; 25 hours make the fraction 0.5 and more,
// Adjust_JD brings it back), a month outside 1 to 12 moves the year. The days 1582-10-05 to 1582-10-14 never
// were: they count on from 4 October of the Julian calendar, so that 5 October is another name of 15 October.
// Which calendar a date belongs to is decided after the month is in range and before the day is. A second
// that is not finite counts as 0; a day number outside the range of int becomes the nearest int.
ASTRO_API void DJ(const CalendarDate& date, int& day, double& fraction);

// Brings the fraction into [-0.5, 0.5), so that `day` is the Julian day number of the civil day. A fraction
// that is not finite becomes 0; a day number outside the range of int becomes the nearest int.
ASTRO_API void Adjust_JD(int& day, double& fraction);
