// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/star_download.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "astro/coordinates.h"
#include "astro/vectors.h"

namespace CommonInterfaces {

namespace {

constexpr double kNear = 1e-6;          // radians
constexpr double kNearRotation = 90.0;  // degrees

bool AreNear(double a, double b) { return std::abs(a - b) < kNear; }

bool AreNeighbours(unsigned char a, unsigned char b) { return std::abs(a - b) <= 1; }

bool DirectionsMeet(const StarDownloadDesc& a, const StarDownloadDesc& b) {
  double towardsA[3], towardsB[3];
  sfp(1.0, a.m_DirectionLon, a.m_DirectionLat, towardsA);
  sfp(1.0, b.m_DirectionLon, b.m_DirectionLat, towardsB);
  const double sizeA = a.m_FieldSize;
  const double sizeB = b.m_FieldSize;
  return VectorsAngle(towardsA, towardsB) < 0.5 * std::min(sizeA, sizeB);
}

}  // namespace

bool operator==(const StarDownloadDesc& a, const StarDownloadDesc& b) {
  if (a.m_Id != b.m_Id) return false;
  // The second flag is deliberately not looked at.
  const bool samePlace =
      a.m_bDirection ? DirectionsMeet(a, b) : AreNear(a.m_Lon, b.m_Lon) && AreNear(a.m_Lat, b.m_Lat);
  return samePlace && AreNear(a.m_FieldSize, b.m_FieldSize) && AreNeighbours(a.m_Level, b.m_Level) &&
         AreNeighbours(a.m_Step, b.m_Step) && std::abs(a.m_Rotation - b.m_Rotation) < kNearRotation;
}

bool operator!=(const StarDownloadDesc& a, const StarDownloadDesc& b) { return !(a == b); }

}  // namespace CommonInterfaces
