// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What of the catalogs stands best in a night, and for which eye. Angles are in radians.
#pragma once

#include <vector>

#include "scene/almanac/night_plan.h"
#include "scene/api.h"
#include "scene/catalogs/sky_catalogs.h"
#include "scene/search/object_search.h"

namespace scene {

// An object that can be seen in the night, and when it stands best.
struct NightObject {
  FoundObject object;
  NightSight best;
  double magnitude = 0.0;
  double fromMoon = 0.0;  // angle to the Moon then
  double moonAltitude = 0.0;
  // Magnitudes by which it is brighter than what can just be seen there and then, 0 or more.
  double margin = 0.0;
};

// The aperture of the naked eye, mm: the pupil in the dark.
inline constexpr double kEyeAperture = 7.0;

// Deep-sky objects that can be seen in the dark part of the night through an aperture (mm, one below that
// of the eye counts as that), at most `most` of them, the one with the largest margin first. Each stands 10
// degrees high at least at its best moment, to a quarter of an hour: the one at which its margin is
// largest.
//
// The limit is that of the eye against the sky there (astro/sky_brightness.h), with the Moon's light and
// what is left of the Sun's, and 5 log(aperture / pupil) magnitudes more through an instrument. From it go
// 0.7 magnitudes for each air mass beyond the first: 0.2 of extinction, and haze and restless air, which
// cost more than light near the horizon; and of an extended object what its surface, its light spread
// evenly over its ellipse, is fainter than one magnitude below the sky's, and as much as its size exceeds
// the field of the instrument at its least power. Messier's objects, the showpieces, come as if they had
// 1.5 magnitudes more. Objects without a magnitude are left out.
SCENE_API std::vector<NightObject> FindBestObjects(const NightPlan& plan, const EarthPlace& place,
                                                   const SkyCatalogs& catalogs, double aperture, int most);

// The same of the asteroids and comets, as points that stand among the stars all night where they do in the
// middle of it.
SCENE_API std::vector<NightObject> FindBestSmallBodies(const NightPlan& plan, const EarthPlace& place,
                                                       const SkyCatalogs& catalogs, double aperture,
                                                       int most);

}  // namespace scene
