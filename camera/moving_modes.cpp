// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/moving_modes.h"

#include "camera/camera_codes.h"

namespace CommonInterfaces {
namespace {

constexpr signed char kBasePlanes[kMovingTypes] = {1, 1, -1, 2, 3, -1, -1, -1, -1, -1, 3, 3};
constexpr signed char kCoordinateSystems[kMovingTypes] = {
    kSurfaceCoordinates, kSurfaceCoordinates, -1, 0, 3, -1, -1, -1, -1, -1, 3, 7};

char LookUp(const signed char (&table)[kMovingTypes], char mode) {
  return static_cast<char>(mode >= 0 && mode < kMovingTypes ? table[static_cast<int>(mode)] : -1);
}

}  // namespace

char GetBasePlaneForMode(char mode) { return LookUp(kBasePlanes, mode); }

char GetSysCoorForMode(char mode) { return LookUp(kCoordinateSystems, mode); }

}  // namespace CommonInterfaces
