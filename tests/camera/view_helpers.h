// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <numbers>
#include <random>

#include "common_interfaces/camera.h"

namespace test_support {

inline constexpr double kPi = std::numbers::pi;
inline constexpr double kDegree = kPi / 180;

// The angle that the reference half-diagonal spans at zoom 1.
inline constexpr double kZoomOneAngle = 0.6457718232379;

// A window whose own size is the reference size.
inline tRect<int> Window(int width, int height) { return {width, height, width, height}; }

// A view with unit zoom along (lon, lat) with that slope.
inline void LookAt(CommonInterfaces::Camera& camera, double lon, double lat, double slope = 0.0) {
  camera.SetRA_Dec({lon, lat, slope, 1});
}

struct Direction {
  double v[3];
  Direction(double lon, double lat)
      : v{std::cos(lat) * std::cos(lon), std::cos(lat) * std::sin(lon), std::sin(lat)} {}
};

class Random {
 public:
  explicit Random(unsigned seed) : m_Engine(seed) {}
  double Real(double from, double to) { return std::uniform_real_distribution<double>(from, to)(m_Engine); }
  int Whole(int from, int to) { return std::uniform_int_distribution<int>(from, to)(m_Engine); }

 private:
  std::mt19937 m_Engine;
};

}  // namespace test_support
