// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/astro.h"
#include "measure.h"
#include "utils/text.h"

namespace astro_test {

inline SSO_ID Planet(int number) { return SSO_ID(FourCC("plnt"), number); }
inline SSO_ID Moon() { return SSO_ID(FourCC("moon"), 301); }

struct SkyPlace {
  double ra, dec;  // radians
};

inline SkyPlace PlaceOf(const double v[3]) {
  SkyPlace place = {};
  psf(v, Vmod(v, 3), place.ra, place.dec);
  return place;
}

// Right ascension and declination of the true equator and equinox of date.
inline SkyPlace ApparentPlace(const ObservedBody& body, double julianDateTT) {
  double m[9], v[3];
  PrecessionNutationMatrix(julianDateTT, m);
  MV3prod(m, body.apparent, v);
  return PlaceOf(v);
}

// The angle between two places, arc seconds.
inline double ArcSecondsBetween(const SkyPlace& a, const SkyPlace& b) {
  double va[3], vb[3];
  sfp(1.0, a.ra, a.dec, va);
  sfp(1.0, b.ra, b.dec, vb);
  return VectorsAngle(va, vb) / kArcSecond;
}

}  // namespace astro_test
