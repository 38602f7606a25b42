// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/observer_frame.h"

#include "astro/delta_t.h"
#include "astro/earth_orientation.h"
#include "astro/horizon_frame.h"
#include "scene/base_plane.h"
#include "scene/view/earthbound.h"

namespace scene {
namespace {

constexpr double kJ2000 = 2451545.0;  // Julian date, dynamical time
constexpr double kDaysPerJulianYear = 365.25;

void HorizonReduction(const CommonInterfaces::Camera& camera, double julianDateTT, double reduction[9]) {
  CommonInterfaces::_Date universal;
  camera.GetUniversalTime(universal);
  const double deltaT = ET_UT::Get(universal.day, universal.fraction);
  const SphCoor& location = camera.GetLocation();
  // The camera's own dynamical time, to its last digit.
  astro::HorizonAxes({universal.day, universal.fraction, deltaT, julianDateTT},
                     {location.lon, location.lat, 0.0}, reduction);
}

}  // namespace

ObserverFrame PrepareObserver(CommonInterfaces::Camera& camera) {
  CommonInterfaces::_Date dynamical;
  camera.GetTime(dynamical);
  const double julianDateTT = dynamical.day + dynamical.fraction;
  ObserverFrame observer = {};
  observer.horizon = camera.GetBasePlane() == kHorizonPlane;
  if (observer.horizon) {
    HorizonReduction(camera, julianDateTT, observer.reduction);
  } else {
    PlaneMatrix(camera.GetBasePlane(), observer.reduction);
  }
  if (MovesWithEarth(camera)) EarthVelocity(julianDateTT, observer.velocity);
  observer.years = (dynamical.day - kJ2000 + dynamical.fraction) / kDaysPerJulianYear;

  camera.SetReductionMatrix(observer.reduction);
  double ra = 0.0, dec = 0.0;
  camera.RADec_RADec2K(camera.GetViewAngles().lon, camera.GetViewAngles().lat, &ra, &dec);
  camera.SetRA_Dec2K(ra, dec);
  return observer;
}

Direction ApparentDirection(const Direction& direction, const ObserverFrame& observer) {
  Direction apparent;
  Aberration(direction.v, observer.velocity, apparent.v);
  return apparent;
}

Direction ApparentDirection(const Direction& direction, const Direction& motion,
                            const ObserverFrame& observer) {
  Direction moved;
  for (int i = 0; i < 3; ++i) moved.v[i] = direction.v[i] + motion.v[i] * observer.years;
  return ApparentDirection(Normalised(moved), observer);
}

}  // namespace scene
