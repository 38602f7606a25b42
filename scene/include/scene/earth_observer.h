// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/solar_system.h"
#include "common_interfaces/camera.h"
#include "scene/api.h"
#include "scene/directions.h"

namespace scene {

// A moment with what the models ask for.
struct SkyMoment {
  int day = 2451545;      // Julian day number and fraction, Universal Time
  double fraction = 0.0;  // [-0.5, 0.5)
  double deltaT = 0.0;    // TT - UT1, seconds
  double julianDateTT = 0.0;
};

SCENE_API SkyMoment MakeMoment(int day, double fraction);
SCENE_API SkyMoment GetMoment(const CommonInterfaces::Camera& camera);
// `days` later, counted in Universal Time.
SCENE_API SkyMoment Later(const SkyMoment& moment, double days);

// A place on the Earth.
struct EarthPlace {
  double lon = 0.0, lat = 0.0;  // radians, east and north positive, geodetic
  double height = 0.0;          // metres above the ellipsoid
};

SCENE_API EarthPlace GetPlace(const CommonInterfaces::Camera& camera);

// Sets up the model for an observer there and then.
SCENE_API void SetUpModel(const SkyMoment& moment, const EarthPlace& place, CQXSolSys& model);

// From J2000 axes to the horizon of the place: x north, y west, z zenith.
SCENE_API void HorizonAxes(const SkyMoment& moment, const EarthPlace& place, double m[9]);

// The place relative to the Earth's centre, km, J2000 axes.
SCENE_API void GetPlaceVector(const SkyMoment& moment, const EarthPlace& place, double km[3]);

inline Direction MakeDirection(const double v[3]) { return {{v[0], v[1], v[2]}}; }

}  // namespace scene
