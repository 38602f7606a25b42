// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/star_tiles.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "astro/constants.h"
#include "astro/healpix.h"
#include "astro/vectors.h"
#include "scene/catalogs/star_tile_writer.h"
#include "support/debug_capture.h"
#include "support/temp_dir.h"
#include "utils/bytes.h"
#include "utils/checksum.h"

namespace {

using scene::StarTileRecord;
using scene::StarTiles;
using scene::StarTileWriter;
using scene::TileStar;
using test_support::TempDir;

constexpr double kMas = astro::kRadiansPerArcsecond / 1000.0;

// Stars anywhere, fainter ones more often, every third with a motion.
std::vector<TileStar> MakeStars(int count) {
  std::mt19937_64 dice(1);
  const auto uniform = [&](double from, double to) {
    return std::uniform_real_distribution<double>(from, to)(dice);
  };
  std::vector<TileStar> stars;
  for (int i = 0; i < count; ++i) {
    TileStar star{scene::kHipparcosNumbers + 1 + i, uniform(0.0, astro::kTurn), std::asin(uniform(-1.0, 1.0)),
                  6.0 + 3.0 * std::log10(uniform(1.0, 2000.0))};
    if (i % 2 == 0) star.colour = uniform(-0.4, 2.5);
    if (i % 3 == 0) star.motionEast = uniform(-300.0, 300.0), star.motionNorth = uniform(-300.0, 300.0);
    stars.push_back(star);
  }
  if (count > 3) stars[3].motionEast = -798.0, stars[3].motionNorth = 10328.0;  // as Barnard's star
  return stars;
}

std::string WriteStars(const TempDir& dir, const char* name, const std::vector<TileStar>& stars,
                       std::uint32_t inMemory = StarTileWriter::kStarsInMemory) {
  const std::string path = dir.Path(name);
  StarTileWriter writer(inMemory);
  EXPECT_TRUE(writer.Open(path.c_str(), "a test"));
  for (const TileStar& star : stars) EXPECT_TRUE(writer.Add(star)) << writer.GetError();
  EXPECT_TRUE(writer.Commit()) << writer.GetError();
  EXPECT_EQ(writer.GetCount(), stars.size());
  return path;
}

template <class Visit>
void VisitAll(const StarTiles& tiles, Visit&& visit) {
  for (int band = 0; band < tiles.GetBandCount(); ++band) {
    const std::uint32_t cells = astro::GetHealpixCellCount(tiles.GetBand(band).order);
    for (std::uint32_t cell = 0; cell < cells; ++cell) {
      const auto stars = tiles.GetStars(band, cell);
      for (std::uint32_t i = 0; i < stars.GetCount(); ++i) visit(band, cell, stars[i]);
    }
  }
}

std::size_t CountAll(const StarTiles& tiles) {
  std::size_t count = 0;
  VisitAll(tiles, [&](int, std::uint32_t, const StarTileRecord&) { ++count; });
  return count;
}

TEST(StarTiles, EveryStarComesBackOnceAsItWas) {
  const TempDir dir;
  const auto stars = MakeStars(20000);
  StarTiles tiles;
  std::string error;
  ASSERT_TRUE(tiles.Open(WriteStars(dir, "t.tiles", stars).c_str(), error)) << error;
  EXPECT_EQ(tiles.GetCount(), stars.size());
  EXPECT_EQ(tiles.GetOrigin(), "a test");
  EXPECT_EQ(tiles.GetLowestNumber(), 1000001);
  EXPECT_EQ(tiles.GetHighestNumber(), 1020000);
  std::vector<int> seen(stars.size());
  VisitAll(tiles, [&](int band, std::uint32_t, const StarTileRecord& record) {
    const std::size_t index = static_cast<std::size_t>(record.GetNumber() - 1000001);
    ASSERT_LT(index, stars.size());
    ++seen[index];
    const TileStar& star = stars[index];
    EXPECT_LT(VectorsAngle(record.GetDirection().v, scene::MakeDirection(star.ra, star.dec).v), 0.25 * kMas);
    EXPECT_NEAR(record.GetMagnitude(), star.magnitude, 0.000501);
    EXPECT_NEAR(record.GetCode(), (star.magnitude + 2.0) * 10.0, 0.00501);
    if (std::isnan(star.colour)) {
      EXPECT_TRUE(std::isnan(record.GetColour()));
    } else {
      EXPECT_NEAR(record.GetColour(), star.colour, 0.000501);
    }
    EXPECT_EQ(record.HasMotion(), !std::isnan(star.motionEast));
    EXPECT_LE(Vmod(record.GetMotion().v, 3), tiles.GetBand(band).maxMotion * (1.0 + 1e-12));
    EXPECT_GE(record.GetCode(), tiles.GetBand(band).brightest);
    EXPECT_LE(record.GetCode(), tiles.GetBand(band).faintest);
  });
  EXPECT_EQ(std::count(seen.begin(), seen.end(), 1), static_cast<std::ptrdiff_t>(stars.size()));
  EXPECT_FALSE(tiles.HasDamage());
}

TEST(StarTiles, CellHoldsTheStarsOfItsPlaceBrightestFirst) {
  const TempDir dir;
  StarTiles tiles;
  std::string error;
  ASSERT_TRUE(tiles.Open(WriteStars(dir, "t.tiles", MakeStars(20000)).c_str(), error)) << error;
  std::map<std::pair<int, std::uint32_t>, int> last;
  VisitAll(tiles, [&](int band, std::uint32_t cell, const StarTileRecord& star) {
    EXPECT_EQ(astro::GetHealpixCell(tiles.GetBand(band).order, star.GetDirection().v), cell);
    const auto [before, isFirst] = last.emplace(std::pair(band, cell), star.GetMillimagnitudes());
    EXPECT_LE(before->second, star.GetMillimagnitudes());
    before->second = star.GetMillimagnitudes();
  });
}

TEST(StarTiles, MotionIsThatOfTheDirection) {
  const TempDir dir;
  const auto stars = MakeStars(2000);
  StarTiles tiles;
  std::string error;
  ASSERT_TRUE(tiles.Open(WriteStars(dir, "t.tiles", stars).c_str(), error)) << error;
  VisitAll(tiles, [&](int, std::uint32_t, const StarTileRecord& record) {
    const TileStar& star = stars[static_cast<std::size_t>(record.GetNumber() - 1000001)];
    if (!record.HasMotion()) return;
    const double lon = star.ra, lat = star.dec;
    const scene::Direction east = {{-std::sin(lon), std::cos(lon), 0.0}};
    const scene::Direction north = {
        {-std::cos(lon) * std::sin(lat), -std::sin(lon) * std::sin(lat), std::cos(lat)}};
    const scene::Direction motion = record.GetMotion();
    EXPECT_NEAR(scene::Dot(motion, east) / kMas, star.motionEast, 0.2501);
    EXPECT_NEAR(scene::Dot(motion, north) / kMas, star.motionNorth, 0.2501);
    EXPECT_NEAR(scene::Dot(motion, record.GetDirection()), 0.0, 1e-18);
  });
}

TEST(StarTiles, FastStarsHaveABandOfTheirOwn) {
  const TempDir dir;
  StarTiles tiles;
  std::string error;
  ASSERT_TRUE(tiles.Open(WriteStars(dir, "t.tiles", MakeStars(2000)).c_str(), error)) << error;
  int fast = 0;
  for (int band = 0; band < tiles.GetBandCount(); ++band) {
    if (tiles.GetBand(band).maxMotion / kMas > 500.5) {
      EXPECT_EQ(tiles.GetBand(band).count, 1u);
      EXPECT_NEAR(tiles.GetBand(band).maxMotion / kMas, std::hypot(798.0, 10328.0), 0.5);
      ++fast;
    }
  }
  EXPECT_EQ(fast, 1);
}

TEST(StarTiles, StarIsFoundByItsNumber) {
  const TempDir dir;
  StarTiles tiles;
  std::string error;
  ASSERT_TRUE(tiles.Open(WriteStars(dir, "t.tiles", MakeStars(2000)).c_str(), error)) << error;
  for (const int number : {1000001, 1000004, 1002000}) {
    ASSERT_EQ(tiles.FindNumber(number).GetCount(), 1u);
    EXPECT_EQ(tiles.FindNumber(number)[0].GetNumber(), number);
  }
  for (const int number : {-1, 0, 1000000, 1002001}) EXPECT_EQ(tiles.FindNumber(number).GetCount(), 0u);
}

// 2000 stars are four blocks of the index; every number has its star, and those between have none.
TEST(StarTiles, EveryNumberLeadsToItsStar) {
  const TempDir dir;
  auto stars = MakeStars(2000);
  for (TileStar& star : stars) star.number = 2 * star.number;
  StarTiles tiles;
  std::string error;
  ASSERT_TRUE(tiles.Open(WriteStars(dir, "t.tiles", stars, 300).c_str(), error)) << error;
  EXPECT_TRUE(tiles.HasNumberIndex());
  EXPECT_TRUE(tiles.IsNumberIndexSound());
  for (const TileStar& star : stars) {
    const auto found = tiles.FindNumber(star.number);
    ASSERT_EQ(found.GetCount(), 1u) << star.number;
    EXPECT_EQ(found[0].GetNumber(), star.number);
    EXPECT_LT(VectorsAngle(found[0].GetDirection().v, scene::MakeDirection(star.ra, star.dec).v),
              0.25 * kMas);
    EXPECT_EQ(tiles.FindNumber(star.number + 1).GetCount(), 0u);
  }
}

// Where the index of that many stars begins, from the end of the file.
std::size_t GetNumbersSize(std::size_t stars) { return stars * 8 + (stars + 510) / 511 * 4; }

// A file without the index, as the first version has it.
std::string AsFirstVersion(std::string bytes, std::size_t stars) {
  bytes.resize(bytes.size() - GetNumbersSize(stars));
  auto* const header = reinterpret_cast<unsigned char*>(bytes.data());
  StoreLE32(header + 8, 1);
  StoreLE64(header + 32, bytes.size());
  StoreLE32(header + 16, 0);
  StoreLE32(header + 16, GetCrc32({bytes.data(), LoadLE32(header + 12)}));
  return bytes;
}

TEST(StarTiles, FilesWithoutAnIndexOfNumbersAreReadAsEver) {
  const TempDir dir;
  const std::string bytes =
      dir.Read(std::filesystem::path(WriteStars(dir, "t.tiles", MakeStars(2000))).filename().string());
  dir.Write("old.tiles", AsFirstVersion(bytes, 2000));
  StarTiles tiles;
  std::string error;
  ASSERT_TRUE(tiles.Open(dir.Path("old.tiles").c_str(), error)) << error;
  EXPECT_FALSE(tiles.HasNumberIndex());
  EXPECT_TRUE(tiles.IsNumberIndexSound()) << "there is none to be damaged";
  EXPECT_EQ(CountAll(tiles), 2000u);
  for (const int number : {1000001, 1000004, 1002000})
    EXPECT_EQ(tiles.FindNumber(number)[0].GetNumber(), number);
}

TEST(StarTiles, DamagedIndexOfNumbersIsOneLineAndLosesNoStar) {
  const TempDir dir;
  std::string bytes =
      dir.Read(std::filesystem::path(WriteStars(dir, "t.tiles", MakeStars(2000))).filename().string());
  const std::size_t begin = bytes.size() - GetNumbersSize(2000);
  for (const std::size_t at : {begin, begin + 4, begin + 2 * 4092 + 100, bytes.size() - 1}) {
    std::string damaged = bytes;
    damaged[at] = static_cast<char>(damaged[at] ^ 1);
    dir.Write("damaged.tiles", damaged);
    StarTiles tiles;
    std::string error;
    ASSERT_TRUE(tiles.Open(dir.Path("damaged.tiles").c_str(), error)) << error;
    EXPECT_FALSE(tiles.IsNumberIndexSound());
    const test_support::DebugCapture diagnostics;
    for (int number = 1000001; number <= 1002000; number += 37)
      EXPECT_EQ(tiles.FindNumber(number)[0].GetNumber(), number);
    EXPECT_EQ(diagnostics.lines, std::vector<std::string>{dir.Path("damaged.tiles") +
                                                          ": the index of numbers is damaged: stars are "
                                                          "looked for one by one\n"});
  }
}

// An index with good sums that leads elsewhere: no star of another number, no look beside the file.
TEST(StarTiles, IndexThatLeadsAstrayFindsByLooking) {
  const TempDir dir;
  const std::string bytes =
      dir.Read(std::filesystem::path(WriteStars(dir, "t.tiles", MakeStars(400))).filename().string());
  const std::size_t begin = bytes.size() - GetNumbersSize(400);
  for (const std::uint32_t place : {0xFFFFFFFFu, 400u, 0u}) {
    std::string astray = bytes;
    for (std::size_t i = 0; i < 400; ++i) StoreLE32(astray.data() + begin + 4 + 8 * i + 4, place);
    const std::string entries = astray.substr(begin + 4);
    StoreLE32(astray.data() + begin, GetCrc32(entries, GetCrc32({"\0\0\0\0", 4})));
    dir.Write("astray.tiles", astray);
    StarTiles tiles;
    std::string error;
    ASSERT_TRUE(tiles.Open(dir.Path("astray.tiles").c_str(), error)) << error;
    EXPECT_FALSE(tiles.IsNumberIndexSound());
    const test_support::DebugCapture diagnostics;
    for (const int number : {1000001, 1000200, 1000400})
      EXPECT_EQ(tiles.FindNumber(number)[0].GetNumber(), number);
    EXPECT_EQ(diagnostics.lines.size(), 1u);
  }
}

TEST(StarTiles, OrderAndMemoryOfTheWriterMakeNoDifference) {
  const TempDir dir;
  auto stars = MakeStars(5000);
  WriteStars(dir, "memory.tiles", stars);
  std::reverse(stars.begin(), stars.end());
  WriteStars(dir, "disk.tiles", stars, 700);
  EXPECT_EQ(dir.Read("memory.tiles"), dir.Read("disk.tiles"));
  const auto files = std::filesystem::directory_iterator(dir.Path());
  EXPECT_EQ(std::distance(begin(files), end(files)), 2) << "what was sorted on the disk is gone";
}

TEST(StarTiles, CatalogWithoutStars) {
  const TempDir dir;
  StarTiles tiles;
  std::string error;
  ASSERT_TRUE(tiles.Open(WriteStars(dir, "t.tiles", {}).c_str(), error)) << error;
  EXPECT_EQ(tiles.GetCount(), 0u);
  EXPECT_EQ(tiles.GetBandCount(), 0);
  EXPECT_EQ(tiles.FindNumber(0).GetCount(), 0u);
}

TEST(StarTiles, NothingIsOpenAfterAFailure) {
  const TempDir dir;
  StarTiles tiles;
  std::string error;
  ASSERT_TRUE(tiles.Open(WriteStars(dir, "t.tiles", MakeStars(20)).c_str(), error));
  EXPECT_FALSE(tiles.Open(dir.Path("missing").c_str(), error));
  EXPECT_EQ(error.find(dir.Path("missing") + ": "), 0u) << error;
  EXPECT_FALSE(tiles.IsOpen());
  EXPECT_EQ(tiles.GetBandCount(), 0);
  for (const char* content :
       {"", "S", "STARTILE", "no such file at all, but long enough for a header......."}) {
    EXPECT_FALSE(tiles.Open(dir.Write("bad", content).c_str(), error));
    EXPECT_EQ(error, dir.Path("bad") + ": it is no star tile catalog") << content;
  }
}

// Whatever byte is wrong: either the file is refused, or what it stands in is left out with one line.
TEST(StarTiles, EveryDamagedByteIsNoticed) {
  const TempDir dir;
  WriteStars(dir, "t.tiles", MakeStars(25));
  const std::string whole = dir.Read("t.tiles");
  constexpr int kFlips[] = {1, 0x80, 0xFF};
  for (std::size_t at = 0; at < whole.size(); ++at) {
    std::string damaged = whole;
    damaged[at] = static_cast<char>(damaged[at] ^ kFlips[at % 3]);
    test_support::DebugCapture capture;
    StarTiles tiles;
    std::string error;
    if (!tiles.Open(dir.Write("bad", damaged).c_str(), error)) {
      ASSERT_EQ(error.find(dir.Path("bad") + ": "), 0u);
      ASSERT_EQ(error.find('\n'), std::string::npos);
      continue;
    }
    const std::size_t left = CountAll(tiles);
    if (at >= whole.size() - GetNumbersSize(25)) {
      ASSERT_EQ(left, 25u);
      ASSERT_FALSE(tiles.IsNumberIndexSound()) << at;
      for (int number = 1000001; number <= 1000025; ++number)
        ASSERT_EQ(tiles.FindNumber(number)[0].GetNumber(), number);
      ASSERT_EQ(capture.lines.size(), 1u) << at;
      continue;
    }
    ASSERT_TRUE(tiles.HasDamage()) << at;
    ASSERT_EQ(capture.lines.size(), 1u) << at;
    ASSERT_LE(left, 25u);
    ASSERT_EQ(CountAll(tiles), left);
    ASSERT_EQ(capture.lines.size(), 1u) << "no second line";
  }
}

TEST(StarTiles, ShorterAndLongerFilesAreRefused) {
  const TempDir dir;
  WriteStars(dir, "t.tiles", MakeStars(5));
  const std::string whole = dir.Read("t.tiles");
  StarTiles tiles;
  std::string error;
  for (std::size_t size = 0; size < whole.size(); ++size)
    ASSERT_FALSE(tiles.Open(dir.Write("bad", whole.substr(0, size)).c_str(), error)) << size;
  EXPECT_FALSE(tiles.Open(dir.Write("bad", whole + '\0').c_str(), error));
}

}  // namespace
