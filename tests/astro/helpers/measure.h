// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <numbers>
#include <string>

namespace astro_test {

constexpr double kDegree = std::numbers::pi / 180.0;
constexpr double kArcSecond = kDegree / 3600.0;
constexpr double kSecondOfTime = 15.0 * kArcSecond;
constexpr double kTurn = 2.0 * std::numbers::pi;

inline double FromDms(double degrees, double minutes, double seconds) {
  return (degrees + minutes / 60.0 + seconds / 3600.0) * kDegree;
}
inline double FromHms(double hours, double minutes, double seconds) {
  return 15.0 * FromDms(hours, minutes, seconds);
}
// An angle in radians against one in degrees, whole turns aside.
inline void ExpectDegrees(double angle, double degrees, double tolerance) {
  EXPECT_NEAR(std::remainder(angle - degrees * kDegree, kTurn) / kDegree, 0.0, tolerance)
      << angle / kDegree << " for " << degrees;
}
inline double JulianDateOfYear(double year) { return 2451545.0 + (year - 2000.0) * 365.25; }

// Keeps the largest difference of a quantity; Expect prints it and holds it against the tolerance.
class Largest {
 public:
  Largest(const char* quantity, const char* unit) : m_Quantity(quantity), m_Unit(unit) {}

  // A difference that is not a number counts as infinite.
  void Note(double difference, double where) {
    const double size = std::isnan(difference) ? HUGE_VAL : std::fabs(difference);
    ++m_Count;
    if (size <= m_Size) return;
    m_Size = size;
    m_Where = where;
  }

  void Expect(double tolerance) const {
    std::printf("[ largest  ] %s: %.3g %s at %.10g, %d compared (tolerance %g)\n", m_Quantity.c_str(), m_Size,
                m_Unit.c_str(), m_Where, m_Count, tolerance);
    EXPECT_GT(m_Count, 0) << m_Quantity;
    EXPECT_LE(m_Size, tolerance) << m_Quantity << " at " << m_Where;
  }

 private:
  std::string m_Quantity;
  std::string m_Unit;
  double m_Size = 0.0;
  double m_Where = 0.0;
  int m_Count = 0;
};

}  // namespace astro_test
