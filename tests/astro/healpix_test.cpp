// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/healpix.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "astro/vectors.h"
#include "tests/astro/helpers/measure.h"
#include "tests/astro/helpers/tsv.h"

namespace {

using astro::GetHealpixCell;
using astro::GetHealpixCellCount;
using astro::GetHealpixCentre;
using astro::kMaxHealpixOrder;
using Range = std::pair<std::uint32_t, std::uint32_t>;

struct Vector {
  double v[3];
};

class Sphere {
 public:
  Vector Take() {
    const double z = Uniform(-1.0, 1.0), lon = Uniform(0.0, astro_test::kTurn), r = std::sqrt(1.0 - z * z);
    return {{r * std::cos(lon), r * std::sin(lon), z}};
  }
  double Uniform(double from, double to) { return std::uniform_real_distribution<double>(from, to)(m_Dice); }

  // A direction at that angle from another one.
  Vector TakeAt(const Vector& from, double angle) {
    const Vector other = Take();
    double side[3];
    Vprod(from.v, other.v, side);
    const double length = Vmod(side, 3);
    Vector at;
    for (int i = 0; i < 3; ++i) at.v[i] = std::cos(angle) * from.v[i] + std::sin(angle) * side[i] / length;
    return at;
  }

 private:
  std::mt19937_64 m_Dice{20000101};
};

std::vector<Range> GetCone(int order, const Vector& axis, double angle) {
  std::vector<Range> ranges;
  astro::VisitHealpixCone(order, axis.v, angle,
                          [&](std::uint32_t first, std::uint32_t last) { ranges.emplace_back(first, last); });
  return ranges;
}

bool Holds(const std::vector<Range>& ranges, std::uint32_t cell) {
  return std::any_of(ranges.begin(), ranges.end(),
                     [&](const Range& range) { return range.first <= cell && cell <= range.second; });
}

TEST(Healpix, CellsAndCentresAreThoseOfTheAuthorsLibrary) {
  astro_test::Largest away("centre of a cell", "radians");
  int rows = 0;
  for (const auto& row : astro_test::ReadTable(ASTRO_TEST_DATA "healpix.tsv")) {
    const int order = static_cast<int>(row[0]);
    const auto cell = static_cast<std::uint32_t>(row[4]);
    EXPECT_EQ(GetHealpixCell(order, &row[1]), cell)
        << order << " " << row[1] << " " << row[2] << " " << row[3];
    double centre[3];
    GetHealpixCentre(order, cell, centre);
    // That library takes the distance from the axis from z, which has few digits left next to a pole.
    away.Note(VectorsAngle(centre, &row[5]) * std::hypot(centre[0], centre[1]), rows);
    ++rows;
  }
  EXPECT_EQ(rows, 356);
  away.Expect(3e-15);  // the table has 15 digits
}

TEST(Healpix, CentreLiesInItsCell) {
  Sphere sphere;
  for (int order = 0; order <= kMaxHealpixOrder; ++order) {
    const std::uint32_t cells = GetHealpixCellCount(order);
    for (int i = 0; i < 20000; ++i) {
      const auto cell = cells <= 20000 ? static_cast<std::uint32_t>(i) % cells
                                       : static_cast<std::uint32_t>(sphere.Uniform(0.0, cells - 1.0));
      double centre[3];
      GetHealpixCentre(order, cell, centre);
      ASSERT_EQ(GetHealpixCell(order, centre), cell) << order;
      ASSERT_NEAR(Vmod(centre, 3), 1.0, 1e-15);
    }
  }
}

TEST(Healpix, CellOfTheNextOrderLiesInTheOneAbove) {
  Sphere sphere;
  for (int i = 0; i < 100000; ++i) {
    const Vector direction = sphere.Take();
    const std::uint32_t finest = GetHealpixCell(kMaxHealpixOrder, direction.v);
    for (int order = 0; order < kMaxHealpixOrder; ++order)
      ASSERT_EQ(GetHealpixCell(order, direction.v), finest >> 2 * (kMaxHealpixOrder - order));
  }
}

TEST(Healpix, CellsHaveEqualArea) {
  constexpr int kOrder = 2, kDirections = 1000000;
  std::vector<int> hits(GetHealpixCellCount(kOrder));
  Sphere sphere;
  for (int i = 0; i < kDirections; ++i) ++hits[GetHealpixCell(kOrder, sphere.Take().v)];
  const double mean = double(kDirections) / static_cast<double>(hits.size());
  for (const int count : hits) EXPECT_NEAR(count, mean, 5.0 * std::sqrt(mean));
}

TEST(Healpix, PolesAndMeridiansHaveACell) {
  for (int order = 0; order <= kMaxHealpixOrder; ++order) {
    for (const double z : {1.0, -1.0, 2.0 / 3.0, -2.0 / 3.0, 0.0}) {
      const double r = std::sqrt(1.0 - z * z);
      for (int eighth = -8; eighth <= 8; ++eighth) {
        const double lon = eighth * astro_test::kTurn / 8.0;
        for (const double step : {-1e-16, 0.0, 1e-16}) {
          const double direction[3] = {r * std::cos(lon), r * std::sin(lon) + step, z + step};
          double centre[3];
          const std::uint32_t cell = GetHealpixCell(order, direction);
          ASSERT_LT(cell, GetHealpixCellCount(order));
          GetHealpixCentre(order, cell, centre);
          ASSERT_LE(VectorsAngle(centre, direction), astro::GetHealpixRadius(order) + 1e-15);
        }
      }
    }
  }
}

TEST(Healpix, NoPointIsFartherFromTheCentreThanTheRadius) {
  Sphere sphere;
  for (int order = 0; order <= kMaxHealpixOrder; ++order) {
    const double radius = astro::GetHealpixRadius(order);
    const std::uint32_t cells = GetHealpixCellCount(order);
    double largest = 0.0;
    // All cells of the coarse grids; of the fine ones some, and the ring that holds the widest.
    for (int i = 0; i < 50000; ++i) {
      constexpr double kR = 0.7453559924999299;  // sqrt(5) / 3
      const double lon = 0.25 * astro_test::kTurn * (i % 5) + 0.78 / (1u << order);
      const double ring[3] = {kR * std::cos(lon), kR * std::sin(lon), i % 2 == 0 ? 2.0 / 3.0 : -2.0 / 3.0};
      const std::uint32_t cell = cells <= 50000 ? static_cast<std::uint32_t>(i) % cells
                                 : i % 4 == 0   ? GetHealpixCell(order, ring)
                                              : static_cast<std::uint32_t>(sphere.Uniform(0.0, cells - 1.0));
      double centre[3], corners[4][3];
      GetHealpixCentre(order, cell, centre);
      astro::GetHealpixCorners(order, cell, corners);
      for (const auto& corner : corners) largest = std::max(largest, VectorsAngle(centre, corner));
    }
    EXPECT_LE(largest, radius) << order;
    EXPECT_GT(largest, 0.99 * radius) << order;
    for (int i = 0; i < 50000; ++i) {
      const Vector direction = sphere.Take();
      double centre[3];
      GetHealpixCentre(order, GetHealpixCell(order, direction.v), centre);
      ASSERT_LE(VectorsAngle(centre, direction.v), radius) << order;
    }
  }
}

TEST(Healpix, CornersTouchTheCell) {
  Sphere sphere;
  for (int order = 0; order <= kMaxHealpixOrder; ++order) {
    for (int i = 0; i < 1000; ++i) {
      const std::uint32_t cell = GetHealpixCell(order, sphere.Take().v);
      double centre[3], corners[4][3];
      GetHealpixCentre(order, cell, centre);
      astro::GetHealpixCorners(order, cell, corners);
      EXPECT_GT(corners[0][2], corners[2][2]) << "north above south";
      for (const auto& corner : corners) {
        // A little way from the corner to the centre one is inside.
        double inside[3];
        for (int j = 0; j < 3; ++j) inside[j] = corner[j] + 0.001 * (centre[j] - corner[j]);
        const double length = Vmod(inside, 3);
        for (double& component : inside) component /= length;
        ASSERT_EQ(GetHealpixCell(order, inside), cell) << order;
      }
    }
  }
}

TEST(Healpix, ConeMissesNoCellItTouches) {
  Sphere sphere;
  for (int i = 0; i < 3000; ++i) {
    const int order = i % (kMaxHealpixOrder + 1);
    Vector axis = sphere.Take();
    if (i % 10 == 0) axis = {{0.0, 0.0, i % 20 == 0 ? 1.0 : -1.0}};
    const double widest = std::min(3.2, 200.0 * astro::GetHealpixRadius(order));
    const double angle = sphere.Uniform(0.0, widest);
    const auto ranges = GetCone(order, axis, angle);
    EXPECT_TRUE(Holds(ranges, GetHealpixCell(order, axis.v)));
    for (int j = 0; j < 100; ++j) {
      const double away = j % 2 == 0 ? angle : angle * std::sqrt(sphere.Uniform(0.0, 1.0));
      if (away > astro_test::kTurn / 2.0) continue;
      const Vector inside = sphere.TakeAt(axis, away);
      ASSERT_TRUE(Holds(ranges, GetHealpixCell(order, inside.v))) << order << " " << angle << " " << away;
    }
  }
}

TEST(Healpix, ConeTakesNoCellFarOutside) {
  Sphere sphere;
  for (int i = 0; i < 2000; ++i) {
    const int order = i % 7;
    const Vector axis = sphere.Take();
    const double angle = sphere.Uniform(0.0, 1.0), radius = astro::GetHealpixRadius(order);
    for (const auto& [first, last] : GetCone(order, axis, angle)) {
      for (std::uint32_t cell = first; cell <= last; ++cell) {
        double centre[3];
        GetHealpixCentre(order, cell, centre);
        ASSERT_LE(VectorsAngle(centre, axis.v), angle + radius + 1e-7);
      }
    }
  }
}

TEST(Healpix, RangesRiseAndDoNotTouch) {
  Sphere sphere;
  for (int i = 0; i < 1000; ++i) {
    const auto ranges = GetCone(i % 9, sphere.Take(), sphere.Uniform(0.0, 3.5));
    for (std::size_t j = 0; j < ranges.size(); ++j) {
      ASSERT_LE(ranges[j].first, ranges[j].second);
      ASSERT_TRUE(j == 0 || ranges[j].first > ranges[j - 1].second + 1);
    }
  }
}

TEST(Healpix, WidestConeIsTheSphereAndNegativeOneNothing) {
  const Vector axis = {{0.6, 0.0, 0.8}};
  for (int order = 0; order <= kMaxHealpixOrder; ++order) {
    const std::vector<Range> all = {{0, GetHealpixCellCount(order) - 1}};
    EXPECT_EQ(GetCone(order, axis, astro_test::kTurn / 2.0), all);
    EXPECT_EQ(GetCone(order, axis, 100.0), all);
    EXPECT_EQ(GetCone(order, axis, std::numeric_limits<double>::quiet_NaN()), all);
    EXPECT_TRUE(GetCone(order, axis, -1e-9).empty());
    EXPECT_FALSE(GetCone(order, axis, 0.0).empty());
  }
}

}  // namespace
