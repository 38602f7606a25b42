// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/b1875.h"

#include <array>
#include <cmath>

namespace scene {
namespace {

// Rz(-z) Ry(theta) Rz(-zeta), row by row.
std::array<double, 9> MakeMatrix() {
  constexpr double kJ2000 = 2451545.0, kB1875 = 2405889.25855, kDaysPerCentury = 36525.0;
  constexpr double kSecond = kRadiansPerDegree / 3600.0, t = (kB1875 - kJ2000) / kDaysPerCentury;
  constexpr double kZeta = (2306.2181 + (0.30188 + 0.017998 * t) * t) * t * kSecond,
                   kZ = (2306.2181 + (1.09468 + 0.018203 * t) * t) * t * kSecond,
                   kTheta = (2004.3109 - (0.42665 + 0.041833 * t) * t) * t * kSecond;
  const double sa = std::sin(kZeta), ca = std::cos(kZeta), sz = std::sin(kZ), cz = std::cos(kZ),
               st = std::sin(kTheta), ct = std::cos(kTheta);
  return {ca * ct * cz - sa * sz,
          -sa * ct * cz - ca * sz,
          -st * cz,
          ca * ct * sz + sa * cz,
          -sa * ct * sz + ca * cz,
          -st * sz,
          ca * st,
          -sa * st,
          ct};
}

const std::array<double, 9>& Matrix() {
  static const std::array<double, 9> matrix = MakeMatrix();
  return matrix;
}

}  // namespace

Direction ToB1875(const Direction& j2000) {
  const auto& m = Matrix();
  Direction turned;
  for (std::size_t i = 0; i < 3; ++i)
    turned.v[i] = m[3 * i] * j2000.v[0] + m[3 * i + 1] * j2000.v[1] + m[3 * i + 2] * j2000.v[2];
  return turned;
}

Direction FromB1875(const Direction& b1875) {
  const auto& m = Matrix();
  Direction turned;
  for (std::size_t i = 0; i < 3; ++i)
    turned.v[i] = m[i] * b1875.v[0] + m[3 + i] * b1875.v[1] + m[6 + i] * b1875.v[2];
  return turned;
}

}  // namespace scene
