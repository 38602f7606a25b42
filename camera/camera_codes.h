// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utils/text.h"

namespace CommonInterfaces {

// Codes that camera files keep: never change them.
inline constexpr unsigned kCameraSettingsId = static_cast<unsigned>(FourCC("CAMR"));  // first word of a block
inline constexpr unsigned kCameraSection = static_cast<unsigned>(FourCC("camr"));

// The moving types that have rules of their own: 4 circles a body, the others travel far from the Sun. Files
// keep the numbers.
enum : signed char {
  kMovingInSpace = 3,
  kMovingInOrbit = 4,
  kMovingAroundGalaxy = 9,
  kMovingFlight = 10,
  kMovingFreeFlight = 11
};

inline constexpr int kMovingTypes = 12;

// Coordinate system: longitude and latitude on a body.
inline constexpr unsigned char kSurfaceCoordinates = 2;
inline constexpr unsigned char kSurfaceLocation = 2;  // location type: a place on a surface

// The settings file whose defaults every camera record is laid over.
inline constexpr char kSettingsFile[] = "filters.data";

}  // namespace CommonInterfaces
