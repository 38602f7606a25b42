// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/earth_observer.h"

#include "astro/delta_t.h"
#include "astro/earth_orientation.h"
#include "astro/julian_date.h"
#include "astro/vectors.h"

namespace scene {
namespace {

constexpr double kSecondsPerDay = 86400.0;
constexpr double kMetresPerAu = 149597870700.0;  // IAU 2012 resolution B2
constexpr double kEquatorialRadius = 6378.137;   // km, WGS 84
constexpr double kFlattening = 1.0 / 298.257223563;

}  // namespace

SkyMoment MakeMoment(int day, double fraction) {
  SkyMoment moment;
  moment.day = day;
  moment.fraction = fraction;
  Adjust_JD(moment.day, moment.fraction);
  moment.deltaT = ET_UT::Get(moment.day, moment.fraction);
  moment.julianDateTT = moment.day + (moment.fraction + moment.deltaT / kSecondsPerDay);
  return moment;
}

SkyMoment GetMoment(const CommonInterfaces::Camera& camera) {
  CommonInterfaces::_Date time;
  camera.GetUniversalTime(time);
  return MakeMoment(time.day, time.fraction);
}

SkyMoment Later(const SkyMoment& moment, double days) {
  return MakeMoment(moment.day, moment.fraction + days);
}

EarthPlace GetPlace(const CommonInterfaces::Camera& camera) {
  const SphCoor& location = camera.GetLocation();
  return {location.lon, location.lat, location.dist * kMetresPerAu};
}

void SetUpModel(const SkyMoment& moment, const EarthPlace& place, CQXSolSys& model) {
  model.SetMoment(moment.julianDateTT, moment.deltaT);
  model.SetObserverOnEarth(place.lon, place.lat, place.height);
}

void HorizonAxes(const SkyMoment& moment, const EarthPlace& place, double m[9]) {
  double orientation[9], horizon[9];
  PrecessionNutationMatrix(moment.julianDateTT, orientation);
  HorizonMatrix(ApparentSiderealTime(moment.day, moment.fraction, moment.deltaT) + place.lon, place.lat,
                horizon);
  M3prod(horizon, orientation, m);
}

void GetPlaceVector(const SkyMoment& moment, const EarthPlace& place, double km[3]) {
  const double sidereal = ApparentSiderealTime(moment.day, moment.fraction, moment.deltaT);
  double equatorial[3], orientation[9];
  Plg2Plc(place.height / 1000.0, place.lon + sidereal, place.lat, kEquatorialRadius, kFlattening, equatorial);
  PrecessionNutationMatrix(moment.julianDateTT, orientation);
  V3Mprod(equatorial, orientation, km);
}

}  // namespace scene
