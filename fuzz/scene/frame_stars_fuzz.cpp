// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The stars of tiles in a view against a walk over all stars of the catalog: stars, view and window come from
// the input.
#include <map>
#include <string>

#include "astro/healpix.h"
#include "fuzz/input.h"
#include "fuzz/scratch.h"
#include "scene/frame/tile_stars.h"
#include "scene/frame_helpers.h"
#include "scene/tile_files.h"
#include "scene/visibility/zoom_range.h"

namespace {

using fuzz::Input;
using fuzz::Require;
using namespace scene;

host_test::FrameFixture& Sky() {
  static host_test::FrameFixture sky;
  return sky;
}

// Anywhere, at a pole, or near the star before.
void TakeStars(Input& input, const std::string& path) {
  std::vector<TileStar> stars;
  const int count = input.TakeBelow(64);
  for (int i = 0; i < count; ++i) {
    TileStar star{kHipparcosNumbers + 1 + i, input.TakeReal(0.0, 2.0 * kPi), 0.0, input.TakeReal(-1.0, 14.0)};
    star.dec = std::asin(input.TakeReal(-1.0, 1.0));
    const int kind = input.TakeByte();
    if (kind < 16) star.dec = kind < 8 ? 0.5 * kPi : -0.5 * kPi;
    if (kind >= 200 && i > 0) {
      star.ra = stars.back().ra;
      star.dec = stars.back().dec + 1e-4 * (kind - 228);
      if (std::abs(star.dec) > 0.5 * kPi) star.dec = stars.back().dec;
    }
    if (kind % 3 == 0) {
      star.motionEast = input.TakeReal(-10000.0, 10000.0);
      star.motionNorth = input.TakeReal(-10000.0, 10000.0);
    }
    if (StarTileWriter::FindFault(star) == nullptr) stars.push_back(star);
  }
  Require(host_test::WriteTiles(path, stars), "a catalog can be written");
}

void TakeView(Input& input, const SkyCatalogs& catalogs) {
  host_test::FrameFixture& sky = Sky();
  sky.camera.SetBasePlane(input.TakeBool() ? 1 : 2);
  CommonInterfaces::_Date time;
  time.day = 2451545 + static_cast<int>(input.TakeReal(-3e6, 3e6) * (input.TakeBool() ? 1.0 : 0.01));
  time.fraction = input.TakeReal(0.0, 0.999);
  sky.camera.SetUniversalTime(time);
  sky.SetWindow(64 + input.TakeBelow(4000), 64 + input.TakeBelow(3000));
  sky.camera.SetZoom(std::exp(input.TakeReal(std::log(kMinZoom), std::log(kMaxZoom))));
  SphViewCoor angles;
  angles.lon = input.TakeReal(0.0, 2.0 * kPi);
  angles.lat = std::asin(input.TakeReal(-1.0, 1.0));
  angles.slope = input.TakeReal(-kPi, kPi);
  // Towards a star of the catalog, in a frame that stands still among the stars: few views see one else.
  if (input.TakeBool() && catalogs.starTiles[0].GetCount() > 0) {
    sky.camera.SetBasePlane(2);
    const StarTileRecords found = catalogs.starTiles[0].FindNumber(catalogs.starTiles[0].GetLowestNumber());
    if (found.GetCount() > 0) {
      const Direction direction = found[0].GetDirection();
      angles.lon = std::atan2(direction.v[1], direction.v[0]);
      angles.lat = std::asin(std::min(1.0, std::max(-1.0, direction.v[2])));
    }
  }
  sky.camera.SetRA_Dec(angles);
  sky.shown.naturalSky = false;
  sky.shown.horizon = input.TakeBool();
  sky.observer = PrepareObserver(sky.camera);
}

using Pixels = std::map<int, tPoint<double>>;

Pixels WalkOverAll(const StarTiles& tiles, const ObjectTests& tests) {
  Pixels pixels;
  for (int band = 0; band < tiles.GetBandCount(); ++band) {
    const std::uint32_t cells = astro::GetHealpixCellCount(tiles.GetBand(band).order);
    for (std::uint32_t cell = 0; cell < cells; ++cell) {
      const StarTileRecords stars = tiles.GetStars(band, cell);
      for (std::uint32_t i = 0; i < stars.GetCount(); ++i) {
        ObjectPlace place;
        if (tests.FindStarObstacles(stars[i], place) == 0) pixels[stars[i].GetNumber()] = place.pixel;
      }
    }
  }
  return pixels;
}

void Compare(const SkyCatalogs& catalogs) {
  host_test::FrameFixture& sky = Sky();
  static const Landscape noLand;
  const SkyLight light;
  const ViewGeometry geometry(sky.camera);
  const ObjectTests tests(catalogs, geometry, sky.observer, sky.shown, ObjectFilters::None(), light, noLand);
  const Pixels expected = WalkOverAll(catalogs.starTiles[0], tests);
  TileStars found(catalogs);
  found.Find(geometry, tests);
  Require(found.GetCount() == expected.size(), "the tiles of a view have the stars of the whole catalog");
  for (std::size_t i = 0; i < found.GetCount(); ++i) {
    const auto place = expected.find(found.Get(i).star.GetNumber());
    Require(place != expected.end(), "each of them");
    Require(place->second.x == found.Get(i).pixel.x && place->second.y == found.Get(i).pixel.y,
            "at the same pixel");
    Require(i == 0 || found.Get(i - 1).star.GetMillimagnitudes() <= found.Get(i).star.GetMillimagnitudes(),
            "brightest first");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string path = fuzz::Scratch::Get().Path("work/a.tiles");
  Sky();
  Input input(data, size);
  TakeStars(input, path);
  SkyCatalogs catalogs;
  catalogs.starTiles.resize(1);
  std::string error;
  Require(catalogs.starTiles[0].Open(path.c_str(), error), "a catalog that was written can be opened");
  TakeView(input, catalogs);
  Compare(catalogs);
  return 0;
}
