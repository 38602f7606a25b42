// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Which deep-sky objects a frame shows, how they fade, and whose labels come first.
#include <gtest/gtest.h>

#include <algorithm>

#include "scene/frame_helpers.h"

using namespace scene;
using host_test::FrameFixture;

namespace {

constexpr char kColumns[] =
    "Type:text\tNumber:i32\tRA:f64\tDec:f64\tVisMagnitude:f32\tLargestDimension:f32\tSmallestDimension:f32\t"
    "MessierNumber:i32\tNGC_ICnumber:text\tProperName:text\n";

const DrawnDeepsky* FindDrawn(const FrameFixture& f, const char* label) {
  for (const auto& drawn : f.frame.GetDeepsky()) {
    if (f.catalogs.deepsky[static_cast<std::size_t>(drawn.object)].label == std::string(label)) return &drawn;
  }
  return nullptr;
}

}  // namespace

// Stars are drawn to 7.5 + 4 log10(zoom). Galaxies by the camera to 13.5 + 2 log10(zoom), clusters to 12.5 +
// 3 log10(zoom), and neither more than three magnitudes beyond the stars.
TEST(DeepskyLimits, FollowTheStarsInWideViews) {
  FrameFixture f;
  const auto magnitude = [&f](const char* kind, double zoom) {
    f.camera.SetZoom(zoom);
    return MagnitudeOfCode(static_cast<double>(ClassLimits(f.camera, GetFOURCC(kind)).draw));
  };
  EXPECT_NEAR(magnitude("gala", 1.0), 10.5, 1e-5);
  EXPECT_NEAR(magnitude("clst", 1.0), 10.5, 1e-5);
  EXPECT_NEAR(magnitude("nebu", 10.0), 14.5, 1e-5);
  EXPECT_NEAR(magnitude("gala", 10.0), 14.5, 1e-5);
  EXPECT_NEAR(magnitude("gala", 100.0), 17.5, 1e-5) << "here the camera's own limit is the nearer one";
  EXPECT_NEAR(magnitude("dsnv", 10.0), 7.5, 1e-5) << "and here it always is";
  EXPECT_NEAR(magnitude("star", 10.0), 11.5, 1e-5);
}

TEST(DeepskyLimits, TheCorrectionOfTheSettingsShiftsThem) {
  FrameFixture f;
  f.camera.SetMagCorrection(4, 20.0f);
  f.camera.SetZoom(1.0);
  f.camera.RefreshLimitingMagnitudes();
  EXPECT_NEAR(MagnitudeOfCode(static_cast<double>(ClassLimits(f.camera, FourCC("gala")).draw)), 12.5, 1e-5);
  EXPECT_NEAR(MagnitudeOfCode(static_cast<double>(ClassLimits(f.camera, FourCC("clst")).draw)), 10.5, 1e-5);
}

// Andromeda before the end of the night: as the sky grows brighter its symbol fades step by step, is not
// labelled any more when there is little left of it, and is gone before the stars are.
TEST(DeepskyObjects, TheSymbolOfAGalaxyFadesInTheTwilight) {
  FrameFixture f;
  f.camera.SetMagCorrection(5, 110.0f);
  f.camera.RefreshLimitingMagnitudes();
  f.SetTime(2026, 8, 12, 0, 0);
  f.SetLook(180.0, 89.0);
  f.camera.SetZoom(0.5);
  f.Compute();
  const auto* dark = FindDrawn(f, "M31");
  ASSERT_NE(dark, nullptr);
  float last = dark->opacity;
  EXPECT_GT(last, 0.5f);
  bool isGone = false, wasFaint = false, wasLabelled = f.HasLabel("M31") || f.HasLabel("Andromeda Galaxy");
  EXPECT_TRUE(wasLabelled);
  for (int minute = 0; minute < 240 && !isGone; minute += 2) {
    f.SetTime(2026, 8, 12, 1 + minute / 60, minute % 60);
    f.Compute();
    const auto* drawn = FindDrawn(f, "M31");
    isGone = drawn == nullptr;
    const float opacity = isGone ? 0.0f : drawn->opacity;
    EXPECT_LE(opacity, last + 0.02f) << minute;
    EXPECT_GT(opacity, last - 0.15f) << minute << ": it must not go at once";
    wasFaint = wasFaint || (!isGone && opacity < 0.2f);
    EXPECT_FALSE(!isGone && opacity < 0.2f && f.HasLabel("Andromeda Galaxy")) << minute;
    last = opacity;
  }
  EXPECT_TRUE(isGone);
  EXPECT_TRUE(wasFaint);
  EXPECT_FALSE(f.frame.GetStars().empty());
}

// Three galaxies at one place, where one label alone has room: the name comes before Messier's number, that
// before a number of the NGC, whatever the brightness.
TEST(DeepskyObjects, NamesComeBeforeMessierBeforeOthers) {
  struct Case {
    const char* rows;
    const char* first;
    const char* left;
  };
  constexpr Case kCases[] = {{"gala\t1\t1.4640\t-0.0951\t3.0\t0.001\t0.001\t\tNGC 1\t\n"
                              "gala\t2\t1.4640\t-0.0951\t4.0\t0.001\t0.001\t2\tNGC 2\t\n",
                              "M2", "NGC 1"},
                             {"gala\t2\t1.4640\t-0.0951\t3.0\t0.001\t0.001\t2\tNGC 2\t\n"
                              "gala\t3\t1.4640\t-0.0951\t4.0\t0.001\t0.001\t\tNGC 3\tNamed Galaxy\n",
                              "NGC 3", "M2"},
                             {"gala\t4\t1.4640\t-0.0951\t4.0\t0.001\t0.001\t\tNGC 4\t\n"
                              "gala\t5\t1.4640\t-0.0951\t3.0\t0.001\t0.001\t\tNGC 5\t\n",
                              "NGC 5", "NGC 4"}};
  for (const Case& one : kCases) {
    FrameFixture f;
    f.sky.dir.Write("data/catalogs/deepsky.txt", std::string(kColumns) + one.rows);
    std::string error;
    SkyCatalogs catalogs;
    ASSERT_TRUE(LoadSkyCatalogs(catalogs, error)) << error;
    SkyFrame frame(catalogs);
    f.camera.SetMagCorrection(5, 110.0f);
    f.camera.SetZoom(2.0);
    f.SetLook(178.0, 32.0);
    f.observer = PrepareObserver(f.camera);
    frame.Compute(f.camera, f.observer, f.shown);
    std::vector<std::string> labels;
    for (const auto& label : frame.GetParts().labels.GetLabels()) {
      if (label.kind == LabelKind::kGalaxy) labels.emplace_back(label.text);
    }
    const auto find = [&labels](const char* text) { return std::find(labels.begin(), labels.end(), text); };
    ASSERT_NE(find(one.first), labels.end()) << one.first;
    EXPECT_LT(find(one.first), find(one.left)) << one.first;
  }
}
