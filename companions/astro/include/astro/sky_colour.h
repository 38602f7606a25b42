// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What colour sunlight has that the clear sky scatters. Angles are radians; arguments as in sky_brightness.h:
// every one has an answer, and nothing jumps. Nothing here allocates or keeps state; every thread may call.
//
// By day this is Preetham, Shirley & Smits 1999 (SIGGRAPH 99, 91) at turbidity 2.5. That ends at sunset; what
// is added from 10 degrees above the horizon on follows descriptions and photographs of twilight (Minnaert
// 1954, The Nature of Light and Colour in the Open Air; Lynch & Livingston 2001, Color and Light in Nature):
// the glow about the Sun's azimuth, ever redder and lower; opposite of it the Earth's shadow, rising twice as
// fast as the Sun sinks, and the pink arch above it; the zenith that ozone turns a deep blue (Hulburt 1953,
// J. Opt. Soc. Am. 43, 113).
#pragma once

#include "astro/api.h"

namespace astro {

// CIE 1931.
struct Chromaticity {
  double x, y;
};

// The colour of a twilight sky in one direction.
struct SkyTint {
  Chromaticity colour;
  double shade;  // what the luminance of an even twilight is multiplied with: the Earth's shadow, the arch
};

// The colours of the sky for one altitude of the Sun (radians).
class ASTRO_API SkyColour {
 public:
  // `sunlight`: the part of the Sun's light that no eclipse takes. What is left in a total one comes from
  // beyond the shadow: a glow all around the horizon.
  SkyColour(double sunAltitude, double sunlight);

  // Of a direction at an altitude (one below the horizon counts as the horizon), that many radians from the
  // Sun.
  SkyTint Get(double altitude, double fromSun) const;

 private:
  struct Place;
  struct Zenith {
    double value, scale;  // of the chromaticity there, and by the distribution towards it
  };
  Place FindPlace(double altitude, double fromSun) const;
  double FindArch(const Place& place) const;
  double FindShadow(const Place& place) const;

  double m_SunHeight;  // degrees
  double m_SineOfSun, m_CosineOfSun;
  Zenith m_ZenithX, m_ZenithY;
  double m_Day, m_Glow, m_Opposite, m_Ring;  // weights
};

}  // namespace astro
