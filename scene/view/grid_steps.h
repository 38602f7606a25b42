// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace scene {

// What longitudes are written in: 0 to 24 hours, or 0 to 360 degrees.
enum class LongitudeUnit { kHours, kDegrees };

// The distances from line to line of a grid, radians: 1, 2, 5, 10, 20 or 30 degrees or their minutes or
// seconds, of degrees or of hours, and decimals of seconds.
struct GridSteps {
  double longitude, latitude;
};

// The smallest steps whose lines stand at least `least` radians apart where the latitude is that of the
// middle of the picture. Near a pole, where meridians crowd, their steps grow up to 45 degrees.
GridSteps ChooseGridSteps(double least, double middleLatitude, LongitudeUnit unit);

// A longitude or a latitude as the line of a grid is labelled, with no more parts than its step asks for:
// "5h", "5h20m", "5h20m12.4s"; degrees with their signs; latitudes with theirs, the equator without.
// Zero-terminated UTF-8.
using GridText = std::array<char, 32>;
GridText FormatGridLongitude(double longitude, double step, LongitudeUnit unit);
GridText FormatGridLatitude(double latitude, double step);

}  // namespace scene
