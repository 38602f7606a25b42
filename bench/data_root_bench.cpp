// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What an application waits for when it starts: every file of the data root of the build tree through its
// reader, and what skyview keeps of the tables; against reading the bytes of the same files. One item is the
// whole data root, the zones of Windows aside.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <vector>

#include "bench/scratch_file.h"
#include "common_interfaces/camera.h"
#include "common_interfaces/flight_objects.h"
#include "common_interfaces/meteor_showers.h"
#include "common_interfaces/object_articles.h"
#include "common_interfaces/panoramas.h"
#include "common_interfaces/planets_and_moons.h"
#include "common_interfaces/settings_data.h"
#include "common_interfaces/sky_images.h"
#include "common_interfaces/string_table.h"
#include "scene/catalogs/data_root.h"
#include "scene/catalogs/sky_catalogs.h"
#include "utils/program.h"
#include "utils/text.h"

namespace {

namespace ci = CommonInterfaces;

bool FindShippedData(std::string& root, std::string& error) {
  return scene::FindDataRoot(GetProgramFolder(), root, error) && scene::SetSkyRoots(root, "", error);
}

void ReloadTexts() {
  ci::QX4Strings::StartLocaleUpdate();
  const ci::QX4Strings load;
  ci::QX4Strings::FinishLocaleUpdate();
}

// False when a file that every data root has is missing.
bool LoadEverything() {
  ReloadTexts();
  ci::SettingsData settings(1, FourCC("FLTR"), "filters.data");
  ci::Camera camera(1);
  camera.CreateDefault();
  scene::SkyCatalogs catalogs;
  std::string error;
  if (!scene::LoadSkyCatalogs(catalogs, error)) return false;
  const ci::PlanetMoonDescription bodies;
  const ci::CSTLImages constellations;
  const ci::MWayImages milkyWay;
  ci::DSOImages photographs;
  const ci::ArticlesInformation articles;
  ci::General3DFlightObjectsList distances;
  ci::Voyvane3DFlightObjectsList flights;
  const ci::PanoramaDesc landscapes;
  std::vector<ci::SHOWER> showers;
  return ci::ReadMeteorShowers(&showers) && bodies.HasMoons(SSO_ID(FourCC("plnt"), 5)) &&
         constellations.GetBegin() != constellations.GetEnd() && milkyWay.GetBegin() != milkyWay.GetEnd() &&
         photographs.GetFirst() && flights.objectInList(FourCC("star"), 1);
}

void DataRootLoad(benchmark::State& state) {
  std::string root, error;
  if (!FindShippedData(root, error)) state.SkipWithError(error.c_str());
  for (auto _ : state) {
    if (!LoadEverything()) state.SkipWithError("a file of the data root is missing");
  }
  state.SetItemsProcessed(state.iterations());
}

void DataRootLoadPeer(benchmark::State& state) {
  std::string root, error;
  if (!FindShippedData(root, error)) state.SkipWithError(error.c_str());
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
    if (entry.is_regular_file()) files.push_back(entry.path().string());
  }
  for (auto _ : state) {
    for (const auto& file : files) benchmark::DoNotOptimize(bench::ReadWhole(file).size());
  }
  state.SetItemsProcessed(state.iterations());
}

BENCHMARK(DataRootLoad)->Unit(benchmark::kMillisecond);
BENCHMARK(DataRootLoadPeer)->Unit(benchmark::kMillisecond);

}  // namespace
