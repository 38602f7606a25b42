// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/sky_markers.h"

#include <gtest/gtest.h>

#include "scene/frame/frame_maker.h"
#include "scene/frame_helpers.h"

using namespace scene;
using host_test::FrameFixture;

namespace {

// The place of Betelgeuse in the star table: its proper motion moves it by less than a second of arc.
constexpr SkyMark kBetelgeuse = {88.79292, 7.40694, 2061};

const DrawnMarker* FindMarker(const SkyFrame& frame, const std::string& id) {
  for (const auto& marker : frame.GetParts().markers.GetDrawn()) {
    if (id == marker.text) return &marker;
  }
  return nullptr;
}

}  // namespace

// Markers stand on whole pixels: what is behind the point is cut off, once counted from the top.
TEST(SkyMarkers, StandAtTheStarOfTheSamePlaceInEveryView) {
  FrameFixture f;
  SkyMarkers markers;
  markers.Add(kBetelgeuse, f.camera);
  FrameMaker maker(f.camera, f.catalogs, f.shown, ObjectFilters::None(), markers);
  int compared = 0;
  for (const double zoom : {0.5, 1.0, 1.3}) {
    for (int hour = 20; hour < 24; ++hour) {
      f.camera.SetZoom(zoom);
      f.SetTime(2026, 1, 15, hour, 17);
      maker.Prepare();
      maker.Compute();
      const auto* marker = FindMarker(maker.GetFrame(), "2061");
      for (const auto& star : maker.GetFrame().GetStars()) {
        if (f.catalogs.stars.GetNumber(star.star) != 2061 || !star.output->m_OnScreen) continue;
        ASSERT_NE(marker, nullptr);
        EXPECT_GE(star.output->m_Place.x, marker->place.x - 0.1);
        EXPECT_LE(star.output->m_Place.x, marker->place.x + 1.1);
        EXPECT_LE(star.output->m_Place.y, marker->place.y + 0.1);
        EXPECT_GE(star.output->m_Place.y, marker->place.y - 1.1);
        ++compared;
      }
    }
  }
  EXPECT_GE(compared, 9);
}

TEST(SkyMarkers, WithoutAnIdentifierTheLowestFreeNumberIsTaken) {
  FrameFixture f;
  SkyMarkers markers;
  markers.Add({10.0, 0.0, 1}, f.camera);
  markers.Add({20.0, 0.0, {}}, f.camera);
  markers.Add({30.0, 0.0, 4}, f.camera);
  markers.Add({40.0, 0.0, {}}, f.camera);
  std::vector<int> ids;
  for (const auto& marker : *f.camera.GetOIMarkerList()) ids.push_back(marker.id);
  EXPECT_EQ(ids, (std::vector<int>{1, 2, 4, 3}));
}

TEST(SkyMarkers, TheSameIdentifierReplacesAndGoesToTheEnd) {
  FrameFixture f;
  SkyMarkers markers;
  markers.Add({10.0, 0.0, 1}, f.camera);
  markers.Add({20.0, 0.0, 2}, f.camera);
  markers.Add({30.0, 5.0, 1}, f.camera);
  const auto marks = markers.GetMarks();
  ASSERT_EQ(marks.size(), 2u);
  EXPECT_EQ(marks[1].ra, 30.0);
  ASSERT_EQ(f.camera.GetOIMarkerList()->size(), 2u);
  EXPECT_EQ(f.camera.GetOIMarkerList()->back().id, 1);
}

TEST(SkyMarkers, OffScreenAndFinderAreNotDrawn) {
  FrameFixture f;
  SkyMarkers markers;
  markers.Add({kBetelgeuse.ra + 180.0, -7.4, 5}, f.camera);
  CommonInterfaces::MARKER_INFO finder;
  finder.id = CommonInterfaces::kOnScreenFinderMarker;
  finder.x = finder.y = 100;
  f.camera.AddOIMarker(finder);
  FrameMaker maker(f.camera, f.catalogs, f.shown, ObjectFilters::None(), markers);
  maker.Prepare();
  maker.Compute();
  EXPECT_TRUE(maker.GetFrame().GetParts().markers.GetDrawn().empty());
}

TEST(SkyMarkers, AreLabelledWithTheirIdentifier) {
  FrameFixture f;
  SkyMarkers markers;
  markers.Add(kBetelgeuse, f.camera);
  FrameMaker maker(f.camera, f.catalogs, f.shown, ObjectFilters::None(), markers);
  maker.Prepare();
  maker.Compute();
  bool labelled = false;
  for (const auto& label : maker.GetFrame().GetParts().labels.GetLabels()) {
    labelled = labelled || (label.kind == LabelKind::kMarker && std::string(label.text) == "2061");
  }
  EXPECT_TRUE(labelled);
}
