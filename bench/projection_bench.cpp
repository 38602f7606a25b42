// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// One point of the sky to the picture: the camera against the same formula inlined, written out and with
// Eigen.
#include <cmath>

#include <benchmark/benchmark.h>

#include "bench/sky_directions.h"

#if defined(BENCH_HAS_EIGEN)
#include <Eigen/Core>
#endif

namespace bench {
namespace {

using Pixel = tPoint<double>;
using WholePixel = tPoint<int>;

const std::vector<Direction>& Directions() {
  static const std::vector<Direction> directions = MakeDirections();
  return directions;
}

// The numbers of that camera, for those who project by themselves.
struct Projection {
  Projection() {
    CommonInterfaces::Camera::InitCameraMatrix(kViewAngles, m);
    benchmark::DoNotOptimize(m);
    benchmark::DoNotOptimize(scale);
  }
  double m[9];
  double scale = std::hypot(640.0, 400.0) / std::tan(0.6457718232379 / 2.0);
};

Pixel ProjectPlainly(const Projection& p, const Direction& d) {
  const double x = p.m[0] * d[0] + p.m[1] * d[1] + p.m[2] * d[2];
  const double y = p.m[3] * d[0] + p.m[4] * d[1] + p.m[5] * d[2];
  const double z = p.m[6] * d[0] + p.m[7] * d[1] + p.m[8] * d[2];
  const double k = p.scale / (z + 1.0);
  return {640.0 - x * k, y * k + 400.0};
}

void ProjectPoint(benchmark::State& state) {
  CommonInterfaces::Camera camera(1);
  LookThere(camera);
  RunOver(state, Directions(), [&camera](const Direction& d) {
    Pixel p;
    camera.RA_Dec2K2PixD(d.data(), &p);
    return p;
  });
}
BENCHMARK(ProjectPoint);

void ProjectPointPeer(benchmark::State& state) {
  const Projection projection;
  RunOver(state, Directions(), [projection](const Direction& d) { return ProjectPlainly(projection, d); });
}
BENCHMARK(ProjectPointPeer);

// Reading a direction and writing a pixel.
void ProjectPointLimit(benchmark::State& state) {
  RunOver(state, Directions(), [](const Direction& d) { return Pixel{d[0] + d[2], d[1]}; });
}
BENCHMARK(ProjectPointLimit);

void ProjectWholePixel(benchmark::State& state) {
  CommonInterfaces::Camera camera(1);
  LookThere(camera);
  RunOver(state, Directions(), [&camera](const Direction& d) {
    WholePixel p;
    camera.RA_Dec2Pix(d.data(), &p);
    return p;
  });
}
BENCHMARK(ProjectWholePixel);

// Without a thought for coordinates that no int holds.
void ProjectWholePixelPeer(benchmark::State& state) {
  const Projection projection;
  RunOver(state, Directions(), [projection](const Direction& d) {
    const Pixel p = ProjectPlainly(projection, d);
    return WholePixel{static_cast<int>(p.x), static_cast<int>(p.y)};
  });
}
BENCHMARK(ProjectWholePixelPeer);

#if defined(BENCH_HAS_EIGEN)

struct EigenProjection {
  using Matrix = Eigen::Matrix<double, 3, 3, Eigen::RowMajor>;
  Matrix matrix = Eigen::Map<const Matrix>(Projection().m);
  double scale = Projection().scale;

  Pixel Project(const Direction& d) const {
    const Eigen::Vector3d r = matrix * Eigen::Map<const Eigen::Vector3d>(d.data());
    const double k = scale / (r.z() + 1.0);
    return {640.0 - r.x() * k, r.y() * k + 400.0};
  }
};

void ProjectPointPeerEigen(benchmark::State& state) {
  const EigenProjection projection;
  RunOver(state, Directions(), [projection](const Direction& d) { return projection.Project(d); });
}
BENCHMARK(ProjectPointPeerEigen);

void ProjectWholePixelPeerEigen(benchmark::State& state) {
  const EigenProjection projection;
  RunOver(state, Directions(), [projection](const Direction& d) {
    const Pixel p = projection.Project(d);
    return WholePixel{static_cast<int>(p.x), static_cast<int>(p.y)};
  });
}
BENCHMARK(ProjectWholePixelPeerEigen);

#endif

}  // namespace
}  // namespace bench
