// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>

#include "paint/painted.h"

namespace host_test {

using namespace scene;

inline constexpr Rgba kRed = {255, 0, 0, 255}, kBlue = {0, 0, 255, 255}, kWhite = {255, 255, 255, 255};
inline constexpr Pixel kBlack = {0, 0, 0}, kRedPixel = {255, 0, 0}, kBluePixel = {0, 0, 255};

class Records : public testing::Test {
 protected:
  Records() { list.Begin(200, 100, 1.0); }
  void AddVertices(std::initializer_list<Vertex> vertices) {
    for (const Vertex& vertex : vertices) list.AddVertex(vertex.x, vertex.y);
  }
  void AddBox(float left, float top, float right, float bottom) {
    AddVertices({{left, top}, {right, top}, {right, bottom}, {left, bottom}});
    list.EndRing();
  }
  void AddLine(std::initializer_list<Vertex> vertices, float width, float dash, const Rgba& colour,
               unsigned flags = 0) {
    AddVertices(vertices);
    list.AddLine(Layer::kFigures, PolylineRecord{0, 0, width, dash, colour, flags, {}});
  }
  // A disc of radius 40 in the middle of the picture.
  void AddDisc(float sunX, float sunY, float cosPhase) {
    list.Add(Layer::kBodies, DiscRecord{100.0f, 50.0f, 40.0f, sunX, sunY, cosPhase, kRed, kBlue, {}, {}});
  }

  DisplayList list;
};

// Half a step for the opacity, half for the colour.
inline void ExpectNear(const Pixel& pixel, const Pixel& expected, int most = 1) {
  EXPECT_NEAR(pixel.red, expected.red, most);
  EXPECT_NEAR(pixel.green, expected.green, most);
  EXPECT_NEAR(pixel.blue, expected.blue, most);
}

}  // namespace host_test
