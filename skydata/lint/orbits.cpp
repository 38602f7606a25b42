// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <cstdio>

#include "skydata/lint/rules.h"

namespace skydata {
namespace {

constexpr double kTurn = 6.283185307179586;  // radians
constexpr double kDegreesPerTurn = 360.0;
// Mean motion at 1 au, radians per day: the Gaussian gravitational constant (IAU 1976).
constexpr double kGauss = 0.01720209895;
constexpr double kFirstEpoch = 2086307.5, kLastEpoch = 2634166.5;  // 1000 and 2500, in Julian dates
constexpr double kParabolic = 1e-6;        // |1 - e| below which an orbit counts as a parabola
constexpr double kMotionTolerance = 1e-3;  // the Sun alone, without the planets' masses

int ColumnOf(const CatalogData& data, const CatalogRecord& record, const char* name) {
  return data.FindCell(record, data.FindColumn(name))->column;
}

std::string ToText(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.6g", value);
  return text;
}

// `a` is the semi-major axis of an ellipse, the perihelion distance of any other orbit.
double MotionOf(double a, double e) {
  if (e < 1.0) return kGauss / std::pow(a, 1.5);
  const double axis = std::fabs(1.0 - e) < kParabolic ? 0.0 : a / (e - 1.0);
  return axis > 0.0 ? kGauss / std::pow(axis, 1.5) : kGauss / std::sqrt(2.0 * a * a * a);
}

}  // namespace

void CheckOrbit(const CatalogData& data, const CatalogRecord& record, LintReport& report) {
  const auto epoch = data.FindNumber(record, "JulianDate");
  if (epoch && (*epoch < kFirstEpoch || *epoch > kLastEpoch)) {
    report.Add(LintCode::kOutOfRange, record.line, ColumnOf(data, record, "JulianDate"),
               "the epoch " + ToText(*epoch) + " is not a Julian date of the years 1000 to 2500");
  }
  const auto a = data.FindNumber(record, "a"), e = data.FindNumber(record, "e");
  const auto anomaly = data.FindNumber(record, "M0"), motion = data.FindNumber(record, "n");
  if (!a || !e || *a <= 0.0 || *e < 0.0) return;
  if (anomaly && *e < 1.0 && std::fabs(*anomaly) > kTurn) {
    const bool isUnit = std::fabs(*anomaly) <= kDegreesPerTurn;
    report.Add(isUnit ? LintCode::kUnit : LintCode::kOutOfRange, record.line, ColumnOf(data, record, "M0"),
               "M0 " + ToText(*anomaly) + " is more than a turn" + (isUnit ? ", wants radians" : ""));
  }
  const double wanted = MotionOf(*a, *e);
  if (motion && std::fabs(*motion / wanted - 1.0) > kMotionTolerance) {
    report.Add(
        LintCode::kUnit, record.line, ColumnOf(data, record, "n"),
        "n " + ToText(*motion) + " does not fit a and e, wants " + ToText(wanted) + " radians per day");
  }
}

}  // namespace skydata
