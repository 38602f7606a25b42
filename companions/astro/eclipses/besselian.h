// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The shadow of the Moon about the Earth, as Bessel described it (Explanatory Supplement to the Astronomical
// Almanac, 3rd edition 2013, chapter 11): on the plane through the Earth's centre across the shadow's axis.
// Lengths are in equatorial radii of the Earth, angles in radians, dates in TT; vectors without another word
// on the axes of the true equator of date.
#pragma once

#include "astro/horizon_frame.h"
#include "companions/astro/events/body_track.h"

namespace astro_internal {

// The Moon's radius: 0.2725076, the mean of its edge with the mountains (IAU 1982). Where the last of the Sun
// must vanish between them, in the umbra, it is the bottom of the valleys, 0.272281. So counts the canon of
// eclipses (Espenak & Meeus 2006, NASA/TP-2006-214141).
inline constexpr double kMoonPenumbraRadius = 0.2725076, kMoonUmbraRadius = 0.272281;

struct BesselianElements {
  double east[3], north[3], axis[3];  // the plane's axes x and y, and z towards the Sun
  double x, y;                        // where the shadow's axis meets the plane
  double penumbra, umbra;             // radii on the plane; the umbra's negative where the eclipse is total
  double tanPenumbra, tanUmbra;       // of the half angles of the cones
  double sidereal;                    // of Greenwich
  double sun[3];                      // from the Earth's centre
};

// What an observer has of it.
struct ShadowAtPlace {
  double u, v;             // from the observer to the axis, along the plane
  double apart;            // the length of that
  double penumbra, umbra;  // radii at the observer's height over the plane
  double height;           // over the plane

  // The part of the Sun's diameter that is covered, and the Moon's diameter in the Sun's.
  double Magnitude() const { return (penumbra - apart) / (penumbra + umbra); }
  double Ratio() const { return (penumbra - umbra) / (penumbra + umbra); }
};

ShadowAtPlace ShadowAt(const BesselianElements& elements, const double place[3]);

// Where the axis first meets the Earth's ellipsoid; where it passes by, the point at its foot.
struct AxisOnEarth {
  double place[3];
  bool meets;
  double distance;  // of the axis from the centre of the Earth stretched to a ball: 1 where it touches
};

AxisOnEarth FindAxisOnEarth(const BesselianElements& elements);

// From and to geodetic places (WGS 84); what is found stands at height 0.
void GetPlaceOnEarth(const astro::EarthPlace& place, double sidereal, double vector[3]);
astro::EarthPlace MakeEarthPlace(const double vector[3], double sidereal);

class ShadowTrack {
 public:
  ShadowTrack();

  // Not a number in all elements where there are none.
  BesselianElements Get(double date);
  ShadowAtPlace At(double date, const astro::EarthPlace& place);

 private:
  BodyTrack m_Sun, m_Moon;
};

}  // namespace astro_internal
