// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A whole frame of skyview as the application computes it, painting left aside: observer's frame, stars,
// figures, Milky Way, horizon, labels. Every frame has a view and, where nothing else is said, a moment of
// its own, so that nothing can be kept and nothing is learnt.
#include <benchmark/benchmark.h>

#include <cmath>
#include <filesystem>
#include <map>
#include <memory>
#include <random>
#include <string>

#include "bench/different_inputs.h"
#include "bench/process_memory.h"
#include "bench/star_generator.h"
#include "common_interfaces/camera.h"
#include "scene/catalogs/data_root.h"
#include "scene/frame/sky_frame.h"
#include "scene/view/observer_frame.h"
#include "utils/program.h"

namespace {

struct View {
  double fraction, lon, lat;
};

// More than any benchmark computes.
const std::vector<View>& GetViews() {
  static const auto views = bench::MakeInputs(3, [](std::mt19937& random) {
    return View{bench::Between(random, 0.0, 1.0), bench::Between(random, -scene::kPi, scene::kPi),
                std::asin(bench::Between(random, 0.0, 1.0))};
  });
  return views;
}

// The data root of the build tree, beside this program, without tile catalogs; null where it is missing.
std::unique_ptr<scene::SkyCatalogs> LoadShippedCatalogs() {
  auto catalogs = std::make_unique<scene::SkyCatalogs>();
  std::string root, error;
  if (!scene::FindDataRoot(GetProgramFolder(), root, error) || !scene::SetSkyRoots(root, "", error) ||
      !scene::LoadSkyCatalogs(*catalogs, error)) {
    return nullptr;
  }
  return catalogs;
}

enum class Shown { kNaturalSky, kPlainSky, kEverything };

// All lines and names that a frame can have.
void ShowEverything(scene::ShownKinds& shown) {
  shown.boundaries = shown.asterisms = shown.planetCelPath = shown.planetLocPath = true;
  shown.planetGrid = shown.planetGuides = shown.moonGrid = shown.moonGuides = true;
  scene::SkyLines& lines = shown.lines;
  lines.equatorialGrid = lines.equator = lines.galacticGrid = lines.meridian = 3;
  lines.eclipticGrid = lines.ecliptic = lines.horizontalGrid = 1;
  lines.points = 31;
}

// A camera with a window of 1600 x 1000, 1920 x 1080 for everything.
class Looker {
 public:
  Looker(double zoom, Shown shown) {
    m_Shown.naturalSky = shown != Shown::kPlainSky;
    if (shown == Shown::kEverything) ShowEverything(m_Shown);
    m_Camera.CreateDefault();
    m_Camera.SetBasePlane(1);
    m_Camera.SetZoom(zoom);
    const int width = shown == Shown::kEverything ? 1920 : 1600,
              height = shown == Shown::kEverything ? 1080 : 1000;
    m_Camera.SetWinRect({width, height, width, height});
  }
  void Compute(const View& view, scene::SkyFrame& frame) {
    CommonInterfaces::_Date time;
    time.day = 2461056;
    time.fraction = view.fraction;
    m_Camera.SetUniversalTime(time);
    SphViewCoor angles;
    angles.lon = view.lon;
    angles.lat = view.lat;
    m_Camera.SetRA_Dec(angles);
    frame.Compute(m_Camera, scene::PrepareObserver(m_Camera, m_Shown.refraction), m_Shown);
  }

 private:
  CommonInterfaces::Camera m_Camera{1};
  scene::ShownKinds m_Shown;
};

enum class Clock { kRuns, kStands };

void RunFrames(benchmark::State& state, const scene::SkyCatalogs& catalogs, double zoom,
               Shown shown = Shown::kNaturalSky, Clock clock = Clock::kRuns) {
  Looker looker(zoom, shown);
  scene::SkyFrame frame(catalogs);
  if (shown == Shown::kEverything) {
    frame.SetShowers(scene::LoadShowers());
    for (int body = 1; body <= 9; ++body) frame.ShowOrbit(body, 0.0);
  }
  std::size_t next = 0, drawn = 0;
  for (auto _ : state) {
    View view = GetViews()[next++ % GetViews().size()];
    if (clock == Clock::kStands) view.fraction = 0.4;  // night
    looker.Compute(view, frame);
    drawn += frame.GetStars().size();
  }
  state.counters["drawn"] = static_cast<double>(drawn) / static_cast<double>(next);
  const bench::ProcessMemory memory = bench::GetProcessMemory();
  state.counters["own_MB"] = memory.own;
  state.counters["mapped_MB"] = memory.mapped;
}

// What ships: 9,096 bright stars and those in tiles.
void FrameOfShippedCatalogs(benchmark::State& state) {
  const auto catalogs = LoadShippedCatalogs();
  if (!catalogs) return state.SkipWithError("the shipped catalogs are missing: build the target data_root");
  RunFrames(state, *catalogs, static_cast<double>(state.range(0)));
}
BENCHMARK(FrameOfShippedCatalogs)->ArgName("zoom")->Arg(1)->Arg(2)->Arg(10)->Unit(benchmark::kMicrosecond);

// The same under a sky without day and night: what the night shows, at every moment.
void FrameUnderAPlainSky(benchmark::State& state) {
  const auto catalogs = LoadShippedCatalogs();
  if (!catalogs) return state.SkipWithError("the shipped catalogs are missing: build the target data_root");
  RunFrames(state, *catalogs, static_cast<double>(state.range(0)), Shown::kPlainSky);
}
BENCHMARK(FrameUnderAPlainSky)->ArgName("zoom")->Arg(1)->Arg(2)->Arg(10)->Unit(benchmark::kMicrosecond);

// The same while time stands and the view turns, as it does under the hand.
void FrameWhileTimeStands(benchmark::State& state) {
  const auto catalogs = LoadShippedCatalogs();
  if (!catalogs) return state.SkipWithError("the shipped catalogs are missing: build the target data_root");
  RunFrames(state, *catalogs, static_cast<double>(state.range(0)), Shown::kNaturalSky, Clock::kStands);
}
BENCHMARK(FrameWhileTimeStands)->ArgName("zoom")->Arg(1)->Arg(2)->Arg(10)->Unit(benchmark::kMicrosecond);

// Grids, circles, boundaries, asterisms, paths, orbits and radiants besides, 1920 x 1080, while the view
// turns.
void FrameWithEverything(benchmark::State& state) {
  const auto catalogs = LoadShippedCatalogs();
  if (!catalogs) return state.SkipWithError("the shipped catalogs are missing: build the target data_root");
  RunFrames(state, *catalogs, static_cast<double>(state.range(0)), Shown::kEverything, Clock::kStands);
}
BENCHMARK(FrameWithEverything)->ArgName("zoom")->Arg(1)->Arg(2)->Arg(10)->Unit(benchmark::kMicrosecond);

// What ships without tiles: what a frame costs besides its faint stars.
void FrameWithoutTiles(benchmark::State& state) {
  const auto catalogs = LoadShippedCatalogs();
  if (!catalogs) return state.SkipWithError("the shipped catalogs are missing: build the target data_root");
  catalogs->starTiles.clear();
  RunFrames(state, *catalogs, static_cast<double>(state.range(0)));
}
BENCHMARK(FrameWithoutTiles)->ArgName("zoom")->Arg(1)->Arg(2)->Arg(10)->Unit(benchmark::kMicrosecond);

// A tile catalog of so many stars (StarGenerator), made by the first run and kept beside the programs; ""
// with a reason where it cannot be.
std::string GetSyntheticCatalog(std::int64_t count, std::string& reason) {
  constexpr double kBytesWhileMaking = 60.0;  // a star: in the file, and in the runs that are sorted
  namespace fs = std::filesystem;
  const fs::path folder = fs::path(GetProgramFolder()).parent_path() / "bench_stars";
  const std::string path = (folder / (std::to_string(count) + "_numbered.tiles")).string();
  std::error_code fault;
  if (fs::exists(path, fault)) return path;
  fs::create_directories(folder, fault);
  if (static_cast<double>(fs::space(folder, fault).available) <
      kBytesWhileMaking * static_cast<double>(count)) {
    reason = "the disk is too small for a catalog of that size";
    return "";
  }
  return bench::MakeStarCatalog(path, static_cast<std::uint64_t>(count), reason) ? path : "";
}

bool UseSyntheticCatalog(std::int64_t count, std::vector<scene::StarTiles>& catalogs, std::string& reason) {
  const std::string path = GetSyntheticCatalog(count, reason);
  scene::StarTiles tiles;
  if (path.empty() || !tiles.Open(path.c_str(), reason)) return false;
  catalogs.clear();
  catalogs.push_back(std::move(tiles));
  return true;
}

// 10^5, 10^6.3 and 10^8 stars. At zoom 2, whose limit of 8.7 all of them reach, equally many are drawn.
void FrameOfTiles(benchmark::State& state) {
  const auto catalogs = LoadShippedCatalogs();
  std::string reason = "the shipped catalogs are missing: build the target data_root";
  if (!catalogs || !UseSyntheticCatalog(state.range(1), catalogs->starTiles, reason))
    return state.SkipWithError(reason.c_str());
  RunFrames(state, *catalogs, static_cast<double>(state.range(0)));
}
BENCHMARK(FrameOfTiles)
    ->ArgNames({"zoom", "stars"})
    ->ArgsProduct({{2, 20}, {100000, 2000000, 100000000}})
    ->Unit(benchmark::kMicrosecond);

// The stars that somebody imported, beside those that ship.
void FrameOfDeepCatalog(benchmark::State& state) {
  const auto catalogs = LoadShippedCatalogs();
  if (!catalogs || catalogs->starTiles.size() < 2)
    return state.SkipWithError("no deep catalog was imported: script/setup --deep-stars");
  RunFrames(state, *catalogs, static_cast<double>(state.range(0)));
}
BENCHMARK(FrameOfDeepCatalog)->ArgName("zoom")->Arg(2)->Arg(20)->Unit(benchmark::kMicrosecond);

void OpenTiles(benchmark::State& state) {
  std::string reason;
  const std::string path = GetSyntheticCatalog(state.range(0), reason);
  if (path.empty()) return state.SkipWithError(reason.c_str());
  for (auto _ : state) {
    scene::StarTiles tiles;
    if (!tiles.Open(path.c_str(), reason)) return state.SkipWithError(reason.c_str());
    benchmark::DoNotOptimize(tiles.GetBandCount());
  }
}
BENCHMARK(OpenTiles)->ArgName("stars")->Arg(100000)->Arg(2000000)->Arg(100000000)->Unit(
    benchmark::kMicrosecond);

// A star by its number, every time another one: by the index of numbers.
void FindTileStar(benchmark::State& state) {
  std::string reason;
  const std::string path = GetSyntheticCatalog(state.range(0), reason);
  scene::StarTiles tiles;
  if (path.empty() || !tiles.Open(path.c_str(), reason)) return state.SkipWithError(reason.c_str());
  const int lowest = tiles.GetLowestNumber(), numbers = tiles.GetHighestNumber() - lowest + 1;
  std::mt19937 random(7);
  std::int64_t found = 0;
  for (auto _ : state) found += tiles.FindNumber(lowest + static_cast<int>(random() % numbers)).GetCount();
  state.SetItemsProcessed(state.iterations());
  if (found == 0) state.SkipWithError("no star was found");
}
BENCHMARK(FindTileStar)->ArgName("stars")->Arg(100000)->Arg(2000000)->Arg(100000000);

}  // namespace
