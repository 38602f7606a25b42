// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// One point of the sky to the picture: the camera against the formula written out in place.
#include <array>
#include <cmath>
#include <random>
#include <vector>

#include <benchmark/benchmark.h>

#include "common_interfaces/camera.h"

namespace {

using Direction = std::array<double, 3>;

// Evenly spread over the sky.
const std::vector<Direction>& Directions() {
  static const std::vector<Direction> directions = [] {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> height(-1.0, 1.0), longitude(0.0, 6.283185307179586);
    std::vector<Direction> made(1024);
    for (Direction& d : made) {
      const double z = height(random), lon = longitude(random), r = std::sqrt(1.0 - z * z);
      d = {r * std::cos(lon), r * std::sin(lon), z};
    }
    return made;
  }();
  return directions;
}

constexpr double kAngles[3] = {1.2, 0.4, 0.1};

void ProjectPoint(benchmark::State& state) {
  CommonInterfaces::Camera camera(1);
  camera.SetWinRect({1280, 800, 1280, 800});
  camera.SetZoom(1.0);
  const double identity[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
  camera.SetReductionMatrix(identity);
  camera.SetRA_Dec({kAngles[0], kAngles[1], kAngles[2], 0});
  const auto& directions = Directions();
  for (auto _ : state) {
    for (const Direction& d : directions) {
      tPoint<double> p;
      camera.RA_Dec2K2PixD(d.data(), &p);
      benchmark::DoNotOptimize(p);
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<long>(directions.size()));
}

void ProjectPointPeer(benchmark::State& state) {
  double m[9];
  CommonInterfaces::Camera::InitCameraMatrix(kAngles, m);
  benchmark::DoNotOptimize(m);
  const double scale = std::hypot(640.0, 400.0) / std::tan(0.6457718232379 / 2.0);
  const auto& directions = Directions();
  for (auto _ : state) {
    for (const Direction& d : directions) {
      const double x = m[0] * d[0] + m[1] * d[1] + m[2] * d[2];
      const double y = m[3] * d[0] + m[4] * d[1] + m[5] * d[2];
      const double z = m[6] * d[0] + m[7] * d[1] + m[8] * d[2];
      const double k = scale / (z + 1.0);
      tPoint<double> p{640.0 - x * k, y * k + 400.0};
      benchmark::DoNotOptimize(p);
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<long>(directions.size()));
}

BENCHMARK(ProjectPoint);
BENCHMARK(ProjectPointPeer);

}  // namespace
