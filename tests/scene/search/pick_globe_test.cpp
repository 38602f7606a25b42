// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "scene/search/pick.h"

using namespace scene;

namespace {

// A globe of 20 pixels about (100, 80), with a ring of that many radii.
DisplayList MakeList(float ring) {
  DisplayList list;
  list.Begin(400, 300, 1.0);
  GlobeRecord globe = {};
  globe.disc.x = 100.0f;
  globe.disc.y = 80.0f;
  globe.disc.radius = 20.0f;
  globe.disc.object = {5, 6};
  globe.ringOuter = ring;
  list.Add(Layer::kBodies, globe);
  return list;
}

}  // namespace

TEST(PickGlobe, IsHitInsideItsEdge) {
  const DisplayList list = MakeList(0.0f);
  const auto hits = PickObjects(list, 100.0, 99.0, 4.0);
  ASSERT_EQ(hits.size(), 1u);
  EXPECT_EQ(hits[0].object, (ObjectRef{5, 6}));
  EXPECT_EQ(hits[0].layer, Layer::kBodies);
  EXPECT_EQ(hits[0].distance, 0.0);
}

TEST(PickGlobe, IsHitBesideItsEdgeWithinTheTolerance) {
  const DisplayList list = MakeList(0.0f);
  const auto hits = PickObjects(list, 123.0, 80.0, 4.0);
  ASSERT_EQ(hits.size(), 1u);
  EXPECT_NEAR(hits[0].distance, 3.0, 1e-9);
  EXPECT_TRUE(PickObjects(list, 125.0, 80.0, 4.0).empty());
}

TEST(PickGlobe, RingBelongsToIt) {
  EXPECT_TRUE(PickObjects(MakeList(0.0f), 140.0, 80.0, 4.0).empty());
  ASSERT_EQ(PickObjects(MakeList(2.2f), 140.0, 80.0, 4.0).size(), 1u);
  EXPECT_EQ(PickObjects(MakeList(2.2f), 140.0, 80.0, 4.0)[0].distance, 0.0);
}

TEST(PickGlobe, MeshesAreNobodys) {
  DisplayList list;
  list.Begin(400, 300, 1.0);
  for (int i = 0; i < 4; ++i) list.AddColour({1, 2, 3, 255});
  MeshRecord mesh = {};
  mesh.right = 400.0f;
  mesh.bottom = 300.0f;
  mesh.columns = mesh.rows = 2;
  list.AddMesh(Layer::kBackground, mesh);
  EXPECT_TRUE(PickObjects(list, 100.0, 80.0, 4.0).empty());
}
