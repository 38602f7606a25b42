// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "common_interfaces/api.h"

namespace CommonInterfaces {

#pragma pack(push, 1)
// The field of sky for which stars are asked of a download service. Packed: no gaps, at any address.
struct StarDownloadDesc {
  unsigned m_Id = 0;               // the service
  double m_Lon = 0.0;              // radians: right ascension of the field's centre
  double m_Lat = 0.0;              // radians: its declination
  double m_FieldSize = 0.0;        // radians, across
  unsigned char m_Level = 0;       // level of detail
  unsigned char m_Step = 0;        // resolution step
  double m_Rotation = 0.0;         // degrees
  unsigned char m_bDirection = 0;  // not 0: compared by the direction below instead of by the centre
  double m_DirectionLon = 0.0;     // radians
  double m_DirectionLat = 0.0;     // radians
};
#pragma pack(pop)
static_assert(sizeof(StarDownloadDesc) == 55 && alignof(StarDownloadDesc) == 1);
static_assert(offsetof(StarDownloadDesc, m_Id) == 0 && offsetof(StarDownloadDesc, m_Lon) == 4);
static_assert(offsetof(StarDownloadDesc, m_Lat) == 12 && offsetof(StarDownloadDesc, m_FieldSize) == 20);
static_assert(offsetof(StarDownloadDesc, m_Level) == 28 && offsetof(StarDownloadDesc, m_Step) == 29);
static_assert(offsetof(StarDownloadDesc, m_Rotation) == 30 && offsetof(StarDownloadDesc, m_bDirection) == 38);
static_assert(offsetof(StarDownloadDesc, m_DirectionLon) == 39 &&
              offsetof(StarDownloadDesc, m_DirectionLat) == 47);

// Whether the stars of one field serve for the other: not an identity. The services are the same, and
//   without m_bDirection of `a`: m_Lon, m_Lat and m_FieldSize each differ by less than 1e-6;
//   with it: the directions lie less than half the smaller field size apart, and the sizes differ by less
//     than 1e-6.
// In both cases m_Level and m_Step each differ by at most 1 and m_Rotation by less than 90 degrees (as
// numbers: 359 and 1 are far apart). Deliberately only the flag of `a` counts, so a == b and b == a differ
// when the flags do; and the relation is not transitive. Numbers that are not finite are equal to nothing.
// Any thread.
COMMON_INTERFACES_API bool operator==(const StarDownloadDesc& a, const StarDownloadDesc& b);
COMMON_INTERFACES_API bool operator!=(const StarDownloadDesc& a, const StarDownloadDesc& b);

}  // namespace CommonInterfaces
