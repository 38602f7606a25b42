// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Secular effects of the zonal harmonics and of the drag of the air: the report's
// initialization for SGP4 and its section on secular effects of gravity and drag; the symbols
// of the drag coefficients (C, D, eta, xi) are its own.
#include <cmath>

#include "companions/astro/satellites/sgp4.h"

namespace astro_internal {
namespace {

constexpr double kSmallEccentricity = 1e-4;  // below it the terms with 1 / e are dropped

double Square(double x) { return x * x; }
double Cube(double x) { return x * x * x; }

// The height of the atmosphere's reference level and the density that goes with
// it, by the height of the perigee.
struct Atmosphere {
  double level;    // s, Earth radii from the centre
  double density;  // (q0 - s)^4
};

Atmosphere AtmosphereAt(double perigeeRadius) {
  const double height = (perigeeRadius - 1.0) * kEarthRadius;
  double level = 78.0;
  if (height < 98.0)
    level = 20.0;
  else if (height < 156.0)
    level = height - 78.0;
  return {level / kEarthRadius + 1.0, Square(Square((120.0 - level) / kEarthRadius))};
}

// Rates of the angles by J2, J2^2 and J4 (Brouwer 1959).
void SetGravityRates(double axis, NearEarth& model) {
  const MeanOrbit& o = model.epoch;
  const double c = std::cos(o.i), c2 = c * c, c4 = c2 * c2;
  const double betaSquare = 1.0 - o.e * o.e;
  const double inverseP = 1.0 / Square(axis * betaSquare);
  const double first = 1.5 * kJ2 * inverseP * o.n;
  const double second = 0.5 * first * kJ2 * inverseP;
  const double fourth = -0.46875 * kJ4 * inverseP * inverseP * o.n;
  const double beta = std::sqrt(betaSquare);
  model.anomalyRate =
      o.n + 0.5 * first * beta * (3.0 * c2 - 1.0) + 0.0625 * second * beta * (13.0 - 78.0 * c2 + 137.0 * c4);
  model.perigeeRate = -0.5 * first * (1.0 - 5.0 * c2) + 0.0625 * second * (7.0 - 114.0 * c2 + 395.0 * c4) +
                      fourth * (3.0 - 36.0 * c2 + 49.0 * c4);
  model.nodeRate = -first * c + (0.5 * second * (4.0 - 19.0 * c2) + 2.0 * fourth * (3.0 - 7.0 * c2)) * c;
  model.nodeDrag = -3.5 * betaSquare * first * c * model.c1;
}

// D2 to D4 and the powers of time in the mean longitude.
void SetHigherDrag(double axis, double level, double xi, NearEarth& model) {
  const double c1 = model.c1;
  model.d2 = 4.0 * axis * xi * c1 * c1;
  const double part = model.d2 * xi * c1 / 3.0;
  model.d3 = (17.0 * axis + level) * part;
  model.d4 = 0.5 * part * axis * xi * (221.0 * axis + 31.0 * level) * c1;
  model.t3 = model.d2 + 2.0 * c1 * c1;
  model.t4 = 0.25 * (3.0 * model.d3 + c1 * (12.0 * model.d2 + 10.0 * c1 * c1));
  model.t5 = 0.2 * (3.0 * model.d4 + 12.0 * c1 * model.d3 + 6.0 * model.d2 * model.d2 +
                    15.0 * c1 * c1 * (2.0 * model.d2 + c1 * c1));
}

void SetDrag(double axis, NearEarth& model) {
  const MeanOrbit& o = model.epoch;
  const double c = std::cos(o.i), s = std::sin(o.i);
  const double zonal = 3.0 * c * c - 1.0;
  const double betaSquare = 1.0 - o.e * o.e;
  const Atmosphere air = AtmosphereAt(axis * (1.0 - o.e));
  const double xi = 1.0 / (axis - air.level);
  const double eta = axis * o.e * xi;
  const double eta2 = eta * eta, eEta = o.e * eta;
  const double psi2 = std::fabs(1.0 - eta2);
  const double density = air.density * Square(Square(xi));
  const double factor = density / std::pow(psi2, 3.5);
  const double c2 = factor * o.n *
                    (axis * (1.0 + 1.5 * eta2 + eEta * (4.0 + eta2)) +
                     0.375 * kJ2 * xi / psi2 * zonal * (8.0 + 3.0 * eta2 * (8.0 + eta2)));
  const double flattening =
      -3.0 * zonal * (1.0 - 2.0 * eEta + eta2 * (1.5 - 0.5 * eEta)) +
      0.75 * (1.0 - c * c) * (2.0 * eta2 - eEta * (1.0 + eta2)) * std::cos(2.0 * o.perigee);
  const bool isRound = o.e <= kSmallEccentricity;
  const double c3 = isRound ? 0.0 : -2.0 * density * xi * (kJ3 / kJ2) * o.n * s / o.e;
  model.eta = eta;
  model.c1 = model.drag * c2;
  model.c4 = 2.0 * o.n * factor * axis * betaSquare *
             (eta * (2.0 + 0.5 * eta2) + o.e * (0.5 + 2.0 * eta2) - kJ2 * xi / (axis * psi2) * flattening);
  model.c5 = 2.0 * factor * axis * betaSquare * (1.0 + 2.75 * (eta2 + eEta) + eEta * eta2);
  model.t2 = 1.5 * model.c1;
  model.perigeeDrag = model.drag * c3 * std::cos(o.perigee);
  model.anomalyDrag = isRound ? 0.0 : -2.0 / 3.0 * density * model.drag / eEta;
  model.sineEpoch = std::sin(o.anomaly);
  model.cubeEpoch = Cube(1.0 + eta * std::cos(o.anomaly));
  if (!model.isSimple) SetHigherDrag(axis, air.level, xi, model);
}

}  // namespace

double AxisOf(double meanMotion) { return std::pow(kKe / meanMotion, 2.0 / 3.0); }

double BrouwerMeanMotion(double kozai, double e, double i) {
  const double c = std::cos(i);
  const double betaSquare = 1.0 - e * e;
  const double strength = 0.75 * kJ2 * (3.0 * c * c - 1.0) / (std::sqrt(betaSquare) * betaSquare);
  const double axis = AxisOf(kozai);
  const double first = strength / (axis * axis);
  const double better = axis * (1.0 - first * first - first * (1.0 / 3.0 + 134.0 * first * first / 81.0));
  return kozai / (1.0 + strength / (better * better));
}

NearEarth MakeNearEarth(const MeanOrbit& epoch, double drag, bool isDeepSpace) {
  NearEarth model = {};
  model.epoch = epoch;
  model.drag = drag;
  const double axis = AxisOf(epoch.n);
  model.isSimple = isDeepSpace || axis * (1.0 - epoch.e) < 220.0 / kEarthRadius + 1.0;
  SetDrag(axis, model);
  SetGravityRates(axis, model);
  return model;
}

MeanOrbit AdvanceNearEarth(const NearEarth& model, double t, DragEffect& effect) {
  const double t2 = t * t;
  MeanOrbit orbit = model.epoch;
  orbit.anomaly += model.anomalyRate * t;
  orbit.perigee += model.perigeeRate * t;
  orbit.node += model.nodeRate * t + model.nodeDrag * t2;
  effect = {1.0 - model.c1 * t, model.drag * model.c4 * t, model.t2 * t2};
  if (model.isSimple) return orbit;

  const double shift =
      model.perigeeDrag * t +
      model.anomalyDrag * (Cube(1.0 + model.eta * std::cos(orbit.anomaly)) - model.cubeEpoch);
  orbit.anomaly += shift;
  orbit.perigee -= shift;
  const double t3 = t2 * t, t4 = t3 * t;
  effect.axisRoot -= model.d2 * t2 + model.d3 * t3 + model.d4 * t4;
  effect.eccentricity += model.drag * model.c5 * (std::sin(orbit.anomaly) - model.sineEpoch);
  effect.longitude += model.t3 * t3 + t4 * (model.t4 + t * model.t5);
  return orbit;
}

}  // namespace astro_internal
