// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The import of the real Tycho-2, where the package astrometry-data-tycho2-07-littleendian is installed
// (script/setup --deep-stars).
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "astro/healpix.h"
#include "scene/catalogs/star_tiles.h"
#include "skydata/build/catalogs.h"
#include "skydata/build/star_catalog.h"
#include "skydata/build/star_tiles.h"
#include "skydata/stars/import.h"
#include "skydata/stars/motion.h"
#include "skydata/stars/star_input.h"
#include "support/temp_dir.h"
#include "utils/progress_bar.h"

namespace skydata {
namespace {

constexpr char kIndexFile[] = "/usr/share/astrometry/index-tycho2-07.littleendian.fits";
constexpr double kDegree = scene::kRadiansPerDegree, kArcsecond = kDegree / 3600.0;
constexpr double kYears = 8.75;  // from 1991.25 to 2000.0

scene::Direction Plus(const scene::Direction& a, double factor, const scene::Direction& b) {
  return {{a.v[0] + factor * b.v[0], a.v[1] + factor * b.v[1], a.v[2] + factor * b.v[2]}};
}

// A star that is drawn already: from where it stands now back to where it stood in 1991.25.
struct Known {
  scene::Direction now, way;
  double magnitude;

  // Arc seconds from its way; below a minute the chord is the angle.
  double GetDistance(const scene::Direction& there) const {
    const scene::Direction to = Plus(there, -1.0, now);
    const double length = scene::Dot(way, way);
    const double part = length > 0.0 ? std::clamp(scene::Dot(to, way) / length, 0.0, 1.0) : 0.0;
    const scene::Direction rest = Plus(to, -part, way);
    return std::sqrt(scene::Dot(rest, rest)) / kArcsecond;
  }
};

std::vector<Known> CollectKnown(const std::string& tilesPath) {
  std::vector<Known> known;
  for (const BrightStar& star : ReadBrightStars(CI_DATA_SOURCE)) {
    const scene::Direction motion = MakeMotion(star.ra, star.dec, star.motionEast, star.motionNorth);
    known.push_back({scene::MakeDirection(star.ra, star.dec), Plus({}, -kYears, motion), star.magnitude});
  }
  scene::StarTiles tiles;
  std::string error;
  EXPECT_TRUE(tiles.Open(tilesPath.c_str(), error)) << error;
  for (int band = 0; band < tiles.GetBandCount(); ++band) {
    for (std::uint32_t cell = 0; cell < astro::GetHealpixCellCount(tiles.GetBand(band).order); ++cell) {
      const auto stars = tiles.GetStars(band, cell);
      for (std::uint32_t i = 0; i < stars.GetCount(); ++i)
        known.push_back(
            {stars[i].GetDirection(), Plus({}, -kYears, stars[i].GetMotion()), stars[i].GetMagnitude()});
    }
  }
  std::sort(known.begin(), known.end(),
            [](const Known& a, const Known& b) { return a.now.v[2] < b.now.v[2]; });
  return known;
}

struct Pair {
  std::size_t known;
  int number;
  double distance, magnitude;
};

class Tycho2 : public testing::Test {
 protected:
  void SetUp() override {
    if (!std::filesystem::exists(kIndexFile))
      GTEST_SKIP() << "Tycho-2 is not installed: script/setup --deep-stars";
    dir.Write("root/catalogs/stars.txt", MakeStarCatalog(CI_DATA_SOURCE));
    dir.Write("root/catalogs/stars.tiles", MakeStarTiles(CI_DATA_SOURCE, dir.Path()).bytes);
  }
  test_support::TempDir dir;
};

// Counts and the brightest star as the index file itself says them (its FITS tables, read with astropy).
TEST_F(Tycho2, EveryStarIsReadOnceAndTheBrightestIsAlphaCentauri) {
  const auto input = OpenStarInput(kIndexFile);
  scene::TileStar star{}, brightest{};
  brightest.magnitude = std::numeric_limits<double>::infinity();
  std::uint64_t count = 0;
  while (input->Take(star)) {
    ++count;
    if (star.magnitude < brightest.magnitude) brightest = star;
  }
  EXPECT_EQ(count, 1871010u) << "of 1871011, of which one has no place";
  EXPECT_NEAR(brightest.magnitude, 0.137, 0.0005);
  EXPECT_NEAR(std::remainder(brightest.ra / kDegree - 219.920, 360.0), 0.0, 0.0005);
  EXPECT_NEAR(brightest.dec / kDegree, -60.835, 0.0005);
}

// What the picture shows beside the stars that it has: none within 4", none within 30" of the same brightness
// unless something of the file stands nearer to that star and is taken for it.
TEST_F(Tycho2, NoStarIsDrawnTwice) {
  ProgressBar progress(nullptr);
  const auto made = ImportStars(kIndexFile, dir.Path("root"), dir.Path("deep.tiles"), progress);
  EXPECT_EQ(made.read, 1871010u);
  EXPECT_EQ(made.placeless, 1u);
  scene::StarTiles tiles;
  std::string error;
  ASSERT_TRUE(tiles.Open(dir.Path("deep.tiles").c_str(), error)) << error;
  EXPECT_EQ(tiles.GetCount() + made.known, made.read);
  EXPECT_TRUE(tiles.IsNumberIndexSound());

  const std::vector<Known> known = CollectKnown(dir.Path("root/catalogs/stars.tiles"));
  ASSERT_EQ(known.size(), 118311u);
  std::vector<double> nearest(known.size(), std::numeric_limits<double>::infinity());
  std::vector<Pair> pairs;
  const auto input = OpenStarInput(kIndexFile);
  scene::TileStar star{};
  constexpr double kReach = 35.0 * kArcsecond, kFar = 30.0, kFastest = 100.0 * kArcsecond;
  while (input->Take(star)) {
    const scene::Direction there = scene::MakeDirection(star.ra, star.dec);
    auto candidate = std::lower_bound(known.begin(), known.end(), there.v[2] - kReach - kFastest,
                                      [](const Known& a, double z) { return a.now.v[2] < z; });
    for (; candidate != known.end() && candidate->now.v[2] <= there.v[2] + kReach + kFastest; ++candidate) {
      if (scene::Dot(candidate->now, there) < 0.9999) continue;
      const double distance = candidate->GetDistance(there);
      if (distance > kFar) continue;
      const auto index = static_cast<std::size_t>(candidate - known.begin());
      nearest[index] = std::min(nearest[index], distance);
      pairs.push_back({index, star.number, distance, star.magnitude});
    }
  }
  EXPECT_GT(pairs.size(), 118000u) << "nearly every known star is one of Tycho-2";
  int neighbours = 0;
  for (const Pair& pair : pairs) {
    if (tiles.FindNumber(pair.number).GetCount() == 0) continue;
    ++neighbours;
    EXPECT_GT(pair.distance, 4.0) << pair.number;
    if (std::fabs(pair.magnitude - known[pair.known].magnitude) <= 0.7) {
      EXPECT_LT(nearest[pair.known], pair.distance) << pair.number;
    }
  }
  EXPECT_GT(neighbours, 500) << "companions of known stars stay";
}

}  // namespace
}  // namespace skydata
