// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>

#include "astro/constants.h"
#include "astro/solar_system.h"
#include "companions/astro/model/moment.h"

namespace astro_internal {

// A direction from beyond the solar system: fills everything but magnitude and size. `place`: towards
// the object from the barycentre, of length 1 at the epoch. `parallax`: radians, 0 for infinitely
// far. False when the place is no direction.
bool ObserveFixed(const Moment& moment, const double place[3], double parallax, ObservedBody& result);

// Where an object is seen, au; only the directions count for what stands beyond the solar system.
struct Sight {
  double fromObserver[3];
  double fromSun[3];
};

// Fills the unit vectors. `isSun`: the Sun does not bend its own light.
void FillDirections(const Moment& moment, const Sight& sight, bool isSun, ObservedBody& result);

// Distance, light time, angles of a body `sight.fromObserver` au away.
void FillGeometry(const Moment& moment, const Sight& sight, double lightTime, ObservedBody& result);

inline constexpr double kLightTimeTolerance = 1e-8;  // days: what the fastest body moves in it is 1e-9 au
inline constexpr int kMaxLightTimeSteps = 10;

// A body of the solar system as the observer sees it, but for magnitude and size.
// `stateBefore(days, position)` tells its position about the Sun some days before the moment. False, and the
// result untouched, when it cannot, or the observer is at the body's centre.
template <class StateBefore>
bool ObserveMoving(const Moment& moment, bool isSun, StateBefore stateBefore, Sight& sight,
                   ObservedBody& result) {
  if (!moment.earthKnown) return false;
  double lightTime = 0.0;
  for (int step = 0; step < kMaxLightTimeSteps; ++step) {
    if (!stateBefore(lightTime, sight.fromSun)) return false;
    // The Sun itself has moved since, about the barycentre: 13 m/s.
    double square = 0.0;
    for (int i = 0; i < 3; ++i) {
      sight.fromObserver[i] = sight.fromSun[i] - lightTime * moment.sunVelocity[i] - moment.observer[i];
      square += sight.fromObserver[i] * sight.fromObserver[i];
    }
    const double next = std::sqrt(square) / astro::kLightAuPerDay;
    const bool settled = next - lightTime < kLightTimeTolerance && lightTime - next < kLightTimeTolerance;
    lightTime = next;
    if (settled) break;
  }
  if (!(lightTime > 0.0)) return false;
  FillGeometry(moment, sight, lightTime, result);
  FillDirections(moment, sight, isSun, result);
  return true;
}

}  // namespace astro_internal
