// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Dates as the user reads them, names of months, lengths of months, daylight-saving days and the range of
// years that the application accepts.
//
// Three sources decide the order of day, month and year. They are deliberately kept apart, and each function
// uses its own:
//   the numeric date format (SetDateFormat)   GetDateString and GetDayMonthString of a short date
//   text 40830 of the string table            GetDateString with the name of the month
//   text 20560 of the string table            getDate
// What a translator writes there: docs/formats/strings.md.
//
// Calendar: dates before 1582-10-15 are of the Julian calendar, later ones of the Gregorian one; years are
// astronomical (0 is 1 BC) and their sign is shown. GetDaysInMonth alone is Gregorian throughout.
//
// Format, names and limits are process-wide and unlocked: all functions but GetDaysInMonth and RefDay are
// for the thread that uses the string table. Nothing here keeps a pointer that it was given. Functions that
// show texts of the string table load it when needed and say nothing about a missing text, unless it is said
// below.
//
// A short date is an array of three: day, month (1 to 12), year. Values out of range are written as they
// are. A buffer has room for 256 bytes and is always terminated; the functions without a buffer give the
// same text.
#pragma once

#include <string>
#include <vector>

#include "common_interfaces/api.h"
#include "common_interfaces/date.h"

namespace CommonInterfaces {

// The numeric date format, from a pattern such as "dd.mm.yyyy"; only the places of the first "d", "m" and "y"
// count, and case matters:
//   2  the year is not behind both others: "yyyy/mm/dd"; also the value at the start
//   1  otherwise, day before month: "dd/mm/yyyy"
//   0  otherwise: "m/d/yyyy"
// A missing letter stands before all others, so that "mm/yyyy" is 1, "dd/yyyy" 0 and "" 2. Null counts as "".
COMMON_INTERFACES_API void SetDateFormat(char const* pattern);
COMMON_INTERFACES_API int GetDateFormat();

// A short date in digits, by the numeric date format: 0 "03/05/2024", 1 "05/03/2024", 2 "2024/03/05" for 5
// March 2024. False and "", the buffer untouched, for an unknown format, a null buffer and a null date.
COMMON_INTERFACES_API bool GetDateString(char* out, short const* date);
COMMON_INTERFACES_API std::string GetDateString(short const* date);

// Day and month in digits: formats 0 and 2 "03/05", 1 "05/03" for 5 March. The year-first format deliberately
// shows the month first too. Failure as above.
COMMON_INTERFACES_API bool GetDayMonthString(char* out, short const* date);
COMMON_INTERFACES_API std::string GetDayMonthString(short const* date);

// A date with the name of the month, by the pattern that text 40830 spells; for 5 March 2024:
//   dd/mm/yyyy, dd-mm-yyyy         " 5 March 2024"
//   dd.mm.yyyy                     " 5. March 2024"
//   d-m-yyyy                       "5 March 2024"
//   m/d/yyyy                       " March 5, 2024"   the leading blank is deliberate
//   yyyy/m/d                       "2024 March 5"
//   yyyy/mm/dd, any other, none    "2024 March  5"
// A year of fewer than four characters is filled up with blanks in front. The names are texts 971 to 982 in
// every language; a missing one, and that of a month outside 1 to 12, is empty.
COMMON_INTERFACES_API std::string GetDateString(int year, int month, int day);
// The same for the civil day of a moment; the kind of time does not matter, and no offset is added.
COMMON_INTERFACES_API std::string GetDateString(_Date const& date);

// The civil day of a Julian date in digits, by the format number that text 20560 holds: 1 "05/03/2024", 0
// "03/05/2024", any other "2024/03/05". "." takes the place of "/" when the system locale is exactly "de"
// ("de-AT" is not). A text 20560 that is missing or no number counts as 2 and prints "Date format not
// defined in QXStrings.txt (id = 20560)\n". A Julian date that is not a number counts as 0.
COMMON_INTERFACES_API std::string getDate(double jd);

// The name of a month as it stands alone: texts 1971 to 1982 when the system locale is exactly "ru" (971 to
// 982 there have the case that a date asks for), else 971 to 982. A month below 1 is January, one above 12
// December. A missing name is empty.
//
// These names, and those of the long date, are copies that are taken again when the system locale is another
// than at the last call, or when there was no name at all: a change of language sets the locale and reloads
// the string table before the next call here, and a reload under the same locale keeps the names.
COMMON_INTERFACES_API std::string GetMonth(int month);
COMMON_INTERFACES_API std::vector<std::string> GetMonthList();  // always 12

// 28 to 31, by the Gregorian rule for every year, those before 1582 and negative ones included; 0 for a
// month outside 1 to 12. Any thread.
COMMON_INTERFACES_API int GetDaysInMonth(int month, int year);

// The day and the time at which a daylight-saving rule changes the clocks in a year, in the time that the
// rule is written in: `day` is the Julian day number of the civil day, `fraction` the time of day, -0.5 at
// midnight (0.0 is noon). `month` counts from zero (0 January); `week` is 0 to 3 for the first to the fourth
// such weekday of the month and 4 for the last one (the fourth or the fifth); `weekday` is 0 for Sunday to 6
// for Saturday, as operating systems number them in such rules. For example 2:00 on the last Sunday of March
// 2024, which is the 31st:
//   RefDay(day, fraction, 2024, 2, 4, 0, 2, 0)     ->  2460401, -0.41666...
// Out of range: a month moves the year, a weekday counts modulo 7, a week below 0 is the first and one above
// 4 the last; hour and minute count on. Any thread. Cannot fail.
COMMON_INTERFACES_API void RefDay(int& day, double& fraction, short year, short month, short week,
                                  short weekday, short hour, short minute);

// The first and the last year that the application accepts, -1 each for no limit (the value at the start).
// They come from "media:time_interval.ini" (docs/formats/time_interval.md), read by the first question, or
// were set.
//
// ReadLimitYears reads the file unless the limits are current or `force` is given; afterwards they are
// current. A missing file changes neither limit and prints nothing. A line that holds no year from -32768 to
// 32767 leaves its limit as it was and prints one line.
COMMON_INTERFACES_API void ReadLimitYears(bool force);
COMMON_INTERFACES_API short GetMinimumYear();
COMMON_INTERFACES_API short GetMaximumYear();

// Set one limit. The limits are current afterwards when neither of them is -1; otherwise the next question
// reads the file, whose values replace both. Setting either to -1 therefore deliberately brings the file's
// values back, and a first limit set alone lasts only if the other is set before the next question, or if
// there is no file.
COMMON_INTERFACES_API void SetMinimumYear(short year);
COMMON_INTERFACES_API void SetMaximumYear(short year);

}  // namespace CommonInterfaces
