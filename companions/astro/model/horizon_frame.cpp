// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/horizon_frame.h"

#include <cmath>

#include "astro/coordinates.h"
#include "astro/delta_t.h"
#include "astro/earth_orientation.h"
#include "astro/julian_date.h"
#include "astro/solar_system.h"
#include "astro/vectors.h"

namespace astro {

SkyMoment MakeMoment(int day, double fraction) {
  SkyMoment moment;
  moment.day = day;
  moment.fraction = fraction;
  Adjust_JD(moment.day, moment.fraction);
  moment.deltaT = ET_UT::Get(moment.day, moment.fraction);
  // The small parts are added first: that keeps their digits.
  moment.julianDateTT = moment.day + (moment.fraction + moment.deltaT / kSecondsPerDay);
  return moment;
}

// Delta T changes so slowly that the second guess of it is good to a microsecond.
SkyMoment MakeMomentTT(double julianDateTT) {
  const int day = static_cast<int>(std::floor(julianDateTT));
  const double fraction = julianDateTT - day;
  const double guess = ET_UT::Get(day, fraction) / kSecondsPerDay;
  SkyMoment moment = MakeMoment(day, fraction - ET_UT::Get(day, fraction - guess) / kSecondsPerDay);
  moment.julianDateTT = julianDateTT;
  return moment;
}

SkyMoment Later(const SkyMoment& moment, double days) {
  return MakeMoment(moment.day, moment.fraction + days);
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
  Plg2Plc(place.height / 1000.0, place.lon + sidereal, place.lat, kEarthEquatorialRadius, kEarthFlattening,
          equatorial);
  PrecessionNutationMatrix(moment.julianDateTT, orientation);
  V3Mprod(equatorial, orientation, km);
}

}  // namespace astro
