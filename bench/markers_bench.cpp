// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Markers to the picture: the camera's list against the same projection called marker by marker.
#include <cmath>
#include <random>
#include <vector>

#include <benchmark/benchmark.h>

#include "astro/coordinates.h"
#include "common_interfaces/camera.h"

namespace {

constexpr int kMarkers = 1 << 17;

// Evenly spread over the sky, of which the window shows a part. The list is filled directly: adding looks for
// the identifier first.
void Prepare(CommonInterfaces::Camera& camera) {
  camera.SetWinRect({1280, 800, 1280, 800});
  camera.SetZoom(1.0);
  camera.SetRA_Dec({1.2, 0.4, 0.1, 0});
  std::mt19937 random(1);
  std::uniform_real_distribution<double> height(-1.0, 1.0), longitude(0.0, 6.283185307179586);
  for (int i = 0; i < kMarkers; ++i) {
    CommonInterfaces::MARKER_INFO marker;
    marker.lon = longitude(random);
    marker.lat = std::asin(height(random));
    marker.id = i;
    camera.GetOIMarkerList()->push_back(marker);
  }
}

void UpdateMarkers(benchmark::State& state) {
  CommonInterfaces::Camera camera(1);
  Prepare(camera);
  for (auto _ : state) {
    camera.UpdateOIMarkers();
    benchmark::DoNotOptimize(camera.GetOIMarkerList()->data());
  }
  state.SetItemsProcessed(state.iterations() * kMarkers);
}
BENCHMARK(UpdateMarkers);

void UpdateMarkersPeerProjection(benchmark::State& state) {
  CommonInterfaces::Camera camera(1);
  Prepare(camera);
  for (auto _ : state) {
    for (const auto& marker : *camera.GetOIMarkerList()) {
      double v[3];
      sfp(1.0, marker.lon, marker.lat, v);
      tPoint<double> p;
      camera.RA_Dec2PixD(v, &p);
      benchmark::DoNotOptimize(p);
    }
  }
  state.SetItemsProcessed(state.iterations() * kMarkers);
}
BENCHMARK(UpdateMarkersPeerProjection);

}  // namespace
