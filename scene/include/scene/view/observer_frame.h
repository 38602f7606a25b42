// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "common_interfaces/camera.h"
#include "scene/api.h"
#include "scene/view/directions.h"
#include "scene/view/earth_observer.h"

namespace scene {

// What the sky of one moment and place needs besides the camera. Left out, with their largest size: parallax
// (0.8 arcseconds for the nearest star), the daily aberration (0.3), polar motion (0.6) and light bending
// beside the Sun (1.8 at its limb).
struct ObserverFrame {
  double reduction[9];  // J2000 to the frame of the view angles; with a horizon: x north, y west, z zenith
  double velocity[3];   // of the observer, units of the speed of light, J2000 axes
  double inverseLorentzFactor = 1.0;  // of the velocity
  double years;                       // Julian years since J2000, dynamical time
  bool horizon;                       // the view angles count from the horizon; otherwise there is none
  bool refraction = false;            // the air lifts what is seen (air.h); only with a horizon
};

// The matrix for Camera::SetReductionMatrix: from J2000 axes to the frame that the camera's angles count in,
// for its place at that moment. With the horizon as base plane that is precession, nutation, sidereal time
// and the place; any other plane stands still among the stars.
SCENE_API void FindReduction(const CommonInterfaces::Camera& camera, const SkyMoment& moment,
                             double reduction[9]);

// Computes the frame for the camera's time and location, and tells the camera: the reduction matrix and the
// view centre in J2000. Allocates nothing. The angles count from the camera's base plane (base_plane.h); with
// `refraction`, where that is the horizon, they are those of what is seen, and the view centre is where what
// is seen there stands. An observer near the Sun, but not with the Earth, is taken to rest.
SCENE_API ObserverFrame PrepareObserver(CommonInterfaces::Camera& camera, bool refraction = false);

// The apparent direction on J2000 axes: proper motion to the date (`motion` per Julian year), annual
// aberration.
SCENE_API Direction ApparentDirection(const Direction& direction, const Direction& motion,
                                      const ObserverFrame& observer);

// The same for what has no proper motion.
SCENE_API Direction ApparentDirection(const Direction& direction, const ObserverFrame& observer);

// Where an apparent direction is seen in the frame of the view angles: lifted where the air lifts.
SCENE_API Direction SeenDirection(const Direction& apparent, const ObserverFrame& observer);
// The sine of the altitude at which it is seen; 1 where the view has no horizon.
SCENE_API double SeenSine(const Direction& apparent, const ObserverFrame& observer);

}  // namespace scene
