// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/orbits/kepler_equation.h"

#include <cmath>

#include "astro/constants.h"

namespace astro_internal {
namespace {

using astro::kPi;

// One turn in two parts: the first has so few digits that its product with a number of turns is exact while
// the angle stays below kMostExactTurns. The library's remainder would take longer than Kepler's equation.
constexpr double kTurnHigh = 6.283185307169333;
constexpr double kTurnLow = 1.0253376606378076e-11;
constexpr double kMostExactTurns = 1e6;

// Below this the difference of an angle and its sine comes from the series: the
// difference itself would lose digits.
constexpr double kSeriesBelow = 1.0;

// Where the largest term of a cubic would overflow when squared.
constexpr double kHuge = 1e100;

// (x - sin x) / x^3 and, with the opposite sign of x^2, (sinh x - x) / x^3: the sum of (-x^2)^k / (2k + 3)!
// for |x| <= 1; the first term left out is 4e-20 of the first.
double CubicRest(double minusSquare) {
  constexpr double kInverseFactorials[] = {
      1.0 / 6.0,        1.0 / 120.0,        1.0 / 5040.0,          1.0 / 362880.0,
      1.0 / 39916800.0, 1.0 / 6227020800.0, 1.0 / 1307674368000.0, 1.0 / 355687428096000.0};
  double sum = kInverseFactorials[7];
  for (int k = 6; k >= 0; --k) sum = sum * minusSquare + kInverseFactorials[k];
  return sum;
}

// The real root of t^3 + 3 p t = 2 s for p >= 0, |s| < kHuge, without the
// difference that Cardano's formula has.
double SolveCubic(double p, double s) {
  const double size = std::fabs(s);
  if (size == 0.0) return s;
  const double w = std::cbrt(size + std::sqrt(size * size + p * p * p));
  const double ratio = p / w;
  return 2.0 * s / (w * w + p + ratio * ratio);
}

// The correction of the fifth order from the value of a function and its derivatives: the
// series of its inverse, which costs one division.
double FifthOrderStep(double f0, double f1, double f2, double f3, double f4) {
  const double inverse = 1.0 / f1;
  const double h = f0 * inverse;
  const double a = f2 * inverse / 2.0;
  const double b = f3 * inverse / 6.0;
  const double c = f4 * inverse / 24.0;
  return -h * (1.0 + h * (a + h * ((2.0 * a * a - b) + h * (5.0 * a * (a * a - b) + c))));
}

// A first guess whose error is below 0.0004 for every e and M: the root of a cubic that replaces the sine by
// a Pade approximation (F. L. Markley, Kepler equation solver, Celestial Mechanics and Dynamical Astronomy
// 63, 101, 1995, equations 5, 9, 10, 14, 15 and 20). 0 < mean <= pi.
double GuessEllipse(double e, double mean) {
  constexpr double kScale = 1.0 / (kPi * kPi - 6.0);
  const double alpha = 3.0 * kPi * kPi * kScale + 1.6 * kPi * kScale * (kPi - mean) / (1.0 + e);
  const double d = 3.0 * (1.0 - e) + alpha * e;
  const double q = 2.0 * alpha * d * (1.0 - e) - mean * mean;
  const double r = (3.0 * alpha * d * (d - 1.0 + e) + mean * mean) * mean;
  const double root = std::cbrt(r + std::sqrt(q * q * q + r * r));
  const double w = root * root;
  const double divisor = w * w + w * q + q * q;
  return (2.0 * r * w + mean * divisor) / (d * divisor);
}

// sin and cos of `angle` + `step` from those of `angle`, for a step below
// 0.001: no further call of the functions.
EllipticAnomaly Advance(double angle, double sine, double cosine, double step) {
  const double square = step * step;
  const double stepSine = step * (1.0 - square / 6.0 * (1.0 - square / 20.0));
  const double stepVersine = 0.5 * square * (1.0 - square / 12.0 * (1.0 - square / 30.0));
  EllipticAnomaly result;
  result.angle = angle + step;
  result.sine = sine + (cosine * stepSine - sine * stepVersine);
  result.cosine = cosine - (sine * stepSine + cosine * stepVersine);
  result.versine =
      result.cosine > 0.5 ? result.sine * result.sine / (1.0 + result.cosine) : 1.0 - result.cosine;
  return result;
}

// e sinh H - H - M, without the difference of like numbers where H is small.
double HyperbolaResidual(double e, double h, double sine, double mean) {
  if (h < kSeriesBelow) return ((e - 1.0) * h - mean) + e * h * h * h * CubicRest(h * h);
  return (e * sine - h) - mean;
}

// The hyperbolic functions of h, 0 <= h < kSeriesBelow.
HyperbolicAnomaly MakeSmallAnomaly(double h) {
  const double sine = h + h * h * h * CubicRest(h * h);
  const double cosine = std::sqrt(1.0 + sine * sine);
  return {h, sine, cosine, sine * sine / (1.0 + cosine)};
}

HyperbolicAnomaly MakeHyperbolicAnomaly(double h) {
  if (h < kSeriesBelow) return MakeSmallAnomaly(h);
  const double power = std::exp(h);
  const double cosine = 0.5 * (power + 1.0 / power);
  return {h, 0.5 * (power - 1.0 / power), cosine, cosine - 1.0};
}

// The same for the solution, where the equation itself gives the sine without
// the digits that an exponential loses.
HyperbolicAnomaly MakeSolution(double e, double mean, double h) {
  if (h < kSeriesBelow) return MakeSmallAnomaly(h);
  const double sine = (mean + h) / e;
  const double cosine = std::hypot(1.0, sine);
  return {h, sine, cosine, cosine - 1.0};
}

// Never below the solution. The cubic leaves out terms that are all positive, so its root is too large; one
// step of H = asinh((M + H) / e) keeps that and makes the guess good for large M too. mean > 0.
double GuessHyperbola(double e, double mean) {
  const double size = mean / e;
  if (size > kHuge) return std::asinh(size);
  const double root = SolveCubic(2.0 * (e - 1.0) / e, 3.0 * size);
  return root < 0.5 ? root : std::asinh(size + root / e);
}

}  // namespace

EllipticAnomaly SolveEllipse(double e, double meanAnomaly) {
  const double mean = std::fabs(meanAnomaly);
  if (!(mean > 0.0)) return {meanAnomaly, meanAnomaly, 1.0, meanAnomaly * meanAnomaly};
  const double guess = GuessEllipse(e, mean);
  const double sine = std::sin(guess);
  const double cosine = std::cos(guess);
  const double rest = guess < kSeriesBelow ? guess * guess * guess * CubicRest(-guess * guess) : guess - sine;
  const double versine = cosine > 0.5 ? sine * sine / (1.0 + cosine) : 1.0 - cosine;
  const double f0 = ((1.0 - e) * guess - mean) + e * rest;
  const double f1 = (1.0 - e) + e * versine;
  const double step = FifthOrderStep(f0, f1, e * sine, e * cosine, -e * sine);
  EllipticAnomaly result = Advance(guess, sine, cosine, step);
  if (meanAnomaly < 0.0) {
    result.angle = -result.angle;
    result.sine = -result.sine;
  }
  return result;
}

HyperbolicAnomaly SolveHyperbola(double e, double meanAnomaly) {
  const double mean = std::fabs(meanAnomaly);
  if (!(mean > 0.0)) return {meanAnomaly, meanAnomaly, 1.0, meanAnomaly * meanAnomaly};
  double h = GuessHyperbola(e, mean);
  // Two rounds are the rule. Past the range of double the step is not a number,
  // and the guess is as good as can be.
  for (int round = 0; round < 8; ++round) {
    const HyperbolicAnomaly at = MakeHyperbolicAnomaly(h);
    const double f1 = (e - 1.0) + e * at.versine;
    const double f2 = e * at.sine;
    const double step = FifthOrderStep(HyperbolaResidual(e, h, at.sine, mean), f1, f2, e * at.cosine, f2);
    if (!std::isfinite(step)) break;
    h += step;
    if (std::fabs(step) <= 5e-4 * std::fmin(h, 1.0)) break;
  }
  HyperbolicAnomaly result = MakeSolution(e, mean, h);
  if (meanAnomaly < 0.0) {
    result.argument = -result.argument;
    result.sine = -result.sine;
  }
  return result;
}

double SolveParabola(double meanAnomaly) {
  if (!(std::fabs(meanAnomaly) < kHuge)) return std::cbrt(3.0 * meanAnomaly);
  return SolveCubic(1.0, 1.5 * meanAnomaly);
}

double ReduceToOneTurn(double angle) {
  if (std::fabs(angle) <= kPi) return angle;
  if (!(std::fabs(angle) < kMostExactTurns)) return std::remainder(angle, 2.0 * kPi);
  const int turns = static_cast<int>(angle * (0.5 / kPi) + std::copysign(0.5, angle));
  return (angle - turns * kTurnHigh) - turns * kTurnLow;
}

}  // namespace astro_internal
