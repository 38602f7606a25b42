// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <iterator>

#include "astro/constants.h"
#include "astro/earth_orientation.h"

namespace {

// Velocity of the Earth's centre relative to the barycentre, equator and equinox of J2000.0, 1e-8
// astronomical unit a day: C. Ron & J. Vondrak 1986, "Expansion of annual aberration into trigonometric
// series", Bulletin of the Astronomical Institutes of Czechoslovakia 37, 96; the abridged table of 36 terms
// of Meeus, Astronomical Algorithms (1998), table 23.A.
struct Term {
  signed char multiples[11];  // of the mean arguments below
  int x[2];                   // sine, cosine
  int y[2];
  int z[2];
};

constexpr Term kTerms[] = {
    {{0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0}, {-1719914, -25}, {25, 1578089}, {10, 684185}},
    {{0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0}, {6434, 28007}, {25697, -5904}, {11141, -2559}},
    {{0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0}, {715, 0}, {6, -657}, {-15, -282}},
    {{0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0}, {715, 0}, {0, -656}, {0, -285}},
    {{0, 3, 0, 0, 0, 0, 0, 0, 0, 0, 0}, {486, -236}, {-216, -446}, {-94, -193}},
    {{0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0}, {159, 0}, {2, -147}, {-6, -61}},
    {{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}, {0, 0}, {0, 26}, {0, -59}},
    {{0, 0, 0, 0, 0, 0, 0, 1, 0, 1, 0}, {39, 0}, {0, -36}, {0, -16}},
    {{0, 0, 0, 2, 0, 0, 0, 0, 0, 0, 0}, {33, -10}, {-9, -30}, {-5, -13}},
    {{0, 2, 0, -1, 0, 0, 0, 0, 0, 0, 0}, {31, 1}, {1, -28}, {0, -12}},
    {{0, 3, -8, 3, 0, 0, 0, 0, 0, 0, 0}, {8, -28}, {25, 8}, {11, 3}},
    {{0, 5, -8, 3, 0, 0, 0, 0, 0, 0, 0}, {8, -28}, {-25, -8}, {-11, -3}},
    {{2, -1, 0, 0, 0, 0, 0, 0, 0, 0, 0}, {21, 0}, {0, -19}, {0, -8}},
    {{1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, {-19, 0}, {0, 17}, {0, 8}},
    {{0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0}, {17, 0}, {0, -16}, {0, -7}},
    {{0, 1, 0, -2, 0, 0, 0, 0, 0, 0, 0}, {16, 0}, {0, 15}, {1, 7}},
    {{0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0}, {16, 0}, {1, -15}, {-3, -6}},
    {{0, 1, 0, 1, 0, 0, 0, 0, 0, 0, 0}, {11, -1}, {-1, -10}, {-1, -5}},
    {{2, -2, 0, 0, 0, 0, 0, 0, 0, 0, 0}, {0, -11}, {-10, 0}, {-4, 0}},
    {{0, 1, 0, -1, 0, 0, 0, 0, 0, 0, 0}, {-11, -2}, {-2, 9}, {-1, 4}},
    {{0, 4, 0, 0, 0, 0, 0, 0, 0, 0, 0}, {-7, -8}, {-8, 6}, {-3, 3}},
    {{0, 3, 0, -2, 0, 0, 0, 0, 0, 0, 0}, {-10, 0}, {0, 9}, {0, 4}},
    {{1, -2, 0, 0, 0, 0, 0, 0, 0, 0, 0}, {-9, 0}, {0, -9}, {0, -4}},
    {{2, -3, 0, 0, 0, 0, 0, 0, 0, 0, 0}, {-9, 0}, {0, -8}, {0, -4}},
    {{0, 0, 0, 0, 2, 0, 0, 0, 0, 0, 0}, {0, -9}, {-8, 0}, {-3, 0}},
    {{2, -4, 0, 0, 0, 0, 0, 0, 0, 0, 0}, {0, -9}, {8, 0}, {3, 0}},
    {{0, 3, -2, 0, 0, 0, 0, 0, 0, 0, 0}, {8, 0}, {0, -8}, {0, -3}},
    {{0, 0, 0, 0, 0, 0, 0, 1, 2, -1, 0}, {8, 0}, {0, -7}, {0, -3}},
    {{8, -12, 0, 0, 0, 0, 0, 0, 0, 0, 0}, {-4, -7}, {-6, 4}, {-3, 2}},
    {{8, -14, 0, 0, 0, 0, 0, 0, 0, 0, 0}, {-4, -7}, {6, -4}, {3, -2}},
    {{0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0}, {-6, -5}, {-4, 5}, {-2, 2}},
    {{3, -4, 0, 0, 0, 0, 0, 0, 0, 0, 0}, {-1, -1}, {-2, -7}, {1, -4}},
    {{0, 2, 0, -2, 0, 0, 0, 0, 0, 0, 0}, {4, -6}, {-5, -4}, {-2, -2}},
    {{3, -3, 0, 0, 0, 0, 0, 0, 0, 0, 0}, {0, -7}, {-6, 0}, {-3, 0}},
    {{0, 2, -2, 0, 0, 0, 0, 0, 0, 0, 0}, {5, -5}, {-4, -5}, {-2, -2}},
    {{0, 0, 0, 0, 0, 0, 0, 1, -2, 0, 0}, {5, 0}, {0, -5}, {0, -2}},
};
static_assert(std::size(kTerms) == 36);

// What the terms of the multiples of the Earth alone gain in a century.
struct CenturyChange {
  signed char multipleOfEarth;
  short x[2];
  short y[2];
  short z[2];
};

constexpr CenturyChange kCenturyChanges[] = {
    {1, {-2, 0}, {-13, 156}, {32, -358}},
    {2, {141, -107}, {-95, -130}, {-48, -55}},
    {3, {-5, -4}, {-4, 5}, {0, 0}},
};

// Mean longitudes of the planets from Venus to Neptune, then the Moon's mean longitude L', elongation D,
// anomaly M' and argument of latitude F; equinox of J2000.0, radians and radians a century.
constexpr double kArguments[11][2] = {
    {3.1761467, 1021.3285546}, {1.7534703, 628.3075849},  {6.2034809, 334.0612431},
    {0.5995465, 52.9690965},   {0.8740168, 21.3299095},   {5.4812939, 7.4781599},
    {5.3118863, 3.8133036},    {3.8103444, 8399.6847337}, {5.1984667, 7771.3771486},
    {2.3555559, 8328.6914289}, {1.6279052, 8433.4661601},
};
constexpr int kEarth = 1;

constexpr double kUnit = 1e-8 / astro::kLightAuPerDay;

template <class Row>
void Add(const Row& row, double argument, double factor, double v[3]) {
  const double sine = factor * std::sin(argument);
  const double cosine = factor * std::cos(argument);
  v[0] += row.x[0] * sine + row.x[1] * cosine;
  v[1] += row.y[0] * sine + row.y[1] * cosine;
  v[2] += row.z[0] * sine + row.z[1] * cosine;
}

}  // namespace

void EarthVelocity(double julianDateTT, double v[3]) {
  const double centuries = (julianDateTT - astro::kJ2000) / astro::kDaysPerJulianCentury;
  double arguments[11];
  for (int i = 0; i < 11; ++i) arguments[i] = kArguments[i][0] + kArguments[i][1] * centuries;
  double sum[3] = {0.0, 0.0, 0.0};
  for (const Term& term : kTerms) {
    double argument = 0.0;
    for (int i = 0; i < 11; ++i) argument += term.multiples[i] * arguments[i];
    Add(term, argument, 1.0, sum);
  }
  for (const CenturyChange& change : kCenturyChanges) {
    Add(change, change.multipleOfEarth * arguments[kEarth], centuries, sum);
  }
  for (int i = 0; i < 3; ++i) v[i] = sum[i] * kUnit;
}
