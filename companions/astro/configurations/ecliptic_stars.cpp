// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/planet_events.h"

#include "astro/constants.h"
#include "utils/text.h"

namespace astro {

namespace {

constexpr double kDegree = kRadiansPerDegree;
constexpr double kMilliarcsecond = kRadiansPerArcsecond / 1000.0;

// Degrees, J2000.0; milliarcseconds a year.
constexpr StarRecord MakeStar(double ra, double dec, double motionRA, double motionDec, float magnitude) {
  StarRecord star;
  star.ra = ra * kDegree;
  star.dec = dec * kDegree;
  star.properMotionRA = motionRA * kMilliarcsecond;
  star.properMotionDec = motionDec * kMilliarcsecond;
  star.visMagnitude = magnitude;
  return star;
}

constexpr StarRecord kStars[] = {
    MakeStar(56.8711521, 24.1051357, 19.34, -43.67, 2.87f),     // Alcyone
    MakeStar(68.9801627, 16.5093020, 63.45, -188.94, 0.85f),    // Aldebaran
    MakeStar(116.3289577, 28.0261989, -626.55, -45.80, 1.14f),  // Pollux
    MakeStar(152.0929624, 11.9672088, -248.73, 5.59, 1.35f),    // Regulus
    MakeStar(201.2982474, -11.1613195, -42.35, -30.67, 0.98f),  // Spica
    MakeStar(247.3519154, -26.4320026, -12.11, -23.30, 0.96f),  // Antares
};

constexpr SkyTarget TargetOf(int number, int index) {
  return {SSO_ID(FourCC("star"), number), &kStars[index]};
}

constexpr SkyTarget kTargets[] = {TargetOf(1165, 0), TargetOf(1457, 1), TargetOf(2990, 2),
                                  TargetOf(3982, 3), TargetOf(5056, 4), TargetOf(6134, 5)};

}  // namespace

std::span<const SkyTarget> GetEclipticStars() { return kTargets; }

}  // namespace astro
