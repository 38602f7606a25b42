// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Pixels of 1000 directions, as text, against a table that an independent program wrote (make_projection.py,
// which says why four decimals): every target must give the same bytes.
#include <cmath>
#include <cstdio>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "common_interfaces/camera.h"

namespace {

using CommonInterfaces::Camera;

constexpr int kDirections = 1000;
constexpr double kZooms[] = {0.6, 3.0, 40.0};

// The generator of make_projection.py.
class WholeNumbers {
 public:
  int Next() {
    m_State = m_State * 1664525u + 1013904223u;
    return static_cast<int>(m_State >> 16) - 32768;
  }

 private:
  unsigned m_State = 4;
};

std::string PixelText(const Camera& camera, const double v[3]) {
  tPoint<double> exact;
  tPoint<int> whole;
  camera.RA_Dec2PixD(v, &exact);
  camera.RA_Dec2Pix(v, &whole);
  char text[120];
  std::snprintf(text, sizeof text, " | %.4f %.4f %d %d", exact.x, exact.y, whole.x, whole.y);
  return text;
}

std::string Line(Camera& camera, const int direction[3]) {
  const double x = direction[0], y = direction[1], z = direction[2];
  const double length = std::sqrt(x * x + y * y + z * z);
  const double v[3] = {x / length, y / length, z / length};
  char text[40];
  std::snprintf(text, sizeof text, "%d %d %d", direction[0], direction[1], direction[2]);
  std::string line = text;
  for (const double zoom : kZooms) {
    camera.SetZoom(zoom);
    line += PixelText(camera, v);
  }
  return line;
}

TEST(ProjectionTable, AThousandDirectionsGiveTheSameTextOnEveryTarget) {
  std::ifstream table(PROJECTION_TABLE);
  std::string expected;
  for (int comment = 0; comment < 2; ++comment)
    ASSERT_TRUE(std::getline(table, expected)) << PROJECTION_TABLE;
  Camera camera(1);
  camera.SetWinRect({1920, 1080, 1920, 1080});
  camera.SetRA_Dec({1.1, 0.4, 0.3, 0});
  WholeNumbers numbers;
  for (int n = 0; n < kDirections; ++n) {
    int direction[3];
    for (int& component : direction) component = numbers.Next();
    ASSERT_TRUE(std::getline(table, expected)) << "direction " << n;
    EXPECT_EQ(Line(camera, direction), expected);
  }
  EXPECT_FALSE(std::getline(table, expected)) << expected;
}

}  // namespace
