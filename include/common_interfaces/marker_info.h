// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace CommonInterfaces {

// A marked place of the sky and where it stands in the picture.
struct MARKER_INFO {
  double lon = 0.0;  // radians, in the frame of the camera's view matrix
  double lat = 0.0;
  int id = 0;  // -1 is the on-screen finder, which has no place on the sky
  int x = -1;  // pixels, y mirrored against the projection (Camera::UpdateOIMarkers); (-1, -1): off screen
  int y = -1;
  unsigned reserved = 0;
};
static_assert(sizeof(MARKER_INFO) == 32 && offsetof(MARKER_INFO, id) == 16 && offsetof(MARKER_INFO, x) == 20);

inline constexpr int kOnScreenFinderMarker = -1;

}  // namespace CommonInterfaces
