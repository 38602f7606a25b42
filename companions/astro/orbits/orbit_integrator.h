// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace astro_internal {

struct OrbitState {
  double position[3];  // au
  double velocity[3];  // au/day
};

// The acceleration (au/day^2) of a body at `position` at the time `t`, days from an origin
// that the caller chooses: a Julian date itself would cost digits. False stops the
// integration (the range of a series is left).
using OrbitAcceleration = bool (*)(double t, const double position[3], double acceleration[3], void* context);

struct IntegrationLimits {
  // Relative error that one step may add, 1e-16 to 1e-3; others are taken as the nearest.
  double tolerance = 1e-15;
  int maxSteps = 20000;  // refused steps count too
};

// Takes a body from the time `t` to `t1`, forwards or backwards, in steps that the body's own
// motion chooses: Gauss-Radau integration of order 15 (Everhart 1985). Some 8 to 20 evaluations
// of the acceleration a step; no allocation.
//
// True: `state` and `t` (= t1) are the new ones. False: a value is not finite, the acceleration said stop, a
// step became too short for `t` to change, or the steps are used up; `state` and `t` are then those of the
// last good step, which are consistent, so that a caller may go on from there. Nothing here keeps state;
// every thread may call.
bool IntegrateOrbit(OrbitState& state, double& t, double t1, const IntegrationLimits& limits,
                    OrbitAcceleration acceleration, void* context);

}  // namespace astro_internal
