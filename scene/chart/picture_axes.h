// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/view/view_geometry.h"

namespace scene {

// Where north and east (J2000) are in the middle of a picture: unit vectors in pixels, y down. At a pole of
// the equator north is where right ascension 0 is behind the pole.
struct PictureAxes {
  tPoint<double> north, east;
};

PictureAxes FindPictureAxes(const ViewGeometry& geometry);

}  // namespace scene
