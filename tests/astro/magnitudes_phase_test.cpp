// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// Phases that no observer on the Earth sees of the outer planets, spacecraft do: the terms of A. Mallama &
// J. L. Hilton (2018, Astronomy and Computing 25, 10) worked out by hand.
#include <gtest/gtest.h>

#include "companions/astro/model/magnitudes.h"
#include "helpers/sky_place.h"

namespace {

constexpr double kDegree = 0.017453292519943295;

// 1 au from the Sun and from the observer, who both stand above the equator of Uranus' mean latitude 0.
double MagnitudeAt(int planet, double phase, double dateTT = 2451600.0) {
  const double across[3] = {0.0, 0.0, 1.0};
  const astro_internal::Illumination light = {1.0, 1.0, phase * kDegree, dateTT, across, across};
  return astro_internal::PlanetMagnitude(SSO_ID(astro::kPlanetKind, planet), light);
}

}  // namespace

TEST(MagnitudesPhase, NeptuneSeenFromAside) {
  EXPECT_NEAR(MagnitudeAt(8, 1.8), -7.00, 1e-6) << "below 1.9 degrees the phase changes nothing";
  EXPECT_NEAR(MagnitudeAt(8, 2.0), -6.98373, 1e-5);   // -7.00 + 0.015888 + 0.000385
  EXPECT_NEAR(MagnitudeAt(8, 90.0), -5.50606, 1e-5);  // -7.00 + 0.71496 + 0.77898
}

TEST(MagnitudesPhase, UranusSeenFromAside) {
  const double full = MagnitudeAt(7, 3.0);
  EXPECT_NEAR(MagnitudeAt(7, 0.0), full, 1e-9) << "below 3.1 degrees the phase changes nothing";
  EXPECT_NEAR(MagnitudeAt(7, 3.2) - full, 0.02215, 1e-5);   // 0.0210784 + 0.0010701
  EXPECT_NEAR(MagnitudeAt(7, 90.0) - full, 1.43928, 1e-5);  // 0.59283 + 0.84645
}
