// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/physical_ephemeris.h"

#include <algorithm>
#include <cmath>

#include "astro/constants.h"
#include "astro/earth_orientation.h"
#include "astro/rotation.h"
#include "astro/vectors.h"
#include "companions/astro/rotation/body_light.h"

namespace astro {

namespace {

double Turned(double angle) { return angle < 0.0 ? angle + kTurn : angle; }

// Of the three that were mapped before their sense of turning counted.
bool CountsEastwards(const SSO_ID& body, const BodyRotation& rotation) {
  return body == kSun || body == kMoon || rotation.turning < 0.0;
}

// `towards`: vector from this body to the other one, ICRS axes.
SurfacePoint PointBelow(const double towards[3], const BodyRotation& rotation, const BodyShape& shape,
                        bool eastwards) {
  double v[3];
  MV3prod(rotation.toBody, towards, v);
  const double across = std::hypot(v[0], v[1]);
  SurfacePoint point;
  point.eastLongitude = Turned(std::atan2(v[1], v[0]));
  point.longitude = eastwards ? point.eastLongitude : Turned(-point.eastLongitude);
  point.latitude = std::atan2(v[2], across);
  const double stretch = shape.a / shape.c;
  point.graphicLatitude = std::atan2(v[2] * stretch * stretch, across);
  return point;
}

// The position angle of a vector at a body that is seen in a direction (unit vector).
double PositionAngle(const double vector[3], const double towards[3], const double north[3]) {
  double east[3], up[3];
  Vprod(north, towards, east);
  Vprod(towards, east, up);
  return Turned(std::atan2(Dot(vector, east), Dot(vector, up)));
}

double AngularSize(double kilometres, double distance) {
  return std::asin(std::min(kilometres / kKilometresPerAu / distance, 1.0));
}

}  // namespace

std::optional<PhysicalEphemeris> FindPhysicalEphemeris(const SSO_ID& body, const ObservedBody& seen,
                                                       double julianDateTT) {
  const double whenLightLeft = julianDateTT - seen.lightTime;
  const std::optional<BodyRotation> rotation = ComputeRotation(body, whenLightLeft);
  const BodyShape shape = GetBodyShape(body).value_or(BodyShape());
  if (!rotation || !(seen.distance > 0.0)) return std::nullopt;
  const bool eastwards = CountsEastwards(body, *rotation);
  double toDate[9];
  PrecessionNutationMatrix(julianDateTT, toDate);
  const double* north = toDate + 6;
  PhysicalEphemeris result;
  const astro_internal::BodyLight light = astro_internal::LightAt(seen);
  result.observer = PointBelow(light.toObserver, *rotation, shape, eastwards);
  result.poleAngle = PositionAngle(rotation->toBody + 6, seen.astrometric, north);
  if (!(body == kSun)) {
    result.sun = PointBelow(light.toSun, *rotation, shape, eastwards);
    const double toSun[3] = {-seen.fromSun[0], -seen.fromSun[1], -seen.fromSun[2]};
    result.brightLimbAngle = PositionAngle(toSun, seen.astrometric, north);
    result.phaseAngle = seen.phaseAngle;
    result.illuminated = 0.5 * (1.0 + std::cos(seen.phaseAngle));
  }
  const double sine = std::sin(result.observer.latitude), cosine = std::cos(result.observer.latitude);
  result.equatorialRadius = AngularSize(shape.a, seen.distance);
  result.polarRadius = AngularSize(std::hypot(shape.c * cosine, shape.a * sine), seen.distance);
  result.julianDate = whenLightLeft;
  std::copy_n(rotation->toBody, 9, result.toBody);
  return result;
}

}  // namespace astro
