// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/satellite_pass.h"

#include <cmath>

#include "astro/vectors.h"

namespace astro {

double SunlightMargin(const double satellite[3], const double sun[3]) {
  constexpr double kEarthRadius = 6371.0;  // km, mean (IUGG)
  const double distance = Vmod(satellite, 3);
  if (distance <= kEarthRadius) return 0.0;  // below the surface, which only a decayed one is
  // As the satellite sees them: how far the Sun's centre is from the Earth's. The Earth hides it when that is
  // less than the Earth's radius; the Sun is so far that its direction is the same from the satellite.
  const double towardsEarth[3] = {-satellite[0], -satellite[1], -satellite[2]};
  return VectorsAngle(towardsEarth, sun) - std::asin(kEarthRadius / distance);
}

bool IsSunlit(const double satellite[3], const double sun[3]) {
  return SunlightMargin(satellite, sun) >= 0.0;
}

bool GetSatellitePosition(const SatelliteModel& satellite, double epoch, const SkyMoment& moment,
                          double position[3]) {
  double teme[3], velocity[3];
  const double minutes = (moment.day - epoch + moment.fraction) * kMinutesPerDay;
  if (satellite.GetState(minutes, teme, velocity) != SatelliteFault::kNone) return false;
  TemeToJ2000(moment.julianDateTT, teme, position);
  return true;
}

SatellitePlace FindSatellitePlace(const SatelliteModel& satellite, double epoch, const SkyMoment& moment,
                                  const EarthPlace& place, const double sun[3]) {
  SatellitePlace found;
  double position[3], from[3], axes[9];
  if (!GetSatellitePosition(satellite, epoch, moment, position)) return found;
  found.sunlit = IsSunlit(position, sun);
  GetPlaceVector(moment, place, from);
  for (int i = 0; i < 3; ++i) position[i] -= from[i];
  HorizonAxes(moment, place, axes);
  MV3prod(axes, position, found.direction);
  const double length = Vmod(found.direction, 3);
  for (double& component : found.direction) component /= length;
  found.known = true;
  return found;
}

}  // namespace astro
