// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "astro/object_id.h"
#include "scene/api.h"
#include "scene/view/directions.h"

namespace scene {

// A range of hills, or a plain, that covers all below its skyline.
struct LandscapeLayer {
  unsigned char red, green, blue;  // in full daylight
  std::vector<Direction> skyline;  // all around, in the horizon frame; neighbours less than a degree apart
  std::vector<double> altitudes;   // of these points, radians; evenly spread over the azimuths from north on
};

// What stands around an observer on a surface. Empty where nothing is known of it: the ground is plain then.
struct SCENE_API Landscape {
  std::vector<LandscapeLayer> layers;  // the farthest first

  // Of the highest skyline in the azimuth of a direction of the horizon frame, radians; below any altitude
  // where there are no layers.
  double GetSkyline(const Direction& direction) const;
  // Whether it hides a disc of that radius in a direction of the horizon frame, its upper limb too.
  bool Hides(const Direction& direction, double radius = 0.0) const;
};

// Reads a picture of a landscape: an SVG of polygons in plain colours, the farthest first, 360 degrees of
// azimuth over its width from `leftAzimuth` (degrees from north over east) and altitudes from -10 to 30
// degrees over its height; of each polygon the line above its foot is the skyline. False, with `landscape`
// as it was and what is wrong in `error`, for anything else and for more than 10,000 points.
SCENE_API bool ParseLandscape(std::string_view svg, double leftAzimuth, Landscape& landscape,
                              std::string& error);

// The landscapes of a body as the data root has them (docs/formats/panoramas.md). `choice`: an identifier, or
// kDefaultLandscape. True with an empty landscape where the body has no default; false, with one line, for an
// identifier that the body lacks and a picture that cannot be used.
inline constexpr int kDefaultLandscape = -1;
SCENE_API bool LoadLandscape(const SSO_ID& body, int choice, Landscape& landscape, std::string& error);

}  // namespace scene
