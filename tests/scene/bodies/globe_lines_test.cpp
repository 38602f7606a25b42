// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// Meridians, parallels, equator and axis on a disc, against the orthographic projection of a sphere.
#include "scene/bodies/globe_lines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <vector>

using namespace scene;

namespace {

constexpr double kDegree = 0.017453292519943295, kX = 200.0, kY = 150.0, kRadius = 100.0;

// Seen from above longitude 0 of the equator with north up: to the right is longitude 90.
constexpr float kFromTheEquator[9] = {0, 0, 1, 1, 0, 0, 0, -1, 0};
// From above the north pole.
constexpr float kFromThePole[9] = {0, -1, 0, 1, 0, 0, 0, 0, 1};

class GlobeLinesTest : public testing::Test {
 protected:
  void Draw(const float (&toBody)[9], const GlobeLines& wanted, double radius = kRadius,
            float flattening = 0.0f) {
    list.Begin(400, 300, 1.0);
    GlobeRecord globe = {};
    globe.disc.x = static_cast<float>(kX);
    globe.disc.y = static_cast<float>(kY);
    globe.disc.radius = static_cast<float>(radius);
    globe.disc.object = {7, 8};
    globe.flattening = flattening;
    std::copy(std::begin(toBody), std::end(toBody), globe.toBody);
    DrawGlobeLines(globe, wanted, list);
  }
  // The vertices of each line in radii from the middle of the disc, x right, y up.
  std::vector<std::vector<std::pair<double, double>>> GetLines() const {
    std::vector<std::vector<std::pair<double, double>>> lines;
    for (const PolylineRecord& line : list.GetPolylines()) {
      EXPECT_EQ(line.object, (ObjectRef{7, 8}));
      auto& points = lines.emplace_back();
      for (int i = line.firstVertex; i < line.firstVertex + line.vertexCount; ++i) {
        const Vertex& vertex = list.GetVertices()[static_cast<std::size_t>(i)];
        points.emplace_back((static_cast<double>(vertex.x) - kX) / kRadius,
                            (kY - static_cast<double>(vertex.y)) / kRadius);
      }
    }
    return lines;
  }
  DisplayList list;
};

// The multiple of 30 degrees that is nearest to an angle.
int NearestStep(double angle) { return 30 * static_cast<int>(std::lround(angle / kDegree / 30.0)); }

}  // namespace

TEST_F(GlobeLinesTest, GridIsEvery30Degrees) {
  Draw(kFromTheEquator, {true, false});
  std::set<int> parallels, meridians;
  for (const auto& line : GetLines()) {
    ASSERT_GT(line.size(), 3u);
    const bool parallel = std::fabs(line.front().second - line.back().second) < 1e-5;
    for (const auto& [x, y] : line) {
      ASSERT_LE(std::hypot(x, y), 1.0 + 1e-5) << "on the disc";
      const double round = std::sqrt(1.0 - y * y);
      if (parallel) {
        const int latitude = NearestStep(std::asin(y));
        EXPECT_NEAR(y, std::sin(latitude * kDegree), 1e-5);
        parallels.insert(latitude);
      } else {
        const int longitude = NearestStep(std::asin(std::clamp(x / round, -1.0, 1.0)));
        EXPECT_NEAR(x, round * std::sin(longitude * kDegree), 1e-5);
        meridians.insert(longitude);
      }
    }
  }
  EXPECT_EQ(parallels, (std::set<int>{-60, -30, 0, 30, 60}));
  for (const int longitude : {-60, -30, 0, 30, 60}) EXPECT_EQ(meridians.count(longitude), 1u) << longitude;
}

// Nothing of the far side: from the pole the northern parallels alone, whole circles.
TEST_F(GlobeLinesTest, FarSideIsHidden) {
  Draw(kFromThePole, {true, false});
  std::multiset<int> circles;
  for (const auto& line : GetLines()) {
    const auto distance = [](const auto& point) { return std::hypot(point.first, point.second); };
    const bool circle = std::fabs(distance(line.front()) - distance(line.back())) < 1e-5;
    for (const auto& point : line) EXPECT_LE(distance(point), 1.0 + 1e-5);
    if (circle) circles.insert(static_cast<int>(std::lround(100.0 * distance(line.front()))));
  }
  // cos 60, cos 30, cos 0, in percent of the radius.
  EXPECT_EQ(circles, (std::multiset<int>{50, 87, 100})) << "each once: the southern ones have the same size";
}

// The equator may begin anywhere on it, so that its visible half can be two lines.
TEST_F(GlobeLinesTest, GuidesAreTheEquatorAndTheAxis) {
  Draw(kFromTheEquator, {false, true});
  const auto lines = GetLines();
  ASSERT_GE(lines.size(), 3u);
  double left = 0.0, right = 0.0;
  for (std::size_t i = 0; i < lines.size() - 2; ++i) {
    for (const auto& [x, y] : lines[i]) {
      EXPECT_NEAR(y, 0.0, 1e-5) << "seen from its side";
      left = std::min(left, x);
      right = std::max(right, x);
    }
  }
  EXPECT_NEAR(left, -1.0, 0.01);
  EXPECT_NEAR(right, 1.0, 0.01);
  for (const int side : {1, -1}) {
    const auto& axis = lines[lines.size() - (side > 0 ? 2 : 1)];
    ASSERT_EQ(axis.size(), 2u);
    EXPECT_NEAR(axis[0].first, 0.0, 1e-5);
    EXPECT_NEAR(axis[0].second, side, 1e-5) << "from the pole";
    EXPECT_NEAR(axis[1].second, 1.35 * side, 1e-5) << "outwards";
  }
}

// The far pole and what sticks out of it lie behind the globe.
TEST_F(GlobeLinesTest, FarEndOfTheAxisIsHidden) {
  Draw(kFromThePole, {false, true});
  EXPECT_EQ(GetLines().size(), 2u) << "the equator and one end";
}

TEST_F(GlobeLinesTest, FlatGlobeHasItsPolesNearer) {
  Draw(kFromTheEquator, {false, true}, kRadius, 0.1f);
  const auto lines = GetLines();
  ASSERT_GE(lines.size(), 3u);
  EXPECT_NEAR(lines[lines.size() - 2][0].second, 0.9, 1e-5);
  EXPECT_NEAR(lines[lines.size() - 1][0].second, -0.9, 1e-5);
}

TEST_F(GlobeLinesTest, SmallDiscsAndUnwantedLinesAreLeftOut) {
  Draw(kFromTheEquator, {true, true}, 9.0);
  EXPECT_TRUE(list.GetPolylines().empty());
  Draw(kFromTheEquator, {false, false});
  EXPECT_TRUE(list.GetPolylines().empty());
}

// From above latitude 30 the far side of a flat globe shows from where its normal turns to the viewer: beyond
// the pole from the reduced latitude u with tan u = (1 - f) / tan 30: 60 degrees on a sphere, 47.3 where
// the flattening f is 0.375, 54.2 where it is 0.2.
TEST_F(GlobeLinesTest, FlatGlobeShowsMoreBeyondItsPole) {
  constexpr double kSine = 0.5, kCosine = 0.8660254037844386;
  constexpr float kFromAbove[9] = {0, float(kSine),    float(kCosine), 1, 0, 0,
                                   0, float(-kCosine), float(kSine)};
  // The vertices of the far meridian stand over the middle of the disc: how low does it begin?
  const auto lowest = [&](float flattening) {
    Draw(kFromAbove, {true, false}, kRadius, flattening);
    double low = 90.0;
    for (const auto& line : GetLines()) {
      if (line.size() < 2 || std::fabs(line[0].first) > 1e-5 || std::fabs(line[1].first) > 1e-5) continue;
      for (const auto& [x, y] : line) {
        // y = (1 - f) sin u cos 30 + cos u sin 30 of the far meridian, which ends at 60 degrees.
        for (int u = -60; u <= 60; u += 3) {
          const double far = (1.0 - static_cast<double>(flattening)) * std::sin(u * kDegree) * kCosine +
                             std::cos(u * kDegree) * kSine;
          if (std::fabs(y - far) < 1e-5) low = std::min(low, static_cast<double>(u));
        }
      }
    }
    return low;
  };
  EXPECT_EQ(lowest(0.375f), 48.0) << "in steps of 3 degrees";
  EXPECT_EQ(lowest(0.2f), 57.0);
}
