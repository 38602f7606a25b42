// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// How bright the clear sky is by day, in twilight and at night, and what the naked eye sees in it. Angles are
// radians, luminances cd/m2, in the visual band. Everything is continuous, and finite for every argument: one
// that is not finite or lies out of its range counts as the nearest end of it (not a number: the lower end).
// Nothing here allocates or keeps state; every thread may call.
//
// Sources
//   Kasten & Young 1989, Applied Optics 28, 4735: air mass
//   Krisciunas & Schaefer 1991, PASP 103, 1033: the Moon's magnitude, light scattered once by air and haze
//   Schaefer 1993, Vistas in Astronomy 36, 311, and 1998, Sky & Telescope 95 (5), 57: the same for sunlight,
//     light scattered again, the shape of twilight and of the night's own glow, the limit of the eye
//   Patat, Ugolnikov & Postylyakov 2006, A&A 455, 385: the zenith in twilight, Sun 5 to 15 degrees below the
//     horizon
//   Seidelmann (ed.) 1992, Explanatory Supplement to the Astronomical Almanac, section 9.33: illuminance
//     around sunset, which the zenith is taken to follow from 5 degrees below the horizon to the horizon
#pragma once

#include "astro/api.h"
#include "astro/constants.h"

namespace astro {

// Surface brightness: 0 magnitudes per square arcsecond are 1.08e5 cd/m2. The magnitude of a luminance of 0
// or less is that of 1e-12.
ASTRO_API double GetLuminance(double magnitudesPerSquareArcsecond);
ASTRO_API double GetSurfaceMagnitude(double luminance);

// How many times the air above the place light goes through at an altitude: 1 at the zenith, 37.9 at the
// horizon and below it. To 0.1 percent.
ASTRO_API double GetAirMass(double altitude);

// Visual magnitudes lost per air mass, and the glow of a night sky without Moon and twilight, magnitudes per
// square arcsecond at the zenith: those of a place in the country.
inline constexpr double kClearExtinction = 0.2;
inline constexpr double kDarkSky = 21.8;

// What lights the sky of a moment and a place. Angles in radians.
struct SkyLights {
  double sunAltitude = -0.5 * kPi;  // -pi/2 to pi/2
  double sunlight = 1.0;            // the part of the Sun's light that no eclipse takes, 0 to 1
  double moonAltitude = -0.5 * kPi;
  double moonPhaseAngle = kPi;           // 0 full to pi new
  double moonlight = 1.0;                // as sunlight
  double extinction = kClearExtinction;  // 0.05 to 1
  double darkness = kDarkSky;            // 10 to 23
};

// The sky of one moment. Measured skies differ from it by 20 percent at night, by half in moonlight and
// twilight and by a factor of 2 by day.
class ASTRO_API SkyBrightness {
 public:
  explicit SkyBrightness(const SkyLights& lights);

  // The night's own, and light of Sun and Moon that air scatters.
  struct Parts {
    double own, scattered;
  };

  // Of a direction at an altitude (one below the horizon counts as the horizon), that many radians away from
  // the Sun and the Moon.
  Parts GetParts(double altitude, double fromSun, double fromMoon) const;
  double GetLuminance(double altitude, double fromSun, double fromMoon) const {
    const Parts parts = GetParts(altitude, fromSun, fromMoon);
    return parts.own + parts.scattered;
  }

 private:
  struct Lamp {
    double day;       // factor of what is scattered by day
    double direct;    // the part of the light that reaches the ground
    double twilight;  // luminance of the zenith in twilight, against the part of light scattered there
  };
  struct Path;
  static Lamp MakeLamp(double flux, double altitude, double extinction);
  double Scatter(const Lamp& lamp, const Path& path, double fromLamp) const;

  double m_Extinction, m_Zenith;
  double m_Transparency;  // the part of light that comes through one air mass
  Lamp m_Sun, m_Moon;
};

// The magnitude of the faintest star that the naked eye sees at the zenith against a sky of that luminance.
ASTRO_API double GetNakedEyeLimit(double luminance);

// SkyLights::darkness of a site: of a class of Bortle's scale (2001, Sky & Telescope 101 (2), 126), 1 to 9,
// the middle of the surface brightnesses that sky quality meters read at such sites (bounds of the classes
// 21.99, 21.89, 21.69, 20.49, 19.50, 18.94, 18.38, 17.8); and that in which the naked eye's limit at the
// zenith is a magnitude, within the range of the darkness.
ASTRO_API double GetDarknessOfBortle(int bortleClass);
ASTRO_API double GetDarknessOfLimit(double magnitude);

}  // namespace astro
