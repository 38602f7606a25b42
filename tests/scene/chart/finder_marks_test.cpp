// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/chart/finder_marks.h"

#include <gtest/gtest.h>

#include <cmath>

#include "scene/frame_helpers.h"

using namespace scene;

namespace {

class FinderMarksTest : public testing::Test {
 protected:
  FinderMarksTest() { f.camera.SetZoom(4.0); }

  const DisplayList& Draw(std::vector<Finder> finders) {
    f.frame.SetFinders(std::move(finders));
    f.Compute();
    return f.frame.GetDisplayList();
  }
  // A direction so far from the middle of the picture towards that position angle.
  Direction FromCentre(double angle, double positionAngle) {
    const Direction centre = ViewGeometry(f.camera).centreJ2000;
    const double aside = std::hypot(centre.v[0], centre.v[1]);
    const double x = centre.v[0], y = centre.v[1], z = centre.v[2];
    const double north[] = {-x * z / aside, -y * z / aside, aside}, east[] = {-y / aside, x / aside, 0.0};
    Direction there;
    for (int i = 0; i < 3; ++i)
      there.v[i] = std::cos(angle) * centre.v[i] +
                   std::sin(angle) * (std::cos(positionAngle) * north[i] + std::sin(positionAngle) * east[i]);
    return there;
  }
  // Its pixel, y down.
  tPoint<double> Project(const Direction& direction) {
    const auto p = ViewGeometry(f.camera).Project(direction, SkyFrameOf::kJ2000);
    return {p.x, 1000.0 - p.y};
  }
  std::vector<EllipseRecord> GetCircles() {
    std::vector<EllipseRecord> circles;
    for (const scene::Run& run : f.frame.GetDisplayList().GetRuns()) {
      if (run.layer != Layer::kChart || run.type != RecordType::kEllipse) continue;
      const auto first = f.frame.GetDisplayList().GetEllipses().begin() + run.first;
      circles.insert(circles.end(), first, first + run.count);
    }
    return circles;
  }

  host_test::FrameFixture f;
};

}  // namespace

// The circle goes through the pixels of directions that far from the middle, all around.
TEST_F(FinderMarksTest, CirclesHaveTheTrueFieldToAHundredthOfAPixel) {
  for (const double degrees : {0.5, 1.2, 4.0, 30.0}) {
    Draw({{degrees * kRadiansPerDegree, 0.0, 0.0, 0.0, ""}});
    const auto circles = GetCircles();
    ASSERT_EQ(circles.size(), 1u);
    for (int i = 0; i < 8; ++i) {
      const auto edge = Project(FromCentre(0.5 * degrees * kRadiansPerDegree, i * kPi / 4.0));
      EXPECT_NEAR(std::hypot(edge.x - 800.0, edge.y - 500.0), circles[0].semiMajor, 0.01) << degrees;
    }
    EXPECT_EQ(circles[0].semiMajor, circles[0].semiMinor);
    EXPECT_EQ(circles[0].x, 800.0f);
    EXPECT_EQ(circles[0].y, 500.0f);
  }
}

// 23.5 x 15.6 mm behind 800 mm: the middle of the upper edge stands atan(7.8 / 800) = 0.5586 degrees from the
// middle, of the side edge atan(11.75 / 800) = 0.8414, where the angle says.
TEST_F(FinderMarksTest, SensorsLieAsTheirAngleSays) {
  for (const double angle : {0.0, 30.0, -120.0}) {
    const double turn = angle * kRadiansPerDegree;
    const DisplayList& list = Draw({{0.0, 23.5 / 800.0, 15.6 / 800.0, turn, ""}});
    const PolylineRecord& line = list.GetPolylines().back();
    ASSERT_EQ(line.vertexCount, 32) << "eight steps a side";
    const Vertex* const vertex = list.GetVertices().data() + line.firstVertex;
    const auto expect = [&](int index, double away, double towards) {
      const auto there = Project(FromCentre(away * kRadiansPerDegree, turn + towards * kRadiansPerDegree));
      EXPECT_NEAR(vertex[index].x, there.x, 0.05) << angle << " " << index;
      EXPECT_NEAR(vertex[index].y, there.y, 0.05) << angle << " " << index;
    };
    expect(20, 0.5586, 0.0);    // the middle of the upper edge
    expect(4, 0.5586, 180.0);   // of the lower one
    expect(12, 0.8414, -90.0);  // of the right one: west where north is up
    expect(28, 0.8414, 90.0);
  }
}

TEST_F(FinderMarksTest, LabelsStandApart) {
  const auto circle = [](double degrees, const char* text) {
    return Finder{degrees * kRadiansPerDegree, 0.0, 0.0, 0.0, text};
  };
  f.camera.SetZoom(1.0);
  const DisplayList& list =
      Draw({circle(4.0, "4"), circle(2.0, "2"), circle(0.5, "half"), circle(0.49, "no room")});
  std::vector<std::pair<std::string, float>> found;
  for (const TextRecord& text : list.GetTexts()) {
    if (text.x == 800.0f && text.anchor == 0.5f && text.size == 12.0f)
      found.emplace_back(list.GetText(text), text.y);
  }
  ASSERT_EQ(found.size(), 4u) << "the last one below its circle";
  for (std::size_t i = 0; i < found.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j)
      EXPECT_GE(std::fabs(found[i].second - found[j].second), 14.0f) << found[i].first << found[j].first;
  }
}

TEST_F(FinderMarksTest, NothingIsDrawnUntilSomethingIsAskedFor) {
  Draw({});
  for (const scene::Run& run : f.frame.GetDisplayList().GetRuns()) EXPECT_NE(run.layer, Layer::kChart);
}
