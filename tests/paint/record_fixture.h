// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the tests of records share. A pixel (x, y) has its middle at (x + 0.5, y + 0.5).
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>

#include "paint/painted.h"

namespace host_test {

inline constexpr scene::Rgba kRed = {255, 0, 0, 255}, kBlue = {0, 0, 255, 255}, kWhite = {255, 255, 255, 255};
inline constexpr Pixel kBlack = {0, 0, 0}, kRedPixel = {255, 0, 0}, kBluePixel = {0, 0, 255};

// A list of 200 x 100 pixels.
class Records : public testing::Test {
 protected:
  Records() { list.Begin(200, 100, 1.0); }
  void AddVertices(std::initializer_list<scene::Vertex> vertices) {
    for (const scene::Vertex& vertex : vertices) list.AddVertex(vertex.x, vertex.y);
  }
  void AddBox(float left, float top, float right, float bottom) {
    AddVertices({{left, top}, {right, top}, {right, bottom}, {left, bottom}});
    list.EndRing();
  }
  void AddLine(std::initializer_list<scene::Vertex> vertices, float width, float dash,
               const scene::Rgba& colour, unsigned flags = 0) {
    AddVertices(vertices);
    list.AddLine(scene::Layer::kFigures, scene::PolylineRecord{0, 0, width, dash, colour, flags, {}});
  }

  scene::DisplayList list;
};

inline void ExpectNear(const Pixel& pixel, const Pixel& expected, int most = 1) {
  EXPECT_NEAR(pixel.red, expected.red, most);
  EXPECT_NEAR(pixel.green, expected.green, most);
  EXPECT_NEAR(pixel.blue, expected.blue, most);
}

}  // namespace host_test
