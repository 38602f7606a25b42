// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The parts of the SGP4/SDP4 model, after F. R. Hoots & R. L. Roehrich, Spacetrack Report No. 3 (1980) and D.
// Vallado, P. Crawford, R. Hujsak & T. S. Kelso, Revisiting Spacetrack Report #3 (AIAA 2006-6753), called
// "the report" below. Units: radians, minutes, Earth radii.
#pragma once

#include "astro/satellite.h"

namespace astro_internal {

// WGS 72, as the report's table 2 has it: element sets are made with these constants.
inline constexpr double kEarthRadius = 6378.135;  // km
inline constexpr double kGravity = 398600.8;      // km^3 / s^2
// 60 / sqrt(kEarthRadius^3 / kGravity), Earth radii^1.5 / minute.
inline constexpr double kKe = 0.07436691613317342;
inline constexpr double kJ2 = 0.001082616;
inline constexpr double kJ3 = -0.00000253881;
inline constexpr double kJ4 = -0.00000165597;

// Mean elements at a moment.
struct MeanOrbit {
  double e;
  double i;
  double node;
  double perigee;  // argument of the perigee
  double anomaly;  // mean anomaly
  double n;        // mean motion of Brouwer's theory, radians per minute
};

// (mean motion in kKe)^(-2/3): the semi-major axis.
double AxisOf(double meanMotion);

// The mean motion of an element set (Kozai's) as that of Brouwer's theory: report, section on initialization.
double BrouwerMeanMotion(double kozai, double e, double i);

// What the Earth's flattening and the air do over long times.
struct NearEarth {
  MeanOrbit epoch;
  double anomalyRate, perigeeRate, nodeRate;  // radians per minute
  double drag;                                // B*
  bool isSimple;                              // perigee below 220 km, or deep space: the truncated drag terms
  double c1, c4, c5, d2, d3, d4;
  double t2, t3, t4, t5;  // of the mean longitude, by powers of time
  double nodeDrag, perigeeDrag, anomalyDrag;
  double eta, sineEpoch, cubeEpoch;
};

// How drag has changed the orbit since the epoch.
struct DragEffect {
  double axisRoot;      // the semi-major axis times the square of it
  double eccentricity;  // to be taken away
  double longitude;     // times the mean motion of the epoch, to be added
};

NearEarth MakeNearEarth(const MeanOrbit& epoch, double drag, bool isDeepSpace);
MeanOrbit AdvanceNearEarth(const NearEarth& model, double t, DragEffect& effect);

// What one of Sun and Moon does: factors of the functions of its true anomaly.
struct LunarSolarTerms {
  double anomaly, rate, eccentricity;  // of the body itself
  double e2, e3;
  double i2, i3;
  double l2, l3, l4;
  double g2, g3, g4;
  double h2, h3;
};

// Sun and Moon together.
struct LunarSolar {
  LunarSolarTerms sun, moon;
  double eRate, iRate, nodeRate, perigeeRate, anomalyRate;  // secular
};

LunarSolar MakeLunarSolar(const MeanOrbit& epoch, double daysSince1950);
void AddLunarSolarSecular(const LunarSolar& model, double t, MeanOrbit& orbit);
void AddLunarSolarPeriodics(const LunarSolar& model, double t, MeanOrbit& orbit);

// Orbits of one and two revolutions a day feel the same side of the Earth again and again.
enum class ResonanceKind { kNone, kOneDay, kHalfDay };

struct ResonanceTerm {
  double factor, phase;
  int longitudes;  // how often the resonant longitude is in the argument
  int perigees;    // and the argument of the perigee
};

struct Resonance {
  static constexpr int kMostTerms = 10;

  ResonanceKind kind = ResonanceKind::kNone;
  int count = 0;
  ResonanceTerm terms[kMostTerms];
  double epochLongitude, epochMotion, longitudeRate;
  double perigee, perigeeRate;
  double siderealEpoch;
  // How far the integration has come; it always goes in whole steps from the epoch, so what was
  // asked before has no influence on the result.
  double t = 0.0, longitude, motion;
};

Resonance MakeResonance(const NearEarth& model, const LunarSolar& lunarSolar, double siderealEpoch);
void ApplyResonance(Resonance& resonance, double t, MeanOrbit& orbit);

// Long-period and short-period terms of the Earth's flattening: from mean
// elements and semi-major axis to kilometres.
SatelliteFault ComputePlace(const MeanOrbit& orbit, double axis, double position[3], double velocity[3]);

}  // namespace astro_internal
