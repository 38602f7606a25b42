// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace scene {

// What an instrument sees of the sky, drawn around the middle of the picture in its true size. Angles are
// radians.
struct Finder {
  double diameter = 0.0;  // of the field, above 0 and below 2 pi; 0: the field of a sensor
  // Sides of a sensor behind an optics, each as a part of its focal length.
  double width = 0.0, height = 0.0;
  double angle = 0.0;  // of the sensor's upper edge, seen from its middle: from north over east
  std::string label;   // UTF-8; beside the upper edge
};

}  // namespace scene
