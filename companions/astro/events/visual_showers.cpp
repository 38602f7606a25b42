// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/constants.h"
#include "astro/meteor_showers.h"

namespace astro {

namespace {

constexpr MeteorShower MakeShower(const char (&code)[4], double longitude, double ra, double dec, double rate,
                                  double index) {
  MeteorShower shower;
  for (int i = 0; i < 3; ++i) shower.code[i] = code[i];
  shower.solarLongitude = longitude * kRadiansPerDegree;
  shower.ra = ra * kRadiansPerDegree;
  shower.dec = dec * kRadiansPerDegree;
  shower.zenithalRate = rate;
  shower.populationIndex = index;
  return shower;
}

// Solar longitude, right ascension and declination in degrees, zenithal rate, population index.
constexpr MeteorShower kShowers[] = {
    MakeShower("QUA", 283.15, 230.0, 49.0, 110.0, 2.1),  // January 4
    MakeShower("LYR", 32.32, 271.0, 34.0, 18.0, 2.1),   MakeShower("ETA", 45.5, 338.0, -1.0, 50.0, 2.4),
    MakeShower("SDA", 127.0, 340.0, -16.0, 25.0, 2.5),  MakeShower("CAP", 127.0, 307.0, -10.0, 5.0, 2.5),
    MakeShower("PER", 140.0, 48.0, 58.0, 100.0, 2.2),   MakeShower("AUR", 158.6, 91.0, 39.0, 6.0, 2.5),
    MakeShower("DRA", 195.4, 262.0, 54.0, 5.0, 2.6),    MakeShower("ORI", 208.0, 95.0, 16.0, 20.0, 2.5),
    MakeShower("STA", 223.0, 52.0, 15.0, 7.0, 2.3),     MakeShower("NTA", 230.0, 58.0, 22.0, 5.0, 2.3),
    MakeShower("LEO", 235.27, 152.0, 22.0, 10.0, 2.5),  MakeShower("GEM", 262.2, 112.0, 33.0, 150.0, 2.6),
    MakeShower("URS", 270.7, 217.0, 76.0, 10.0, 2.8),
};

}  // namespace

std::span<const MeteorShower> GetVisualShowers() { return kShowers; }

}  // namespace astro
