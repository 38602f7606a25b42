// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/display/region_drawing.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

using namespace scene;

namespace {

// Of the rings with those points, y up in a picture of 200 by 100: their vertices one behind the other.
std::vector<std::pair<float, float>> Draw(const RegionPicture& region, DisplayList& list) {
  list.Begin(200, 100, 1.0);
  AddRegion(region, 2.0, list);
  list.AddArea(Layer::kBodies, {});
  std::vector<std::pair<float, float>> vertices;
  for (const Vertex& vertex : list.GetVertices()) vertices.emplace_back(vertex.x, vertex.y);
  return vertices;
}

}  // namespace

// The first point is nearer than that to the corner of the picture.
TEST(RegionDrawing, RingBeginsWithItsFirstPointAndLeavesOutWhatIsNearerThanTheStep) {
  RegionPicture region = {};
  region.points = {{0.5, 0.5}, {1.5, 0.5}, {2.5, 0.5}, {4.25, 0.5}, {4.5, 0.5}};
  region.ringEnds = {5};
  DisplayList list;
  EXPECT_EQ(Draw(region, list),
            (std::vector<std::pair<float, float>>{{0.5f, 99.5f}, {2.5f, 99.5f}, {4.5f, 99.5f}}))
      << "2 pixels are far enough, 1.75 are not";
}

TEST(RegionDrawing, EveryRingBeginsAnew) {
  RegionPicture region = {};
  region.points = {{10.0, 10.0}, {20.0, 10.0}, {20.0, 20.0}, {20.5, 20.0}, {30.0, 20.0}, {30.0, 30.0}};
  region.ringEnds = {3, 6};
  DisplayList list;
  EXPECT_EQ(Draw(region, list).size(), 6u) << "the second begins where the first ends";
  ASSERT_EQ(list.GetRings().size(), 2u);
  EXPECT_EQ(list.GetRings()[0].vertexCount, 3);
  EXPECT_EQ(list.GetRings()[1].vertexCount, 3);
}

// What holds the outside has a ring about the whole picture, beyond the rim.
TEST(RegionDrawing, OutsideOfARegionIsARingBeyondItsRim) {
  RegionPicture region = {};
  region.points = {{10.0, 10.0}, {20.0, 10.0}, {20.0, 20.0}};
  region.ringEnds = {3};
  region.rim = 150.0;
  region.holdsOutside = true;
  DisplayList list;
  const auto vertices = Draw(region, list);
  ASSERT_EQ(vertices.size(), 7u);
  const std::vector<std::pair<float, float>> beyond(vertices.begin() + 3, vertices.end());
  EXPECT_EQ(beyond, (std::vector<std::pair<float, float>>{
                        {-200.0f, -250.0f}, {400.0f, -250.0f}, {400.0f, 350.0f}, {-200.0f, 350.0f}}));
}
