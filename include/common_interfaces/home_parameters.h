// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/coordinates.h"
#include "astro/object_id.h"

namespace CommonInterfaces {

inline constexpr int kHomeNameSize = 256;  // with the terminating zero
inline constexpr int kHomeZoneSize = 64;   // with the terminating zero

// Which parts of a home hold something. Files keep the numbers: frozen.
enum HomeParts : int {
  kHomeLocation = 1,      // moving type, location type, observer, location and its name
  kHomeView = 2,          // angles, zoom, aiming display type, locked direction
  kHomeTime = 4,          // moment and time zone
  kHomeLocationOnly = 8,  // location, its name and observer were stored, but no way of moving
};

// Where an observer stood, where it looked and what time it was. Docs: docs/formats/home_params.md.
struct HomeParameters {
  int flags = 0;         // HomeParts
  int movingType = 0;    // a signed byte
  int locationType = 0;  // an unsigned byte
  SSO_ID observer;
  SphCoor location;  // au, radians
  char locationName[kHomeNameSize] = "";
  double alp = 0.0;  // view angles: longitude, latitude and slope, radians
  double bet = 0.0;
  double slp = 0.0;
  signed char aimingDispType = -1;  // -1: the camera keeps its own
  SSO_ID centerObject;
  bool directionLocked = false;
  double zoom = 0.0;
  int day = -1;  // Universal Time, Julian day number; -1: the record holds no time
  double fraction = -1.0;
  int timeType = 0;
  char timeZoneName[kHomeZoneSize] = "";
};

}  // namespace CommonInterfaces
