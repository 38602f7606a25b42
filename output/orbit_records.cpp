// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "output/orbit_records.h"

#include <cmath>

#include "astro/constants.h"
#include "astro/solar_system.h"
#include "common_interfaces/field_names.h"
#include "output/database_record.h"
#include "output/unusable_record.h"

namespace CommonInterfaces {

namespace {

using astro::kRadiansPerDegree;

// Revolutions a day to radians a minute: 2 pi / 1440.
constexpr double kRadiansPerMinute = astro::kTurn / astro::kMinutesPerDay;
// So near to 1 an eccentricity counts as that of a parabola.
constexpr double kParabolicRange = 1e-6;

// Radians per day for elements in au and a gravitational parameter in au^3 / day^2. For e >= 1 the element
// `a` is the perihelion distance q; q / (1 - e) is then the semi-major axis, negative.
double MeanMotion(double mu, double a, double e) {
  if (e < 1.0) return std::sqrt(mu / (a * a * a));
  const double q = a;
  if (std::abs(1.0 - e) < kParabolicRange) return std::sqrt(mu / (2.0 * q * q * q));
  const double axis = std::abs(q / (1.0 - e));
  return std::sqrt(mu / (axis * axis * axis));
}

// Of all that the model of the element set uses. What it does not, the record of a list may hold anything in:
// Kepler's orbits have no drag, two-line elements no axis, and SGP4 leaves the derivatives of the mean motion
// aside.
bool AreFinite(const OrbitalElements& elements) {
  const double own = elements.elementSet == kTwoLineElements ? elements.dragTerm : elements.a;
  for (const double value :
       {elements.epoch, elements.e, elements.i, elements.om, elements.w, elements.M0, elements.n, own}) {
    if (!std::isfinite(value)) return false;
  }
  return true;
}

bool Refuse(const SSO_ID& id, const char* reason) {
  PrintUnusable(id, reason);
  return false;
}

}  // namespace

OrbitalElements ReadElements(const SSO_ID& id, const BaseDB& record) {
  OrbitalElements elements;
  GetFieldNumber(record, FieldIds::a, elements.a);
  GetFieldNumber(record, FieldIds::e, elements.e);
  GetFieldNumber(record, FieldIds::i, elements.i);
  GetFieldNumber(record, FieldIds::om, elements.om);
  GetFieldNumber(record, FieldIds::w, elements.w);
  GetFieldNumber(record, FieldIds::M0, elements.M0);
  GetFieldNumber(record, FieldIds::n, elements.n);
  // JulianDate_d is the one with the fraction of the day, where a record has both.
  if (!GetFieldNumber(record, FieldIds::JulianDate_d, elements.epoch)) {
    GetFieldNumber(record, FieldIds::JulianDate, elements.epoch);
  }
  GetFieldNumber(record, FieldIds::Hy, elements.absMagnitude);
  // Comets have y, asteroids the slope parameter; a record that has only the other's is understood too.
  const bool isComet = id.kind == FourCC("comt");
  const int own = isComet ? FieldIds::y : FieldIds::SlopeParam;
  const int other = isComet ? FieldIds::SlopeParam : FieldIds::y;
  if (!GetFieldNumber(record, own, elements.slope)) GetFieldNumber(record, other, elements.slope);
  return elements;
}

bool ConvertUserElements(const SSO_ID& id, const CQXSolSys& solSys, OrbitalElements& elements) {
  elements.i *= kRadiansPerDegree;
  elements.om *= kRadiansPerDegree;
  elements.w *= kRadiansPerDegree;
  elements.M0 *= kRadiansPerDegree;
  if (elements.elementSet == kTwoLineElements) {
    elements.tag = kTwoLineTag;
    elements.n *= kRadiansPerMinute;
  } else {
    elements.tag = 0;
    if (!(elements.a > 0.0) || !(elements.e >= 0.0)) return Refuse(id, "its elements are no orbit");
    const double mu = solSys.GetGravity(SSO_ID(elements.centralKind, elements.centralNumber));
    if (!(mu > 0.0)) return Refuse(id, "the body that it goes around is not known");
    elements.n = MeanMotion(mu, elements.a, elements.e);
  }
  // A brightness that is no number is only unknown.
  if (!std::isfinite(elements.absMagnitude)) elements.absMagnitude = kUnknownStarMagnitude;
  if (!std::isfinite(elements.slope)) elements.slope = 0.0f;
  if (!AreFinite(elements)) return Refuse(id, "its elements are not all numbers");
  return true;
}

}  // namespace CommonInterfaces
