// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Loading a catalog of deep-sky images, against a plain reader of the same lines: sscanf and the same kind of
// map.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <fstream>
#include <map>
#include <random>
#include <string>
#include <utility>

#include "bench/scratch_file.h"
#include "common_interfaces/sky_images.h"
#include "utils/path.h"

namespace {

using CommonInterfaces::DSOImageDesc;
using CommonInterfaces::DSOImages;

constexpr char kLogicalFolder[] = "media/skyobjects/dso_images";

// Makes the file with that many pictures below the data root and returns its path.
std::string MakeFile(int pictures) {
  const std::filesystem::path folder = std::filesystem::path(bench::ScratchPath("")) / kLogicalFolder;
  std::filesystem::create_directories(folder);
  const std::string path = (folder / "dsoimagestrue.txt").string();
  std::mt19937 random(20260115);
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  std::ofstream out(path, std::ios::binary);
  char line[128];
  for (int i = 1; i <= pictures; ++i) {
    std::snprintf(line, sizeof line, "%d %.2f %.5f %.5f %.1f %d %.3f %d %.3f %.2f\n", i, 60.0 * unit(random),
                  360.0 * unit(random), 180.0 * unit(random) - 90.0, 180.0 * unit(random), i % 4,
                  0.5 + unit(random), i % 5, 0.1 * unit(random), 1.0 + unit(random));
    out << line;
  }
  out.close();
  ZentharPath::SetRoots(bench::ScratchPath("").c_str(), nullptr);
  return path;
}

std::size_t LoadPeer(const std::string& path) {
  std::map<std::pair<unsigned, unsigned>, DSOImageDesc> catalog;
  std::ifstream in(path, std::ios::binary);
  for (std::string line; std::getline(in, line);) {
    DSOImageDesc image;
    double size, ra, dec;
    if (std::sscanf(line.c_str(), "%u %lf %lf %lf %lf %d %lf %d %lf %lf", &image.number, &size, &ra, &dec,
                    &image.rotation, &image.flags, &image.aspectRatio, &image.layer, &image.blackPoint,
                    &image.brightness) == 10) {
      catalog.emplace(std::make_pair(image.number, 0u), image);
    }
  }
  return catalog.size();
}

void DeepskyImagesLoad(benchmark::State& state) {
  MakeFile(static_cast<int>(state.range(0)));
  for (auto _ : state) DSOImages::Reload();
  DSOImages images;
  if (!images.Find(0, static_cast<int>(state.range(0)))) state.SkipWithError("the last picture is missing");
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void DeepskyImagesLoadPeer(benchmark::State& state) {
  const std::string path = MakeFile(static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(LoadPeer(path));
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(DeepskyImagesLoad)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(DeepskyImagesLoadPeer)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace
