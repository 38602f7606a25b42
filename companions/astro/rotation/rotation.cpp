// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/rotation.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "astro/constants.h"
#include "astro/vectors.h"

namespace astro {

namespace {

struct RotationRow {
  int number;
  double poleRA[2];
  double poleDec[2];
  double primeMeridian[3];
  short firstTerm, terms;
};

enum Variable : unsigned char { kPoleRA, kPoleDec, kPrimeMeridian };

struct PeriodicTerm {
  Variable variable;
  double amplitude;
  double angle[3];
};

struct ShapeRow {
  int number;
  BodyShape shape;
};

#include "companions/astro/rotation/rotation_tables.inc"

// The row of a body; the numbers of planets and moons do not meet.
template <class Row, std::size_t N>
const Row* FindRow(const Row (&rows)[N], const SSO_ID& body) {
  const bool fits = body.number > kSunNumber ? body.kind == kMoonKind : body.kind == kPlanetKind;
  if (!fits) return nullptr;
  const Row* row = std::lower_bound(std::begin(rows), std::end(rows), body.number,
                                    [](const Row& r, int number) { return r.number < number; });
  return row != std::end(rows) && row->number == body.number ? row : nullptr;
}

double Turned(double angle) {
  const double turned = std::fmod(angle, kTurn);
  return turned < 0.0 ? turned + kTurn : turned;
}

// Degrees, indexed by Variable.
void SumPeriodicTerms(const RotationRow& row, double centuries, double sums[3]) {
  for (int i = row.firstTerm; i < row.firstTerm + row.terms; ++i) {
    const PeriodicTerm& term = kPeriodicTerms[i];
    const double angle =
        (term.angle[0] + centuries * (term.angle[1] + centuries * term.angle[2])) * kRadiansPerDegree;
    sums[term.variable] += term.amplitude * (term.variable == kPoleDec ? std::cos(angle) : std::sin(angle));
  }
}

void FillMatrix(BodyRotation& rotation) {
  const double ca = std::cos(rotation.poleRA), sa = std::sin(rotation.poleRA);
  const double cd = std::cos(rotation.poleDec), sd = std::sin(rotation.poleDec);
  const double cw = std::cos(rotation.primeMeridian), sw = std::sin(rotation.primeMeridian);
  const double node[3] = {-sa, ca, 0.0};
  const double pole[3] = {cd * ca, cd * sa, sd};
  double ahead[3];
  Vprod(pole, node, ahead);
  for (int i = 0; i < 3; ++i) {
    rotation.toBody[i] = cw * node[i] + sw * ahead[i];
    rotation.toBody[3 + i] = cw * ahead[i] - sw * node[i];
    rotation.toBody[6 + i] = pole[i];
  }
}

// W of the clouds, degrees at J2000.0 and a day. Jupiter: Davies et al. 1992, Celestial Mechanics and
// Dynamical Astronomy 53, 377. Saturn: Explanatory Supplement to the Astronomical Almanac (1992), table 7.
struct CloudRow {
  int planet;
  CloudSystem system;
  double primeMeridian[2];
};
constexpr CloudRow kClouds[] = {
    {5, CloudSystem::kFirst, {67.1, 877.900}},
    {5, CloudSystem::kSecond, {43.3, 870.270}},
    {6, CloudSystem::kFirst, {227.2037, 844.3}},
};

}  // namespace

std::optional<BodyRotation> ComputeRotation(const SSO_ID& body, double julianDate) {
  const RotationRow* row = FindRow(kRotations, body);
  if (row == nullptr || !std::isfinite(julianDate)) return std::nullopt;
  const double days = julianDate - kJ2000, centuries = days / kDaysPerJulianCentury;
  double sums[3] = {row->poleRA[0] + centuries * row->poleRA[1],
                    row->poleDec[0] + centuries * row->poleDec[1],
                    row->primeMeridian[0] + days * (row->primeMeridian[1] + days * row->primeMeridian[2])};
  SumPeriodicTerms(*row, centuries, sums);
  BodyRotation rotation;
  rotation.poleRA = sums[kPoleRA] * kRadiansPerDegree;
  rotation.poleDec = sums[kPoleDec] * kRadiansPerDegree;
  rotation.primeMeridian = Turned(sums[kPrimeMeridian] * kRadiansPerDegree);
  rotation.turning = row->primeMeridian[1] * kRadiansPerDegree;
  FillMatrix(rotation);
  return rotation;
}

// Longitudes of both planets grow westwards, and the central meridian with W.
std::optional<double> CloudLongitudeShift(const SSO_ID& planet, CloudSystem system, double julianDate) {
  const RotationRow* field = FindRow(kRotations, planet);
  const CloudRow* clouds = std::find_if(std::begin(kClouds), std::end(kClouds), [&](const CloudRow& row) {
    return field != nullptr && row.planet == field->number && row.system == system;
  });
  if (clouds == std::end(kClouds) || !std::isfinite(julianDate)) return std::nullopt;
  const double days = julianDate - kJ2000;
  const double shift = clouds->primeMeridian[0] - field->primeMeridian[0] +
                       days * (clouds->primeMeridian[1] - field->primeMeridian[1]);
  return Turned(shift * kRadiansPerDegree);
}

std::optional<BodyShape> GetBodyShape(const SSO_ID& body) {
  const ShapeRow* row = FindRow(kShapes, body);
  return row != nullptr ? std::optional<BodyShape>(row->shape) : std::nullopt;
}

}  // namespace astro
