// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>

#include "scene/earth_observer.h"

namespace scene {

// Where an object stands over the horizon of a place. Refraction is not part of the direction but of `riseAltitude`.
struct HorizonPlace {
  double azimuth = 0.0;   // radians from north over east, [0, 2 pi)
  double altitude = 0.0;  // radians
  double riseAltitude =
      0.0;  // radians, the altitude of its centre at which its upper limb seems to touch the horizon
};

// Where the object stands at a moment; nothing when nobody can tell.
using FindHorizonPlace = std::function<std::optional<HorizonPlace>(const SkyMoment&)>;

// The altitude at which the centre of a disc rises and sets: refraction lifts the horizon by 34 minutes of arc (Meeus
// 1998, Astronomical Algorithms, chapter 15), and the upper limb comes first. With the usual radius of the Sun, 16
// minutes, this is -50 minutes. Places must be as seen from the Earth's surface, so that the Moon's parallax is in
// them.
SCENE_API double GetRiseAltitude(double angularRadius);

// From the reduction to the horizon frame (HorizonAxes).
SCENE_API HorizonPlace MakeHorizonPlace(const double axes[9], const double apparent[3], double angularRadius);

// What happens to an object within a stretch of time.
struct RiseTransitSet {
  std::optional<SkyMoment> rise, transit, set;  // the first of each
  double transitAltitude = 0.0;                 // radians, at the transit
  bool staysUp = false, staysDown = false;      // all the time: neither rises nor sets
};

// Looks at the object every `step` days over `length` days from `start`, and from there by halving to a tenth of a
// second. What rises and sets again between two looks is not noticed. The transit is the upper one: from the east to
// the west side of the meridian.
SCENE_API RiseTransitSet FindRiseTransitSet(const FindHorizonPlace& find, const SkyMoment& start, double length,
                                  double step);

}  // namespace scene
