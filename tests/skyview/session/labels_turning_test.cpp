// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Names of the shipped sky while the view turns: a hundred frames, each a third of a degree on.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

#include "astro/julian_date.h"
#include "common_interfaces/camera.h"
#include "common_interfaces/settings_data.h"
#include "scene/catalogs/data_root.h"
#include "scene/frame/frame_maker.h"
#include "skyview/session/own_settings.h"
#include "utils/path.h"
#include "utils/text.h"

namespace {

using Name = std::tuple<int, int>;  // of the object: kind and number

struct Seen {
  float x, y, anchor;
};

class LabelsTurning : public testing::Test {
 protected:
  static constexpr int kWidth = 1600, kHeight = 1000, kFrames = 100;

  void SetUp() override {
    std::string error;
    ASSERT_TRUE(scene::OpenDataRoot(CI_BUILT_DATA, "", "en", m_Catalogs, error)) << error;
    // The roots say where the defaults are, so not before.
    CommonInterfaces::SettingsData settings(1, FourCC("FLTR"), "filters.data");
    ASSERT_TRUE(settings.Read(nullptr));
    for (const char* more : {"star.StarZoomDependLabel=10", "clst.SCZoomDependLabel=30"})
      ASSERT_EQ(skyview::ChangeSetting(more, settings).message, "");
    m_Camera.CreateDefault();
    m_Camera.SetBasePlane(1);
    m_Camera.FillMagCorrectionsVector(&settings);
    SphCoor place = m_Camera.GetLocation();
    place.lat = 50.0 * scene::kRadiansPerDegree;
    m_Camera.SetLocation(place);
    CommonInterfaces::_Date time;
    DJ({2026, 1, 15, 20, 0, 0.0}, time.day, time.fraction);
    m_Camera.SetUniversalTime(time);
    m_Camera.SetWinRect({kWidth, kHeight, kWidth, kHeight});
    m_Camera.SetZoom(0.8);
    m_Shown = scene::ReadShownKinds(settings);
    m_Maker.emplace(m_Camera, m_Catalogs, m_Shown, scene::ObjectFilters::None(), m_Markers);
  }
  void TearDown() override { ZentharPath::SetRoots(nullptr, nullptr); }

  const scene::DisplayList& Draw(int frame) {
    SphViewCoor angles;
    angles.lon = (180.0 - frame / 3.0) * scene::kRadiansPerDegree;
    angles.lat = 38.0 * scene::kRadiansPerDegree;
    m_Camera.SetRA_Dec(angles);
    m_Maker->Prepare();
    m_Maker->Compute();
    return m_Maker->GetFrame().GetDisplayList();
  }

  static std::map<Name, Seen> FindLabels(const scene::DisplayList& list) {
    std::map<Name, Seen> labels;
    for (const auto& text : list.GetTexts()) {
      if (text.object.kind != 0)
        labels[{text.object.kind, text.object.number}] = {text.x, text.y, text.anchor};
    }
    return labels;
  }

  scene::SkyCatalogs m_Catalogs;
  CommonInterfaces::Camera m_Camera{1};
  scene::ShownKinds m_Shown;
  scene::SkyMarkers m_Markers;
  std::optional<scene::FrameMaker> m_Maker;
};

}  // namespace

// A name that goes does not come back at once, and it stays on its side of the object: from frame to frame
// the sky moves by 11 pixels in the middle and by 25 in the corners.
TEST_F(LabelsTurning, NamesNeitherFlickerNorHop) {
  constexpr float kFarthest = 30.0f;
  constexpr int kSoon = 10;  // frames
  std::map<Name, int> gone;  // the first frame without it
  std::map<Name, Seen> before;
  int names = 0, flickered = 0, returned = 0, hopped = 0;
  for (int frame = 0; frame < kFrames; ++frame) {
    const auto labels = FindLabels(Draw(frame));
    names += static_cast<int>(labels.size());
    for (const auto& [name, old] : before) {
      if (labels.count(name) == 0) gone[name] = frame;
    }
    for (const auto& [name, now] : labels) {
      const auto left = gone.find(name);
      if (left != gone.end()) (frame - left->second <= kSoon ? flickered : returned) += 1;
      gone.erase(name);
      const auto old = before.find(name);
      if (old == before.end()) continue;
      hopped += old->second.anchor != now.anchor ||
                std::hypot(old->second.x - now.x, old->second.y - now.y) > kFarthest;
    }
    before = labels;
  }
  EXPECT_GT(names, 60 * kFrames);
  EXPECT_EQ(flickered, 0);
  EXPECT_LT(1000 * returned, names) << "after the sky went on";
  EXPECT_LT(200 * hopped, names) << "a brighter one that comes in may push a name aside";
}

// Boxes of 0.45 font sizes a letter, which is less than texts take, so that rounding does not count.
TEST_F(LabelsTurning, NamesNeverOverlap) {
  struct Box {
    double left, top, right, bottom;
  };
  for (int frame = 0; frame < kFrames; frame += 9) {
    const scene::DisplayList& list = Draw(frame);
    std::vector<Box> boxes;
    for (const auto& text : list.GetTexts()) {
      const char* const bytes = list.GetTextBytes().data() + text.first;
      const auto letters =
          std::count_if(bytes, bytes + text.length, [](char c) { return (c & 0xC0) != 0x80; });
      const double width = 0.45 * text.size * static_cast<double>(letters),
                   left = text.x - text.anchor * width;
      boxes.push_back({left, text.y - 0.7 * text.size, left + width, text.y + 0.15 * text.size});
    }
    for (std::size_t i = 0; i < boxes.size(); ++i) {
      for (std::size_t k = 0; k < i; ++k) {
        const Box &a = boxes[i], &b = boxes[k];
        EXPECT_FALSE(a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom)
            << frame << " " << i << " " << k;
      }
    }
  }
}

TEST_F(LabelsTurning, PictureAloneIsAlwaysTheSame) {
  const auto first = FindLabels(Draw(50));
  scene::FrameMaker other(m_Camera, m_Catalogs, m_Shown, scene::ObjectFilters::None(), m_Markers);
  other.Prepare();
  other.Compute();
  const auto second = FindLabels(other.GetFrame().GetDisplayList());
  ASSERT_EQ(first.size(), second.size());
  for (const auto& [name, seen] : first) {
    ASSERT_EQ(second.count(name), 1u);
    EXPECT_EQ(second.at(name).x, seen.x);
    EXPECT_EQ(second.at(name).y, seen.y);
  }
}
