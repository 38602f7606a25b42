// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "common_interfaces/camera.h"
#include "scene/api.h"

namespace scene {

// The plane that a direction counts from, as cameras keep it: never change the numbers.
enum BasePlane : unsigned char {
  kEquatorPlane = 0,   // of J2000
  kHorizonPlane = 1,   // longitudes grow over west (HorizonMatrix)
  kEclipticPlane = 2,  // of J2000
  kGalacticPlane = 3,
};

// Takes J2000 directions into the frame of a plane other than the horizon; any other number is taken for the
// equator.
SCENE_API void PlaneMatrix(unsigned char plane, double m[9]);

// Whether the observer stands on a surface or hovers above it (moving types 0 and 1).
SCENE_API bool IsNearSurface(const CommonInterfaces::Camera& camera);

// The equator is what the view is drawn along only for those who travel; near a surface it becomes the
// horizon.
SCENE_API bool CountsFromHorizon(const CommonInterfaces::Camera& camera);

// Why the sky of this observer cannot be drawn, as the end of a sentence that begins with the view; null when
// it can. The sky is that of the Earth, and stars are so far away that it is the same near the Sun: up to 100
// au from it the nearest one moves by 0.02 degrees. Only the Earth has a horizon.
SCENE_API const char* FindObserverFault(const CommonInterfaces::Camera& camera);

}  // namespace scene
