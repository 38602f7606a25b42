// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "common_interfaces/api.h"

namespace CommonInterfaces {

class Camera;

// One end of the daylight-saving period as the user's dialog describes it. The library stores it, it does not
// interpret it; in files each value has 16 bits (docs/formats/camera_record.md).
struct DaylightSavingDate {
  int date[3] = {0, 0, 0};
  short time[2] = {0, 0};
};
static_assert(sizeof(DaylightSavingDate) == 16 && offsetof(DaylightSavingDate, time) == 12);

// The user's daylight-saving rule, kept in the camera and its file. The rule does not enter the conversions
// below: these use the camera's offset from UTC alone, which knows the daylight saving of its time zone.
struct COMMON_INTERFACES_API DaylightSavingsData {
  bool IsDST = false;  // daylight saving is on
  int StartYear = 0;
  int Reserved = 0;
  DaylightSavingDate DateFrom;
  DaylightSavingDate DateTo;
  float DS_Shift[2] = {0.0f, 0.0f};  // files keep whole numbers from -32768 to 32767
  int Reserved2 = 0;
  unsigned char IsCalendarDate[2] = {0, 0};  // of DateFrom and DateTo
  float TimeZone = 3.0f;                     // hours
  bool IsNorth = false;
  double FirstDay = -1.0;  // first and last Julian day of daylight saving, -1: none; not kept in files
  double LastDay = -1.0;

  // Universal to local time and back: add or subtract camera->GetLocUTCdelta() to or from the fraction. The
  // day number stays as it is, so the fraction may leave the range of a day; Adjust_JD brings it back. A null
  // camera changes nothing.
  static void UTC2LocalTime(int& day, double& fraction, const Camera* camera);
  static void LocalTime2UTC(int& day, double& fraction, const Camera* camera);
  static void UTC2LocalTime(double& fraction, const Camera* camera);
  static void LocalTime2UTC(double& fraction, const Camera* camera);
};
static_assert(offsetof(DaylightSavingsData, IsDST) == 0 && offsetof(DaylightSavingsData, StartYear) == 4);
static_assert(offsetof(DaylightSavingsData, Reserved) == 8 && offsetof(DaylightSavingsData, DateFrom) == 12);
static_assert(offsetof(DaylightSavingsData, DateTo) == 28 && offsetof(DaylightSavingsData, DS_Shift) == 44);
static_assert(offsetof(DaylightSavingsData, Reserved2) == 52);
static_assert(offsetof(DaylightSavingsData, IsCalendarDate) == 56);
static_assert(offsetof(DaylightSavingsData, TimeZone) == 60 && offsetof(DaylightSavingsData, IsNorth) == 64);
// The days are aligned as a double is: 4 bytes on 32-bit Linux, 8 elsewhere.
static_assert(offsetof(DaylightSavingsData, FirstDay) == 64 + alignof(DaylightSavingsData));
static_assert(offsetof(DaylightSavingsData, LastDay) == 72 + alignof(DaylightSavingsData));

}  // namespace CommonInterfaces
