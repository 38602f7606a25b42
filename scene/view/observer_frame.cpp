// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/observer_frame.h"

#include <cmath>

#include "astro/constants.h"
#include "astro/delta_t.h"
#include "astro/earth_orientation.h"
#include "astro/vectors.h"
#include "scene/view/air.h"
#include "scene/view/base_plane.h"
#include "scene/view/earthbound.h"

namespace scene {
namespace {

// The camera's own moment: its dynamical time to the last digit.
SkyMoment FindMoment(const CommonInterfaces::Camera& camera, double julianDateTT) {
  CommonInterfaces::_Date universal;
  camera.GetUniversalTime(universal);
  const double deltaT = ET_UT::Get(universal.day, universal.fraction);
  return {universal.day, universal.fraction, deltaT, julianDateTT};
}

}  // namespace

void FindReduction(const CommonInterfaces::Camera& camera, const SkyMoment& moment, double reduction[9]) {
  if (camera.GetBasePlane() != kHorizonPlane) return PlaneMatrix(camera.GetBasePlane(), reduction);
  const SphCoor& location = camera.GetLocation();
  astro::HorizonAxes(moment, {location.lon, location.lat, 0.0}, reduction);
}

ObserverFrame PrepareObserver(CommonInterfaces::Camera& camera, bool refraction) {
  CommonInterfaces::_Date dynamical;
  camera.GetTime(dynamical);
  const double julianDateTT = dynamical.day + dynamical.fraction;
  ObserverFrame observer = {};
  observer.horizon = camera.GetBasePlane() == kHorizonPlane;
  observer.refraction = refraction && observer.horizon;
  FindReduction(camera, FindMoment(camera, julianDateTT), observer.reduction);
  if (MovesWithEarth(camera)) EarthVelocity(julianDateTT, observer.velocity);
  observer.inverseLorentzFactor = astro::InverseLorentzFactor(observer.velocity);
  observer.years = (dynamical.day - astro::kJ2000 + dynamical.fraction) / astro::kDaysPerJulianYear;

  camera.SetReductionMatrix(observer.reduction);
  double ra = 0.0, dec = 0.0;
  const SphViewCoor& angles = camera.GetViewAngles();
  const double latitude = observer.refraction ? LoweredAltitude(angles.lat) : angles.lat;
  camera.RADec_RADec2K(angles.lon, latitude, &ra, &dec);
  camera.SetRA_Dec2K(ra, dec);
  return observer;
}

Direction ApparentDirection(const Direction& direction, const ObserverFrame& observer) {
  Direction apparent;
  astro::Aberration(direction.v, observer.velocity, observer.inverseLorentzFactor, apparent.v);
  return apparent;
}

Direction ApparentDirection(const Direction& direction, const Direction& motion,
                            const ObserverFrame& observer) {
  Direction moved;
  for (int i = 0; i < 3; ++i) moved.v[i] = direction.v[i] + motion.v[i] * observer.years;
  return ApparentDirection(Normalised(moved), observer);
}

Direction SeenDirection(const Direction& apparent, const ObserverFrame& observer) {
  Direction standing;
  MV3prod(observer.reduction, apparent.v, standing.v);
  return observer.refraction ? Lifted(standing) : standing;
}

double SeenSine(const Direction& apparent, const ObserverFrame& observer) {
  if (!observer.horizon) return 1.0;
  const double sine = astro::Dot(observer.reduction + 6, apparent.v);
  if (!observer.refraction) return sine;
  const double lift = FindAirLift(sine);
  return (sine + lift) / std::sqrt(1.0 + (2.0 * sine + lift) * lift);
}

}  // namespace scene
