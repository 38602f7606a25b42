// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Resonance with the tesseral harmonics of the Earth: the report's deep-space initialization and its
// numerical integration of the resonant longitude. The symbols G and F are the eccentricity and inclination
// functions of Spacetrack Report No. 3, section 10, with the indices that they have there.
#include <cmath>

#include "astro/constants.h"

#include "companions/astro/satellites/sgp4.h"

namespace astro_internal {
namespace {

using astro::kTurn;

constexpr double kEarthTurn = 4.37526908801129966e-3;  // radians per minute
constexpr double kStep = 720.0;                        // minutes of the integration

// Mean motions of the two resonances, radians per minute.
constexpr double kOneDayLow = 0.0034906585, kOneDayHigh = 0.0052359877;
constexpr double kHalfDayLow = 8.26e-3, kHalfDayHigh = 9.24e-3;
constexpr double kHalfDayEccentricity = 0.5;

double Cubic(double c0, double c1, double c2, double c3, double e) {
  return c0 + e * (c1 + e * (c2 + e * c3));
}

// The eccentricity functions of the half-day resonance as polynomials, which
// change at certain eccentricities.
struct EccentricityFunctions {
  double g201, g211, g310, g322, g410, g422, g520, g521, g532, g533;
};

EccentricityFunctions MakeEccentricityFunctions(double e) {
  EccentricityFunctions g;
  g.g201 = -0.306 - (e - 0.64) * 0.440;
  if (e <= 0.65) {
    g.g211 = Cubic(3.616, -13.2470, 16.2900, 0.0, e);
    g.g310 = Cubic(-19.302, 117.3900, -228.4190, 156.5910, e);
    g.g322 = Cubic(-18.9068, 109.7927, -214.6334, 146.5816, e);
    g.g410 = Cubic(-41.122, 242.6940, -471.0940, 313.9530, e);
    g.g422 = Cubic(-146.407, 841.8800, -1629.014, 1083.4350, e);
    g.g520 = Cubic(-532.114, 3017.977, -5740.032, 3708.2760, e);
  } else {
    g.g211 = Cubic(-72.099, 331.819, -508.738, 266.724, e);
    g.g310 = Cubic(-346.844, 1582.851, -2415.925, 1246.113, e);
    g.g322 = Cubic(-342.585, 1554.908, -2366.899, 1215.972, e);
    g.g410 = Cubic(-1052.797, 4758.686, -7193.992, 3651.957, e);
    g.g422 = Cubic(-3581.690, 16178.110, -24462.770, 12422.520, e);
    g.g520 = e > 0.715 ? Cubic(-5149.66, 29936.92, -54087.36, 31324.56, e)
                       : Cubic(1464.74, -4664.75, 3763.64, 0.0, e);
  }
  if (e < 0.7) {
    g.g533 = Cubic(-919.22770, 4988.6100, -9064.7700, 5542.21, e);
    g.g521 = Cubic(-822.71072, 4568.6173, -8491.4146, 5337.524, e);
    g.g532 = Cubic(-853.66600, 4690.2500, -8624.7700, 5341.4, e);
  } else {
    g.g533 = Cubic(-37995.780, 161616.52, -229838.20, 109377.94, e);
    g.g521 = Cubic(-51752.104, 218913.95, -309468.16, 146349.42, e);
    g.g532 = Cubic(-40023.880, 170470.89, -242699.48, 115605.82, e);
  }
  return g;
}

void AddTerm(Resonance& r, double factor, double phase, int longitudes, int perigees) {
  r.terms[r.count++] = {factor, phase, longitudes, perigees};
}

void AddHalfDayTerms(const MeanOrbit& o, Resonance& r) {
  constexpr double kG22 = 5.7686396, kG32 = 0.95240898, kG44 = 1.8014998, kG52 = 1.0508330, kG54 = 4.4108898;
  constexpr double kRoot22 = 1.7891679e-6, kRoot32 = 3.7393792e-7, kRoot44 = 7.3636953e-9;
  constexpr double kRoot52 = 1.1428639e-7, kRoot54 = 2.1765803e-9;
  const EccentricityFunctions g = MakeEccentricityFunctions(o.e);
  const double c = std::cos(o.i), s = std::sin(o.i);
  const double c2 = c * c, s2 = s * s;
  const double f220 = 0.75 * (1.0 + 2.0 * c + c2);
  const double f221 = 1.5 * s2;
  const double f321 = 1.875 * s * (1.0 - 2.0 * c - 3.0 * c2);
  const double f322 = -1.875 * s * (1.0 + 2.0 * c - 3.0 * c2);
  const double f441 = 35.0 * s2 * f220;
  const double f442 = 39.3750 * s2 * s2;
  const double f522 =
      9.84375 * s * (s2 * (1.0 - 2.0 * c - 5.0 * c2) + 0.33333333 * (-2.0 + 4.0 * c + 6.0 * c2));
  const double f523 =
      s * (4.92187512 * s2 * (-2.0 - 4.0 * c + 10.0 * c2) + 6.56250012 * (1.0 + 2.0 * c - 3.0 * c2));
  const double f542 = 29.53125 * s * (2.0 - 8.0 * c + c2 * (-12.0 + 8.0 * c + 10.0 * c2));
  const double f543 = 29.53125 * s * (-2.0 - 8.0 * c + c2 * (12.0 + 8.0 * c - 10.0 * c2));
  const double inverseAxis = 1.0 / AxisOf(o.n);
  double scale = 3.0 * o.n * o.n * inverseAxis * inverseAxis;
  AddTerm(r, scale * kRoot22 * f220 * g.g201, kG22, 1, 2);
  AddTerm(r, scale * kRoot22 * f221 * g.g211, kG22, 1, 0);
  scale *= inverseAxis;
  AddTerm(r, scale * kRoot32 * f321 * g.g310, kG32, 1, 1);
  AddTerm(r, scale * kRoot32 * f322 * g.g322, kG32, 1, -1);
  scale *= inverseAxis;
  AddTerm(r, 2.0 * scale * kRoot44 * f441 * g.g410, kG44, 2, 2);
  AddTerm(r, 2.0 * scale * kRoot44 * f442 * g.g422, kG44, 2, 0);
  scale *= inverseAxis;
  AddTerm(r, scale * kRoot52 * f522 * g.g520, kG52, 1, 1);
  AddTerm(r, scale * kRoot52 * f523 * g.g532, kG52, 1, -1);
  AddTerm(r, 2.0 * scale * kRoot54 * f542 * g.g521, kG54, 2, 1);
  AddTerm(r, 2.0 * scale * kRoot54 * f543 * g.g533, kG54, 2, -1);
}

void AddOneDayTerms(const MeanOrbit& o, Resonance& r) {
  constexpr double kQ22 = 1.7891679e-6, kQ31 = 2.1460748e-6, kQ33 = 2.2123015e-7;
  constexpr double kPhase22 = 0.13130908, kPhase31 = 2.8843198, kPhase33 = 0.37448087;
  const double c = std::cos(o.i), s = std::sin(o.i);
  const double e2 = o.e * o.e;
  const double g200 = 1.0 + e2 * (-2.5 + 0.8125 * e2);
  const double g310 = 1.0 + 2.0 * e2;
  const double g300 = 1.0 + e2 * (-6.0 + 6.60937 * e2);
  const double f220 = 0.75 * (1.0 + c) * (1.0 + c);
  const double f311 = 0.9375 * s * s * (1.0 + 3.0 * c) - 0.75 * (1.0 + c);
  const double f330 = 1.875 * (1.0 + c) * (1.0 + c) * (1.0 + c);
  const double inverseAxis = 1.0 / AxisOf(o.n);
  const double scale = 3.0 * o.n * o.n * inverseAxis * inverseAxis;
  AddTerm(r, scale * f311 * g310 * kQ31 * inverseAxis, kPhase22, 1, 0);
  AddTerm(r, 2.0 * scale * f220 * g200 * kQ22, 2.0 * kPhase31, 2, 0);
  AddTerm(r, 3.0 * scale * f330 * g300 * kQ33 * inverseAxis, 3.0 * kPhase33, 3, 0);
}

struct Rates {
  double motion;        // of the mean motion
  double motionChange;  // and of that
  double longitude;
};

Rates RatesAt(const Resonance& r) {
  const double perigee = r.perigee + r.perigeeRate * r.t;
  Rates rates = {0.0, 0.0, r.motion + r.longitudeRate};
  for (int k = 0; k < r.count; ++k) {
    const ResonanceTerm& term = r.terms[k];
    const double angle = term.longitudes * r.longitude + term.perigees * perigee - term.phase;
    rates.motion += term.factor * std::sin(angle);
    rates.motionChange += term.longitudes * term.factor * std::cos(angle);
  }
  rates.motionChange *= rates.longitude;
  return rates;
}

void Restart(Resonance& r) {
  r.t = 0.0;
  r.longitude = r.epochLongitude;
  r.motion = r.epochMotion;
}

}  // namespace

Resonance MakeResonance(const NearEarth& model, const LunarSolar& lunarSolar, double siderealEpoch) {
  const MeanOrbit& o = model.epoch;
  Resonance r = {};
  r.siderealEpoch = siderealEpoch;
  r.perigee = o.perigee;
  r.perigeeRate = model.perigeeRate;
  r.epochMotion = o.n;
  const double nodeRate = model.nodeRate + lunarSolar.nodeRate;
  const double anomalyRate = model.anomalyRate + lunarSolar.anomalyRate;
  if (o.n > kOneDayLow && o.n < kOneDayHigh) {
    r.kind = ResonanceKind::kOneDay;
    AddOneDayTerms(o, r);
    r.epochLongitude = std::fmod(o.anomaly + o.node + o.perigee - siderealEpoch, kTurn);
    r.longitudeRate = anomalyRate + model.perigeeRate + lunarSolar.perigeeRate + nodeRate - kEarthTurn - o.n;
  } else if (o.n >= kHalfDayLow && o.n <= kHalfDayHigh && o.e >= kHalfDayEccentricity) {
    r.kind = ResonanceKind::kHalfDay;
    AddHalfDayTerms(o, r);
    r.epochLongitude = std::fmod(o.anomaly + 2.0 * o.node - 2.0 * siderealEpoch, kTurn);
    r.longitudeRate = anomalyRate + 2.0 * (nodeRate - kEarthTurn) - o.n;
  }
  Restart(r);
  return r;
}

void ApplyResonance(Resonance& r, double t, MeanOrbit& orbit) {
  if (r.kind == ResonanceKind::kNone) return;
  if (r.t * t <= 0.0 || std::fabs(t) < std::fabs(r.t)) Restart(r);
  const double step = t > 0.0 ? kStep : -kStep;
  Rates rates = RatesAt(r);
  while (std::fabs(t - r.t) >= kStep) {
    r.longitude += step * rates.longitude + 0.5 * step * step * rates.motion;
    r.motion += step * rates.motion + 0.5 * step * step * rates.motionChange;
    r.t += step;
    rates = RatesAt(r);
  }
  const double left = t - r.t;
  orbit.n = r.motion + left * (rates.motion + 0.5 * left * rates.motionChange);
  const double longitude = r.longitude + left * (rates.longitude + 0.5 * left * rates.motion);
  const double sidereal = std::fmod(r.siderealEpoch + t * kEarthTurn, kTurn);
  orbit.anomaly = r.kind == ResonanceKind::kHalfDay ? longitude - 2.0 * orbit.node + 2.0 * sidereal
                                                    : longitude - orbit.node - orbit.perigee + sidereal;
}

}  // namespace astro_internal
