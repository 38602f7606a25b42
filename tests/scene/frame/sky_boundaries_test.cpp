// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/sky_boundaries.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "scene/constellation_tables.h"
#include "scene/frame_helpers.h"

using namespace scene;

namespace {

class SkyBoundariesTest : public testing::Test {
 protected:
  SkyBoundariesTest() {
    host_test::WriteConstellations(f.sky.dir);
    std::string error;
    EXPECT_TRUE(LoadSkyCatalogs(f.catalogs, error)) << error;
    frame = std::make_unique<SkyFrame>(f.catalogs);
    f.shown.horizon = false;
    f.shown.boundaries = true;
  }
  const SkyBoundaries& Compute() {
    frame->Compute(f.camera, PrepareObserver(f.camera), f.shown);
    return frame->GetParts().boundaries;
  }
  // The constellation at a pixel, y up.
  int At(const tPoint<double>& p) {
    Direction raw, j2000;
    f.camera.Pix2Vec({static_cast<int>(std::lround(p.x)), 1000 - static_cast<int>(std::lround(p.y))}, raw.v);
    const ObserverFrame observer = PrepareObserver(f.camera);
    for (int i = 0; i < 3; ++i)
      j2000.v[i] = observer.reduction[i] * raw.v[0] + observer.reduction[3 + i] * raw.v[1] +
                   observer.reduction[6 + i] * raw.v[2];
    return f.catalogs.bounds.Find(j2000);
  }
  host_test::FrameFixture f;
  std::unique_ptr<SkyFrame> frame;
};

}  // namespace

TEST_F(SkyBoundariesTest, AreDrawnWhereTheSettingsSaySo) {
  EXPECT_FALSE(Compute().GetLines().empty());
  int dashed = 0;
  for (const auto& line : frame->GetDisplayList().GetPolylines()) dashed += line.dash > 0.0f;
  EXPECT_EQ(dashed, static_cast<int>(frame->GetParts().boundaries.GetLines().size()));
  f.shown.boundaries = false;
  EXPECT_TRUE(Compute().GetLines().empty());
}

// Five pixels on one side of a line lies one constellation and on the other another, but where a third one is
// near.
TEST_F(SkyBoundariesTest, LinesPartTheConstellations) {
  f.camera.SetZoom(0.8);
  const SkyBoundaries& drawn = Compute();
  int parted = 0, compared = 0;
  for (const auto& line : drawn.GetLines()) {
    for (int i = line.first + 1; i < line.first + line.count; ++i) {
      const auto &a = drawn.GetPoints()[static_cast<std::size_t>(i - 1)],
                 &b = drawn.GetPoints()[static_cast<std::size_t>(i)];
      const double length = std::hypot(b.x - a.x, b.y - a.y);
      if (length < 0.5) continue;
      const double x = 0.5 * (a.x + b.x), y = 0.5 * (a.y + b.y);
      const double nx = 5.0 * (b.y - a.y) / length, ny = -5.0 * (b.x - a.x) / length;
      ++compared;
      parted += At({x + nx, y + ny}) != At({x - nx, y - ny});
    }
  }
  EXPECT_GT(compared, 500);
  EXPECT_EQ(parted, compared);
}

TEST_F(SkyBoundariesTest, LinesEndAtTheWindow) {
  f.camera.SetZoom(5.0);
  for (const auto& p : Compute().GetPoints()) {
    EXPECT_TRUE(p.x >= -0.5 && p.x <= 1600.5 && p.y >= -0.5 && p.y <= 1000.5) << p.x << " " << p.y;
  }
}
