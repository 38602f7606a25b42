// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/sky_map.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "support/temp_dir.h"

namespace scene {
namespace {

// The example of docs/formats/sky_map.md; its sum is that of zlib.
constexpr unsigned char kExample[] = {0x53, 0x4B, 0x59, 0x4C, 0x49, 0x47, 0x48, 0x54, 0x01, 0x00, 0x00,
                                      0x00, 0x1C, 0x00, 0x00, 0x00, 0x11, 0x3E, 0x95, 0x0B, 0x02, 0x00,
                                      0x00, 0x00, 0x44, 0x75, 0x73, 0x6B, 0x0A, 0x14, 0x1E, 0xFF};

std::string GetExample() { return {reinterpret_cast<const char*>(kExample), sizeof kExample}; }

std::string ReasonOf(const std::string& bytes) {
  SkyMap map;
  std::string reason;
  EXPECT_FALSE(map.Read(bytes, reason));
  EXPECT_TRUE(map.IsEmpty());
  return reason;
}

SkyMap MakeMap(int side, const std::string& cells) {
  SkyMap map;
  std::string reason;
  EXPECT_TRUE(map.Read(MakeSkyMap(side, cells, ""), reason)) << reason;
  return map;
}

// Directions all over the sphere, a golden angle apart.
template <class Visit>
void VisitDirections(int count, Visit&& visit) {
  for (int i = 0; i < count; ++i)
    visit(MakeDirection(2.39996322972865332 * i, std::asin(1.0 - (2.0 * i + 1.0) / count)));
}

}  // namespace

TEST(SkyMap, ReadsAndWritesTheWorkedExample) {
  EXPECT_EQ(MakeSkyMap(2, "\x0A\x14\x1E\xFF", "Dusk"), GetExample());
  SkyMap map;
  std::string reason;
  ASSERT_TRUE(map.Read(GetExample(), reason)) << reason;
  EXPECT_EQ(map.GetSide(), 2);
  EXPECT_EQ(map.GetOrigin(), "Dusk");
  EXPECT_EQ(map.GetCell(0, 0), 10);
  EXPECT_EQ(map.GetCell(1, 0), 20);
  EXPECT_EQ(map.GetCell(0, 1), 30);
  EXPECT_EQ(map.GetCell(1, 1), 255);
}

TEST(SkyMap, EveryByteThatIsTurnedOverIsFound) {
  const std::string whole = GetExample();
  for (std::size_t i = 0; i < whole.size(); ++i) {
    for (int bit = 0; bit < 8; ++bit) {
      std::string damaged = whole;
      damaged[i] = static_cast<char>(damaged[i] ^ 1 << bit);
      EXPECT_FALSE(ReasonOf(damaged).empty()) << i << ' ' << bit;
    }
  }
  for (std::size_t size = 0; size < whole.size(); ++size)
    EXPECT_FALSE(ReasonOf(whole.substr(0, size)).empty());
  EXPECT_EQ(ReasonOf(whole + '\0'), "the map is not as long as it says");
}

TEST(SkyMap, SaysWhatIsWrong) {
  const std::string whole = GetExample();
  const auto with = [&whole](std::size_t at, char value) {
    std::string bytes = whole;
    bytes[at] = value;
    return ReasonOf(bytes);
  };
  EXPECT_EQ(ReasonOf(""), "it is no map of the sky");
  EXPECT_EQ(with(0, 's'), "it is no map of the sky");
  EXPECT_EQ(with(8, 2), "it is a map of the sky of another version");
  EXPECT_EQ(with(20, 0), "the header of the map is damaged");
  EXPECT_EQ(with(20, 3), "the header of the map is damaged") << "an odd number of cells";
  EXPECT_EQ(with(23, 1), "the header of the map is damaged") << "more cells than a map can have";
  EXPECT_EQ(with(12, 23), "the header of the map is damaged") << "a header that is too short";
  EXPECT_EQ(with(15, 1), "the header of the map is damaged") << "an origin of 16 MB";
  EXPECT_EQ(with(20, 4), "the map is not as long as it says");
  EXPECT_EQ(with(28, 11), "the map is damaged: its sum is wrong");
}

TEST(SkyMap, AFileThatIsRefusedIsNamedAndTheMapStays) {
  const test_support::TempDir dir;
  dir.Write("good.map", GetExample());
  dir.Write("bad.map", "x");
  SkyMap map;
  std::string error;
  ASSERT_TRUE(map.Load(dir.Path("good.map").c_str(), error)) << error;
  EXPECT_FALSE(map.Load(dir.Path("bad.map").c_str(), error));
  EXPECT_EQ(error, dir.Path("bad.map") + ": it is no map of the sky");
  EXPECT_EQ(map.GetSide(), 2);
  EXPECT_FALSE(map.Load(dir.Path("none.map").c_str(), error));
  EXPECT_EQ(error, dir.Path("none.map") + ": cannot be read");
}

// The middle of the square is the north pole, its corners are the south pole, the middles of its edges lie on
// the equator: at right ascension 0 the right one, at 6h the lower one.
TEST(SkyMap, CellsLieWhereTheFormatSays) {
  constexpr int kSide = 100;
  const auto expect = [](int column, int row, const Direction& wanted) {
    const Direction direction = SkyMap::GetCellDirection(kSide, column, row);
    EXPECT_NEAR(Dot(direction, direction), 1.0, 1e-15);
    EXPECT_GT(Dot(direction, wanted), std::cos(2.0 / kSide)) << column << ' ' << row;
  };
  expect(50, 50, {{0, 0, 1}});
  for (const int column : {0, kSide - 1}) {
    for (const int row : {0, kSide - 1}) expect(column, row, {{0, 0, -1}});
  }
  expect(kSide - 1, 50, {{1, 0, 0}});
  expect(50, kSide - 1, {{0, 1, 0}});
  expect(0, 50, {{-1, 0, 0}});
  expect(50, 0, {{0, -1, 0}});
  // By hand: x = 0.5, y = -0.7 lies beyond the equator, folded to 0.3, -0.5, with z = -0.2.
  const Direction folded = SkyMap::GetCellDirection(10, 7, 1);
  const double length = std::sqrt(0.5 * 0.5 + 0.3 * 0.3 + 0.2 * 0.2);
  EXPECT_NEAR(folded.v[0], 0.3 / length, 1e-15);
  EXPECT_NEAR(folded.v[1], -0.5 / length, 1e-15);
  EXPECT_NEAR(folded.v[2], -0.2 / length, 1e-15);
}

TEST(SkyMap, AnEvenSkyIsEvenEverywhere) {
  const SkyMap map = MakeMap(8, std::string(64, 77));
  VisitDirections(5000, [&](const Direction& direction) { EXPECT_NEAR(map.Find(direction), 77.0f, 1e-4f); });
}

// Weights of a quadratic spline: in the middle of a cell 3/4 and 1/8 at both sides, on an edge 1/2 and 1/2.
TEST(SkyMap, WeighsTheCellsAround) {
  constexpr int kSide = 16;
  std::string cells(kSide * kSide, '\0');
  cells[9 * kSide + 10] = '\x80';
  const SkyMap map = MakeMap(kSide, cells);
  const auto at = [&map](double column, double row) {
    const double x = 2.0 * column / kSide - 1.0, y = 2.0 * row / kSide - 1.0;
    return map.Find({{x, y, 1.0 - std::fabs(x) - std::fabs(y)}});
  };
  EXPECT_NEAR(at(10.5, 9.5), 128.0f * 0.75f * 0.75f, 1e-4f);
  EXPECT_NEAR(at(11.0, 9.5), 128.0f * 0.50f * 0.75f, 1e-4f);
  EXPECT_NEAR(at(11.5, 9.5), 128.0f * 0.125f * 0.75f, 1e-4f);
  EXPECT_NEAR(at(11.5, 8.5), 128.0f * 0.125f * 0.125f, 1e-4f);
  EXPECT_NEAR(at(12.0, 9.5), 0.0f, 1e-4f);
}

// A function that is smooth on the sphere stays it across the folds, the edges and the corners of the square.
TEST(SkyMap, HasNoSeams) {
  constexpr int kSide = 256;
  std::string cells;
  const auto shine = [](const Direction& d) { return 128.0 + 60.0 * d.v[0] + 45.0 * d.v[1] * d.v[2]; };
  for (int i = 0; i < kSide * kSide; ++i)
    cells.push_back(
        static_cast<char>(std::lround(shine(SkyMap::GetCellDirection(kSide, i % kSide, i / kSide)))));
  const SkyMap map = MakeMap(kSide, cells);
  VisitDirections(20000, [&](const Direction& direction) {
    EXPECT_NEAR(static_cast<double>(map.Find(direction)), shine(direction), 1.1);
  });
  constexpr double kStep = 1e-7;
  for (double angle = 0.0; angle < 6.3; angle += 0.01) {
    const double c = std::cos(angle), s = std::sin(angle);
    for (const auto& [a, b] : {std::pair<Direction, Direction>{{{c, s, kStep}}, {{c, s, -kStep}}},
                               {{{kStep, c, s}}, {{-kStep, c, s}}},
                               {{{c, kStep, s}}, {{c, -kStep, s}}}}) {
      EXPECT_NEAR(map.Find(a), map.Find(b), 0.01f) << angle;
    }
  }
}

TEST(SkyMap, WhatIsNoDirectionIsDark) {
  const SkyMap map = MakeMap(2, std::string(4, 9));
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN(),
                   kFar = std::numeric_limits<double>::infinity();
  for (const Direction& direction : {Direction{{0, 0, 0}}, Direction{{kNone, 0, 1}}, Direction{{0, kFar, 1}}})
    EXPECT_EQ(map.Find(direction), 0.0f);
  EXPECT_EQ(map.Find({{1e300, 0, 0}}), 9.0f);
  EXPECT_EQ(SkyMap().Find({{0, 0, 1}}), 0.0f);
}

}  // namespace scene
