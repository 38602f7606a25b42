// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/milky_way_picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "scene/frame_helpers.h"
#include "scene/view/pixel_directions.h"
#include "support/allocation_counter.h"

using namespace scene;
using host_test::FrameFixture;

namespace {

// The frames of the small sky, whose Milky Way shines with 128 of 255 between 1.6 and 1.9 radians of right
// ascension and -0.2 and 0.3 of declination.
class MilkyWayPictureTest : public testing::Test {
 protected:
  MilkyWayPictureTest() { f.shown.naturalSky = false; }

  // The mesh of the Milky Way; null when there is none.
  const MeshRecord* Compute() {
    f.Compute();
    for (const auto& run : GetList().GetRuns()) {
      if (run.layer != Layer::kMilkyWay) continue;
      EXPECT_EQ(run.type, RecordType::kMesh);
      EXPECT_EQ(run.count, 1);
      return &GetList().GetMeshes()[static_cast<std::size_t>(run.first)];
    }
    return nullptr;
  }
  const DisplayList& GetList() const { return f.frame.GetDisplayList(); }
  Rgba GetNode(const MeshRecord& mesh, int column, int row) const {
    return GetList().GetColours()[static_cast<std::size_t>(mesh.firstColour + row * mesh.columns + column)];
  }
  // The node nearest to where a direction stands, which must be inside.
  Rgba GetNodeAt(const MeshRecord& mesh, double ra, double dec) const {
    const auto p = ViewGeometry(f.camera).Project(MakeDirection(ra, dec), SkyFrameOf::kJ2000);
    const double x = (p.x - mesh.left) / (mesh.right - mesh.left) * (mesh.columns - 1),
                 y = (GetList().GetHeight() - p.y - mesh.top) / (mesh.bottom - mesh.top) * (mesh.rows - 1);
    EXPECT_TRUE(x >= 0.0 && x <= mesh.columns - 1 && y >= 0.0 && y <= mesh.rows - 1) << x << ' ' << y;
    return GetNode(mesh, static_cast<int>(std::lround(x)), static_cast<int>(std::lround(y)));
  }
  int FindMostAlpha(const MeshRecord& mesh) const {
    int most = 0;
    for (int i = 0; i < mesh.columns * mesh.rows; ++i)
      most = std::max<int>(most, GetNode(mesh, i % mesh.columns, i / mesh.columns).alpha);
    return most;
  }

  FrameFixture f;
};

}  // namespace

// 128 of 255 lies at 2.51 of the five steps of the palette, whose opacity there is 0.221: 57 of 255.
TEST_F(MilkyWayPictureTest, ShinesWhereTheMapDoes) {
  const MeshRecord* mesh = Compute();
  ASSERT_NE(mesh, nullptr);
  EXPECT_EQ(GetNodeAt(*mesh, 1.75, 0.05).alpha, 57);
  EXPECT_EQ(GetNodeAt(*mesh, 1.70, -0.1).alpha, 57);
  const int edge = GetNodeAt(*mesh, 1.6, 0.05).alpha;
  EXPECT_TRUE(edge > 5 && edge < 50) << edge;
  EXPECT_EQ(mesh->object, ObjectRef{});
}

TEST_F(MilkyWayPictureTest, CoversNoMoreThanWhatShines) {
  const MeshRecord* mesh = Compute();
  ASSERT_NE(mesh, nullptr);
  for (int column = 0; column < mesh->columns; ++column) {
    if (mesh->top > 0.0f) {
      EXPECT_EQ(GetNode(*mesh, column, 0).alpha, 0);
    }
    if (mesh->bottom < 1000.0f) {
      EXPECT_EQ(GetNode(*mesh, column, mesh->rows - 1).alpha, 0);
    }
  }
  for (int row = 0; row < mesh->rows; ++row) {
    if (mesh->left > 0.0f) {
      EXPECT_EQ(GetNode(*mesh, 0, row).alpha, 0);
    }
    if (mesh->right < 1600.0f) {
      EXPECT_EQ(GetNode(*mesh, mesh->columns - 1, row).alpha, 0);
    }
  }
  EXPECT_LT((mesh->right - mesh->left) * (mesh->bottom - mesh->top), 0.5f * 1600.0f * 1000.0f);
  f.SetLook(270.0, 60.0);
  EXPECT_EQ(Compute(), nullptr) << "nothing shines there";
}

TEST_F(MilkyWayPictureTest, FollowsItsSwitch) {
  f.shown.milkyWay = false;
  EXPECT_EQ(Compute(), nullptr);
}

// Half an hour after sunset, and at midnight.
TEST_F(MilkyWayPictureTest, IsHiddenByTwilight) {
  f.shown.naturalSky = true;
  f.SetLook(180.0, 40.0);
  const MeshRecord* mesh = Compute();
  ASSERT_NE(mesh, nullptr);
  EXPECT_GT(FindMostAlpha(*mesh), 40);
  f.SetTime(2026, 1, 15, 16, 0);
  EXPECT_EQ(Compute(), nullptr);
}

// At zoom 100 stars are drawn to 15.5: two parts in five are left, 0.4 * 2.51 steps, of opacity 0.08.
TEST_F(MilkyWayPictureTest, IsResolvedIntoStarsByATelescope) {
  f.camera.SetZoom(100.0);
  double longitude = 0.0, latitude = 0.0, v[3];
  f.observer = PrepareObserver(f.camera);
  MV3prod(f.observer.reduction, MakeDirection(1.75, 0.05).v, v);
  psf(v, 1.0, longitude, latitude);
  f.SetLook(360.0 - longitude / kRadiansPerDegree, latitude / kRadiansPerDegree);
  const MeshRecord* mesh = Compute();
  ASSERT_NE(mesh, nullptr);
  EXPECT_NEAR(FindMostAlpha(*mesh), 21, 1);
  EXPECT_EQ(mesh->left, 0.0f);
  EXPECT_EQ(mesh->right, 1600.0f);
}

TEST_F(MilkyWayPictureTest, HasNoMoreNodesThanItMay) {
  for (const auto& [width, height] :
       {std::pair{1600, 1000}, {16384, 64}, {64, 16384}, {16384, 16384}, {64, 64}}) {
    for (const double zoom : {0.25, 0.5, 1.0, 3.0, 50.0}) {
      f.SetWindow(width, height);
      f.camera.SetZoom(zoom);
      const MeshRecord* mesh = Compute();
      EXPECT_LE(mesh ? mesh->columns * mesh->rows : 0, MilkyWayPicture::kMostNodes) << width << ' ' << zoom;
    }
  }
}

TEST_F(MilkyWayPictureTest, AllocatesNothing) {
  MilkyWayPicture picture(f.catalogs.milkyWay);
  SkyLight light;
  light.SetPlain();
  const unsigned long long before = host_test::GetAllocationCount();
  for (const auto& [width, height] : {std::pair{1600, 1000}, {16384, 64}, {16384, 16384}}) {
    for (const double zoom : {0.25, 1.0, 50.0}) {
      f.SetWindow(width, height);
      f.camera.SetZoom(zoom);
      picture.Compute(ViewGeometry(f.camera), light, true);
    }
  }
  EXPECT_EQ(host_test::GetAllocationCount(), before);
}
