// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/delta_t.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "astro/constants.h"

namespace {

using astro::kDaysPerJulianYear;

struct Observation {
  double julianDate;
  double seconds;
};

// a[0] + a[1] t + a[2] t^2 + a[3] t^3, t from 0 in the first year to 1 in the last.
struct SplinePiece {
  double firstYear;
  double lastYear;
  double a[4];
};

#include "companions/astro/time/delta_t_tables.inc"

struct ValueAndSlope {
  double seconds;
  double perYear;
};

constexpr double kFadeBeforeSplineYears = 1000.0;
constexpr double kFadeBeforeObservationsYears = 100.0;
constexpr double kFadeAfterObservationsYears = 300.0;
constexpr double kSlopeYears = 10.0;

double YearOf(double julianDate) { return 2000.0 + (julianDate - astro::kJ2000) / kDaysPerJulianYear; }

// Stephenson, Morrison & Hohenkerk 2016, Proc. R. Soc. A 472, 20160404: the mean lengthening of the day.
ValueAndSlope LongTermParabola(double year) {
  const double centuries = (year - 1825.0) / 100.0;
  return {-320.0 + 32.5 * centuries * centuries, 0.65 * centuries};
}

ValueAndSlope Spline(double year) {
  const SplinePiece* piece =
      std::upper_bound(std::begin(kSpline), std::prev(std::end(kSpline)), year,
                       [](double value, const SplinePiece& candidate) { return value < candidate.lastYear; });
  const double length = piece->lastYear - piece->firstYear;
  const double t = (year - piece->firstYear) / length;
  const double* a = piece->a;
  return {a[0] + t * (a[1] + t * (a[2] + t * a[3])), (a[1] + t * (2.0 * a[2] + t * 3.0 * a[3])) / length};
}

double Secant(const Observation& a, const Observation& b) {
  return (b.seconds - a.seconds) / (b.julianDate - a.julianDate);
}

// Slope, seconds a day, of the parabola through an observation and its two neighbours.
double Tangent(const Observation* at) {
  if (at == std::begin(kObserved)) return Secant(at[0], at[1]);
  if (at == std::prev(std::end(kObserved))) return Secant(at[-1], at[0]);
  const double before = at[0].julianDate - at[-1].julianDate;
  const double after = at[1].julianDate - at[0].julianDate;
  return (after * Secant(at[-1], at[0]) + before * Secant(at[0], at[1])) / (before + after);
}

// Cubic Hermite piece over u in [0, 1]; the slopes are per unit of u.
double Hermite(double u, double value0, double slope0, double value1, double slope1) {
  const double v = 1.0 - u;
  return v * v * ((1.0 + 2.0 * u) * value0 + u * slope0) + u * u * ((1.0 + 2.0 * v) * value1 - v * slope1);
}

double Observed(double julianDate) {
  const Observation* right =
      std::upper_bound(std::next(std::begin(kObserved)), std::prev(std::end(kObserved)), julianDate,
                       [](double value, const Observation& row) { return value < row.julianDate; });
  const Observation* left = std::prev(right);
  const double length = right->julianDate - left->julianDate;
  return Hermite((julianDate - left->julianDate) / length, left->seconds, Tangent(left) * length,
                 right->seconds, Tangent(right) * length);
}

// What two sources differ by at the moment where they meet, fading to nothing `span` years away from it (a
// negative span: before it). It starts with the difference of their slopes, so that no bend shows.
class Fade {
 public:
  Fade(double year, double span, const ValueAndSlope& kept, const ValueAndSlope& faded)
      : m_Year(year),
        m_Span(span),
        m_Offset(kept.seconds - faded.seconds),
        m_Slope(kept.perYear - faded.perYear) {}

  double At(double year) const {
    const double u = (year - m_Year) / m_Span;
    return u >= 1.0 ? 0.0 : Hermite(u, m_Offset, m_Slope * m_Span, 0.0, 0.0);
  }

 private:
  double m_Year;
  double m_Span;
  double m_Offset;
  double m_Slope;
};

// A single row is too noisy for a slope (the oldest ones are whole seconds): the mean over ten years is
// taken.
ValueAndSlope ObservedAtEnd(double julianDate, double years) {
  const double seconds = Observed(julianDate);
  return {seconds, (Observed(julianDate + years * kDaysPerJulianYear) - seconds) / years};
}

double BeforeSpline(double year) {
  static const double first = kSpline[0].firstYear;
  static const Fade fade(first, -kFadeBeforeSplineYears, Spline(first), LongTermParabola(first));
  return LongTermParabola(year).seconds + fade.At(year);
}

double BeforeObservations(double year) {
  static const double julianDate = std::begin(kObserved)->julianDate;
  static const Fade fade(YearOf(julianDate), -kFadeBeforeObservationsYears,
                         ObservedAtEnd(julianDate, kSlopeYears), Spline(YearOf(julianDate)));
  return Spline(year).seconds + fade.At(year);
}

double AfterObservations(double year) {
  static const double julianDate = std::prev(std::end(kObserved))->julianDate;
  static const Fade fade(YearOf(julianDate), kFadeAfterObservationsYears,
                         ObservedAtEnd(julianDate, -kSlopeYears), LongTermParabola(YearOf(julianDate)));
  return LongTermParabola(year).seconds + fade.At(year);
}

}  // namespace

double ET_UT::Get(int julianDay, double fraction) {
  const double julianDate = julianDay + (std::isfinite(fraction) ? fraction : 0.0);
  const double year = YearOf(julianDate);
  if (year < kSpline[0].firstYear) return BeforeSpline(year);
  if (julianDate < std::begin(kObserved)->julianDate) return BeforeObservations(year);
  if (julianDate > std::prev(std::end(kObserved))->julianDate) return AfterObservations(year);
  return Observed(julianDate);
}
