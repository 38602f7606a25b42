// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Pluto has no theory of its kind. Its orbit was integrated numerically from 1600 to 2200, disturbed by
// Jupiter to Neptune on the full VSOP87B, with starting values fitted to DE405 (Standish 1998) over 1960 to
// 2059, and is kept as Chebyshev polynomials: tables/SOURCE.md. It agrees with the test points that JPL
// published of DE405.
#include "companions/astro/planets/series.h"

namespace {

#include "companions/astro/planets/pluto_table.inc"

struct ValueAndRate {
  double value;
  double rate;  // per unit of x
};

// Clenshaw's summation for the value; the derivative follows by differentiating the recurrence.
ValueAndRate Chebyshev(const double* coefficients, int count, double x) {
  double b1 = 0.0, b2 = 0.0, d1 = 0.0, d2 = 0.0;
  for (int i = count - 1; i > 0; --i) {
    const double d = 2.0 * b1 + 2.0 * x * d1 - d2;
    const double b = coefficients[i] + 2.0 * x * b1 - b2;
    d2 = d1;
    d1 = d;
    b2 = b1;
    b1 = b;
  }
  return {coefficients[0] + x * b1 - b2, b1 + x * d1 - d2};
}

}  // namespace

bool astro_internal::PlutoState(double julianDateTT, double position[3], double velocity[3]) {
  const double place = (julianDateTT - kPlutoFirstDate) / kPlutoSegmentDays;
  if (!(place >= 0.0 && place <= kPlutoSegments)) return false;
  const int segment = place < kPlutoSegments ? static_cast<int>(place) : kPlutoSegments - 1;
  const double x = 2.0 * (place - segment) - 1.0;
  for (int axis = 0; axis < 3; ++axis) {
    const ValueAndRate sum = Chebyshev(kPluto[segment][axis], kPlutoCoefficients, x);
    position[axis] = sum.value;
    if (velocity != nullptr) velocity[axis] = sum.rate * 2.0 / kPlutoSegmentDays;
  }
  return true;
}
