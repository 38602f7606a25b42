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

// Not on the stack, where a processor may take them for what the loop has just written.
template <class Numbers>
const Numbers& Elsewhere() {
  static const Numbers s_Numbers;
  const Numbers* numbers = &s_Numbers;
  benchmark::DoNotOptimize(numbers);
  return *numbers;
}

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
  const auto& projection = Elsewhere<Projection>();
  RunOver(state, Directions(), [&projection](const Direction& d) { return ProjectPlainly(projection, d); });
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
  const auto& projection = Elsewhere<Projection>();
  RunOver(state, Directions(), [&projection](const Direction& d) {
    const Pixel p = ProjectPlainly(projection, d);
    return WholePixel{static_cast<int>(p.x), static_cast<int>(p.y)};
  });
}
BENCHMARK(ProjectWholePixelPeer);

// Many at once, of arrays that lie in the nearest cache, in the farthest, and in none.
void Batch(benchmark::internal::Benchmark* benchmark) { benchmark->Arg(1000)->Arg(100000)->Arg(10000000); }

template <class Project>
void RunBatch(benchmark::State& state, Project project) {
  const auto count = static_cast<std::size_t>(state.range(0));
  const std::vector<Direction> directions = MakeDirections(count);
  std::vector<Pixel> pixels(count);
  for (auto _ : state) {
    project(directions.data(), pixels.data(), count);
    benchmark::DoNotOptimize(pixels.data());
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void ProjectBatch(benchmark::State& state) {
  CommonInterfaces::Camera camera(1);
  LookThere(camera);
  RunBatch(state, [&camera](const Direction* directions, Pixel* pixels, std::size_t count) {
    camera.BatchRA_Dec2K2PixD(directions->data(), pixels, static_cast<int>(count));
  });
}
BENCHMARK(ProjectBatch)->Apply(Batch);

void ProjectBatchPeer(benchmark::State& state) {
  const auto& projection = Elsewhere<Projection>();
  RunBatch(state, [&projection](const Direction* directions, Pixel* pixels, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) pixels[i] = ProjectPlainly(projection, directions[i]);
  });
}
BENCHMARK(ProjectBatchPeer)->Apply(Batch);

// Reading the directions and writing the pixels.
void ProjectBatchLimit(benchmark::State& state) {
  RunBatch(state, [](const Direction* directions, Pixel* pixels, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
      pixels[i] = {directions[i][0] + directions[i][2], directions[i][1]};
  });
}
BENCHMARK(ProjectBatchLimit)->Apply(Batch);

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
  const auto& projection = Elsewhere<EigenProjection>();
  RunOver(state, Directions(), [&projection](const Direction& d) { return projection.Project(d); });
}
BENCHMARK(ProjectPointPeerEigen);

void ProjectWholePixelPeerEigen(benchmark::State& state) {
  const auto& projection = Elsewhere<EigenProjection>();
  RunOver(state, Directions(), [&projection](const Direction& d) {
    const Pixel p = projection.Project(d);
    return WholePixel{static_cast<int>(p.x), static_cast<int>(p.y)};
  });
}
BENCHMARK(ProjectWholePixelPeerEigen);

#endif

}  // namespace
}  // namespace bench
