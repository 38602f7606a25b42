// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/object_id.h"
#include "astro/solar_system.h"

namespace astro_internal {

// A direction on the true ecliptic and equinox of date, radians.
struct EclipticPlace {
  double longitude;  // -pi to pi
  double latitude;
};

// Apparent places from the Earth's centre at dates in TT; not a number where there is none.
class EclipticPlaces {
 public:
  EclipticPlaces() { m_Model.SetObserverAtEarthCentre(); }

  EclipticPlace Get(const SSO_ID& body, double date);
  // Of another object (`data` as CQXSolSys::Observe takes it) at the date of the last question.
  EclipticPlace Get(const SSO_ID& object, const void* data) const;
  // The longitude of the Moon less that of the Sun, -pi to pi.
  double Elongation(double date);

 private:
  CQXSolSys m_Model;
  double m_Axes[9] = {};
};

}  // namespace astro_internal
