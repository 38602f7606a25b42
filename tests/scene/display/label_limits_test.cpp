// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// More labels and reserved places than there is room for.
#include <gtest/gtest.h>

#include "scene/display/labels.h"

using namespace scene;

namespace {

constexpr int kSide = 10000;  // pixels, so that labels find room

class LabelLimits : public testing::Test {
 protected:
  LabelLimits() { placer.Begin(kSide, kSide); }
  // The places of a grid, one label each.
  static tPoint<double> PlaceOf(int i) { return {100.0 + 150.0 * (i % 60), 100.0 + 150.0 * (i / 60)}; }
  int Place(int i) {
    return placer.PlaceBeside("name", PlaceOf(i), 2.0, 12.0, LabelKind::kStarName, {FourCC("star"), i + 1});
  }
  LabelPlacer placer;
};

}  // namespace

TEST_F(LabelLimits, NoMoreLabelsThanThereIsRoomFor) {
  for (int i = 0; i < LabelPlacer::kMaxLabels; ++i) ASSERT_EQ(Place(i), i);
  EXPECT_EQ(Place(LabelPlacer::kMaxLabels), -1);
  EXPECT_EQ(placer.PlaceCentred("name", {5000.0, 9900.0}, 12.0, LabelKind::kConstellation), -1);
  EXPECT_EQ(placer.PlaceNear("name", {5000.0, 9900.0}, 12.0, LabelKind::kConstellation, {}, 2), -1);
  EXPECT_EQ(placer.PlaceAtEdge("name", {0.0, 9900.0}, 12.0, LabelKind::kEquatorialGrid), -1);
  EXPECT_EQ(placer.GetLabels().size(), static_cast<std::size_t>(LabelPlacer::kMaxLabels));
}

// What comes when all places are taken is not kept free, and nothing grows.
TEST_F(LabelLimits, PlacesBeyondTheRoomAreNotKeptFree) {
  for (int i = 0; i < LabelPlacer::kMaxBoxes; ++i) placer.Reserve({5.0, 5.0}, 1.0, 1.0);
  placer.Reserve({5000.0, 5000.0}, 100.0, 100.0);
  EXPECT_EQ(placer.PlaceCentred("name", {5000.0, 5000.0}, 12.0, LabelKind::kConstellation), 0)
      << "there would have been no room for it";
  EXPECT_EQ(placer.PlaceCentred("name", {5000.0, 5000.0}, 12.0, LabelKind::kConstellation), 1)
      << "nor for this one beside it";
}

TEST_F(LabelLimits, TheNextPictureHasRoomAgain) {
  for (int i = 0; i < LabelPlacer::kMaxLabels; ++i) ASSERT_EQ(Place(i), i);
  placer.Begin(kSide, kSide);
  EXPECT_EQ(Place(0), 0);
}
