// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A whole frame of skyview as the application computes it, painting left aside: observer's frame, stars,
// figures, Milky Way, horizon, labels. Between frames the time advances and the view pans, so that nothing
// can be kept.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <memory>
#include <random>
#include <string>

#include "common_interfaces/camera.h"
#include "scene/catalog_table.h"
#include "scene/data_root.h"
#include "scene/observer_frame.h"
#include "scene/sky_frame.h"
#include "scratch_file.h"
#include "utils/program.h"

namespace {

// The data root of the build tree, beside this program.
bool LoadShippedCatalogs(scene::SkyCatalogs& catalogs, std::string& error) {
  std::string root;
  return scene::FindDataRoot(GetProgramFolder(), root, error) && scene::SetSkyRoots(root, "", error) &&
         scene::LoadSkyCatalogs(catalogs, error);
}

// Stars spread evenly over the sphere; their numbers grow threefold a magnitude, as on the sky, down to
// magnitude 12.
std::string MakeStarTable(int count) {
  std::mt19937 random(20260115);
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  std::string table = "Number:i32\tRA:f64\tDec:f64\tVisMagnitude:f32\tPropMotionRA:f32\tPropMotionDec:f32\n";
  char line[160];
  for (int i = 0; i < count; ++i) {
    const double ra = unit(random) * 2.0 * scene::kPi, dec = std::asin(2.0 * unit(random) - 1.0);
    const double magnitude = 12.0 + std::log(std::max(unit(random), 1e-6)) / std::log(3.0);
    std::snprintf(line, sizeof line, "%d\t%.9f\t%.9f\t%.2f\t%.1f\t%.1f\n", i, ra, dec, magnitude,
                  100.0 * (unit(random) - 0.5), 100.0 * (unit(random) - 0.5));
    table += line;
  }
  return table;
}

void RunFrames(benchmark::State& state, const scene::SkyCatalogs& catalogs, double zoom,
               bool natural = true) {
  scene::ShownKinds shown;
  shown.naturalSky = natural;
  CommonInterfaces::Camera camera(1);
  camera.CreateDefault();
  camera.SetBasePlane(1);
  camera.SetZoom(zoom);
  camera.SetWinRect({1600, 1000, 1600, 1000});
  scene::SkyFrame frame(catalogs);
  int number = 0;
  for (auto _ : state) {
    ++number;
    CommonInterfaces::_Date time;
    time.day = 2461056;
    time.fraction = 0.4 + 1e-5 * (number % 1000);
    camera.SetUniversalTime(time);
    SphViewCoor angles;
    angles.lon = -scene::kPi + 1e-3 * (number % 1000);
    angles.lat = 0.6;
    camera.SetRA_Dec(angles);
    frame.Compute(camera, scene::PrepareObserver(camera), shown);
    benchmark::DoNotOptimize(frame.GetStars().data());
  }
  state.counters["stars"] = catalogs.stars.GetCount();
  state.counters["drawn"] = static_cast<double>(frame.GetStars().size());
}

// The catalogs that ship: 9,096 stars.
void FrameOfShippedCatalogs(benchmark::State& state) {
  scene::SkyCatalogs catalogs;
  std::string error;
  if (!LoadShippedCatalogs(catalogs, error)) return state.SkipWithError(error.c_str());
  RunFrames(state, catalogs, static_cast<double>(state.range(0)));
}
BENCHMARK(FrameOfShippedCatalogs)->ArgName("zoom")->Arg(1)->Arg(10)->Unit(benchmark::kMicrosecond);

// The same under a sky without day and night: what is left is the price of the light.
void FrameUnderAPlainSky(benchmark::State& state) {
  scene::SkyCatalogs catalogs;
  std::string error;
  if (!LoadShippedCatalogs(catalogs, error)) return state.SkipWithError(error.c_str());
  RunFrames(state, catalogs, static_cast<double>(state.range(0)), false);
}
BENCHMARK(FrameUnderAPlainSky)->ArgName("zoom")->Arg(1)->Arg(10)->Unit(benchmark::kMicrosecond);

// The shipped figures and Milky Way with a million stars that nobody has seen.
void FrameOfAMillionStars(benchmark::State& state) {
  static const std::unique_ptr<scene::SkyCatalogs> catalogs = [] {
    auto made = std::make_unique<scene::SkyCatalogs>();
    std::string error;
    if (!LoadShippedCatalogs(*made, error)) return std::unique_ptr<scene::SkyCatalogs>();
    const std::string path = bench::ScratchPath("million_stars.txt");
    std::ofstream(path, std::ios::binary) << MakeStarTable(1000000);
    scene::CatalogTable table;
    table.Load(path.c_str());
    made->stars.Fill(table);
    return made;
  }();
  if (!catalogs) return state.SkipWithError("the shipped catalogs are missing: build the target data_root");
  RunFrames(state, *catalogs, static_cast<double>(state.range(0)));
}
BENCHMARK(FrameOfAMillionStars)->ArgName("zoom")->Arg(1)->Arg(10)->Unit(benchmark::kMicrosecond);

}  // namespace
