// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The horizon of a place on the Earth at a moment. Polar motion (below 0.6 arc second) is left out, and
// refraction is part of nothing here. Nothing keeps state or allocates; every thread may call.
#pragma once

#include "astro/api.h"
#include "astro/constants.h"

class CQXSolSys;

namespace astro {

// A moment in the scales that the models ask for.
struct SkyMoment {
  // Julian day number and fraction, Universal Time (UT1). MakeMoment brings the fraction into [-0.5, 0.5).
  int day = static_cast<int>(kJ2000);
  double fraction = 0.0;
  double deltaT = 0.0;        // TT - UT1, seconds (ET_UT::Get)
  double julianDateTT = 0.0;  // the same moment in dynamical time
};

// From a day and a fraction in Universal Time, any finite one.
ASTRO_API SkyMoment MakeMoment(int day, double fraction);
// From a Julian date in dynamical time whose day an int holds; good to 0.0001 second of it.
ASTRO_API SkyMoment MakeMomentTT(double julianDateTT);
// `days` later, counted in Universal Time; negative: earlier.
ASTRO_API SkyMoment Later(const SkyMoment& moment, double days);

// A place on the Earth, on the ellipsoid WGS 84.
struct EarthPlace {
  double lon = 0.0, lat = 0.0;  // radians, east and north positive, geodetic
  double height = 0.0;          // metres above the ellipsoid
};

// Sets up the model for an observer there and then.
ASTRO_API void SetUpModel(const SkyMoment& moment, const EarthPlace& place, CQXSolSys& model);

// The matrix from J2000 (ICRS) axes to the horizon of the place: x north, y west, z zenith; HorizonMatrix
// after PrecessionNutationMatrix, whose accuracy it has. The height does not matter.
ASTRO_API void HorizonAxes(const SkyMoment& moment, const EarthPlace& place, double m[9]);

// The place as seen from the Earth's centre: km, J2000 (ICRS) axes.
ASTRO_API void GetPlaceVector(const SkyMoment& moment, const EarthPlace& place, double km[3]);

}  // namespace astro
