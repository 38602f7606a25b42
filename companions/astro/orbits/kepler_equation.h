// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Kepler's equation with what follows from its solution at no cost. The relative error of the anomaly stays
// at a few units of the last place for every eccentricity, also where the conic is all but a parabola and the
// anomaly tiny: whoever then forms positions without differences of like numbers keeps all digits.
#pragma once

namespace astro_internal {

struct EllipticAnomaly {
  double angle;  // eccentric anomaly E, radians
  double sine, cosine;
  double versine;  // 1 - cos E, to full relative precision
};

// 0 <= e < 1, -pi <= meanAnomaly <= pi. A number that is none gives the same.
EllipticAnomaly SolveEllipse(double e, double meanAnomaly);

struct HyperbolicAnomaly {
  double argument;  // H
  double sine, cosine;
  double versine;  // cosh H - 1, to full relative precision
};

// e > 1; any mean anomaly. Hyperbolic functions past the range of double are infinite.
HyperbolicAnomaly SolveHyperbola(double e, double meanAnomaly);

// tan(nu/2) from t + t^3 / 3 = meanAnomaly.
double SolveParabola(double meanAnomaly);

// The nearest angle, -pi to pi, that differs by whole turns.
double ReduceToOneTurn(double angle);

}  // namespace astro_internal
