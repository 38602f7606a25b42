// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "astro/astro.h"
#include "measure.h"
#include "utils/text.h"

// Published elements that several tests of the solar-system model use.
namespace astro_test {

inline const SSO_ID kCeresId(FourCC("astr"), 1);

// JPL Small-Body Database, mid 2022.
inline OrbitalElements Ceres() {
  OrbitalElements elements;
  elements.epoch = 2459800.5;
  elements.a = 2.766619044655007;
  elements.e = 0.07863575691875528;
  elements.i = 10.58679512153367 * kDegree;
  elements.om = 80.2664361119415 * kDegree;
  elements.w = 73.53162522557164 * kDegree;
  elements.M0 = 334.3271698971151 * kDegree;
  elements.n = 0.214180550572 * kDegree;
  elements.absMagnitude = 3.33f;
  elements.slope = 0.12f;
  return elements;
}

inline OrbitalElements Satellite(const char* line1, const char* line2) {
  OrbitalElements elements;
  int number = 0;
  std::string error;
  EXPECT_TRUE(ParseTwoLineElements(line1, line2, elements, number, error)) << error;
  return elements;
}

// The verification set of Vallado et al. 2006: number 5, and 28872, which falls within the hour.
inline OrbitalElements Vanguard() {
  return Satellite("1 00005U 58002B   00179.78495062  .00000023  00000-0  28098-4 0  4753",
                   "2 00005  34.2682 348.7242 1859667 331.7664  19.3264 10.82419157413667");
}
inline OrbitalElements FallingStage() {
  return Satellite("1 28872U 05037B   05333.02012661  .25992681  00000-0  24476-3 0  1534",
                   "2 28872  96.4736 157.9986 0303955 244.0492 110.6523 16.46015938 10708");
}

}  // namespace astro_test
