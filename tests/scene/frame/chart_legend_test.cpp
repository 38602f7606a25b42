// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/chart_legend.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>

#include "scene/frame_helpers.h"

using namespace scene;

namespace {

class ChartLegendTest : public testing::Test {
 protected:
  ChartLegendTest() {
    f.camera.SetZoom(0.6);
    f.frame.ShowLegend(true);
  }
  const DisplayList& Draw() {
    f.Compute();
    return f.frame.GetDisplayList();
  }
  // Of the legend; null when it is not there.
  const TextRecord* Find(const char* text) {
    const DisplayList& list = f.frame.GetDisplayList();
    for (const scene::Run& run : list.GetRuns()) {
      if (run.layer != Layer::kChart || run.type != RecordType::kText) continue;
      for (int i = run.first; i < run.first + run.count; ++i) {
        const TextRecord& record = list.GetTexts()[static_cast<std::size_t>(i)];
        if (std::strcmp(list.GetText(record), text) == 0) return &record;
      }
    }
    return nullptr;
  }
  std::vector<PointRecord> GetDots() {
    const DisplayList& list = f.frame.GetDisplayList();
    std::vector<PointRecord> dots;
    for (const scene::Run& run : list.GetRuns()) {
      if (run.layer == Layer::kChart && run.type == RecordType::kPoint)
        dots.insert(dots.end(), list.GetPoints().begin() + run.first,
                    list.GetPoints().begin() + run.first + run.count);
    }
    return dots;
  }

  host_test::FrameFixture f;
};

}  // namespace

// Of scale s the bar of an angle a is 2 s tan(a / 4) long: 1000 pixels make 8.727 of a degree.
TEST(ScaleBar, IsTheLargestRoundAngleThatFits) {
  const double scale = 1000.0;
  ScaleBar bar = FindScaleBar(scale, 190.0);
  EXPECT_EQ(bar.count, 20);
  EXPECT_STREQ(bar.sign, "\u00b0");
  EXPECT_NEAR(bar.length, 2000.0 * std::tan(5.0 * kRadiansPerDegree), 1e-9);
  bar = FindScaleBar(scale, 8.8);
  EXPECT_EQ(bar.count, 1);
  EXPECT_NEAR(bar.length, 8.727, 0.001);
  bar = FindScaleBar(scale, 8.7);
  EXPECT_EQ(bar.count, 30);
  EXPECT_STREQ(bar.sign, "\u2032");
  bar = FindScaleBar(2e7, 190.0);  // near the largest zoom: a second of arc is 48.5 pixels
  EXPECT_STREQ(bar.sign, "\u2033");
  EXPECT_EQ(bar.count, 2);
  EXPECT_NEAR(bar.length, 97.0, 0.1);
}

// Half its length on each side of the middle of the picture it spans its angle.
TEST_F(ChartLegendTest, ScaleBarIsTrueInTheMiddleOfThePicture) {
  Draw();
  const ViewGeometry geometry(f.camera);
  const ScaleBar bar = FindScaleBar(geometry.scale, 190.0);
  const auto pixel =
      geometry.Project(MakeDirection(f.camera.GetViewAngles().lon,
                                     f.camera.GetViewAngles().lat + 0.5 * bar.count * kRadiansPerDegree),
                       SkyFrameOf::kHorizon);
  EXPECT_NEAR(pixel.y - 500.0, 0.5 * bar.length, 0.01);
  EXPECT_TRUE(Find((std::to_string(bar.count) + bar.sign).c_str()));
}

// Stars of the picture that have nearly a whole magnitude have its dot: Vega's 0.03, Procyon's 0.38.
TEST_F(ChartLegendTest, DotsAreThoseOfStars) {
  for (const ChartStyle style : {ChartStyle::kScreen, ChartStyle::kPrint}) {
    f.shown.style = style;
    const DisplayList& list = Draw();
    const auto dots = GetDots();
    ASSERT_GE(dots.size(), 4u);
    const auto rigel = std::find_if(list.GetPoints().begin(), list.GetPoints().end(), [](const auto& point) {
      return point.object == ObjectRef{GetFOURCC("star"), 1713};
    });
    ASSERT_NE(rigel, list.GetPoints().end());
    const TextRecord *zero = Find("0"), *one = Find("1");
    ASSERT_TRUE(zero && one);
    const auto dotAt = [&](const TextRecord& text) {
      return *std::find_if(dots.begin(), dots.end(), [&](const auto& dot) { return dot.x == text.x; });
    };
    EXPECT_LT(rigel->radius, dotAt(*zero).radius) << "Rigel has 0.12";
    EXPECT_GT(rigel->radius, dotAt(*one).radius);
    EXPECT_NEAR(rigel->radius, dotAt(*zero).radius, 0.2 * (dotAt(*zero).radius - dotAt(*one).radius));
  }
}

TEST_F(ChartLegendTest, MagnitudesEndWithTheFaintestWholeOneThatIsDrawn) {
  Draw();
  const double limit = MagnitudeOfCode(static_cast<double>(ClassLimits(f.camera, GetFOURCC("star")).draw));
  const int faintest = static_cast<int>(std::floor(limit));
  EXPECT_TRUE(Find(std::to_string(faintest).c_str()));
  EXPECT_FALSE(Find(std::to_string(faintest + 1).c_str()));
}

// The picture shows the nebula of Orion, no galaxy and no cluster.
TEST_F(ChartLegendTest, SymbolsAreThoseThatOccur) {
  f.camera.SetZoom(1.0);
  Draw();
  ASSERT_EQ(f.frame.GetDeepsky().size(), 1u);
  EXPECT_TRUE(Find("Nebula"));
  for (const char* name : {"Galaxy", "Open cluster", "Globular cluster", "Planetary nebula", "Other object"})
    EXPECT_FALSE(Find(name)) << name;
}

// Its records lie on the layer of the chart and stand for nothing that could be picked.
TEST_F(ChartLegendTest, SamplesNameNoObject) {
  const DisplayList& list = Draw();
  for (const scene::Run& run : list.GetRuns()) {
    if (run.layer != Layer::kChart) continue;
    for (int i = run.first; i < run.first + run.count; ++i) {
      if (run.type != RecordType::kPolyline) continue;
      EXPECT_EQ(list.GetPolylines()[static_cast<std::size_t>(i)].object, ObjectRef{});
    }
  }
  const int deepsky = static_cast<int>(
      std::count_if(list.GetPolylines().begin(), list.GetPolylines().end(),
                    [](const PolylineRecord& line) { return line.object.kind == GetFOURCC("nebu"); }));
  EXPECT_EQ(deepsky, 1) << "the nebula itself";
}

TEST_F(ChartLegendTest, ArrowsPointNorthAndEast) {
  for (const double azimuth : {180.0, 90.0, 20.0}) {
    f.SetLook(azimuth, 40.0);
    Draw();
    const ViewGeometry geometry(f.camera);
    double ra = 0.0, dec = 0.0;
    f.camera.GetRA_Dec2K(ra, dec);
    const auto at = [&](double a, double d) {
      const auto p = geometry.Project(MakeDirection(a, d), SkyFrameOf::kJ2000);
      return tPoint<double>{p.x, -p.y};
    };
    const auto here = at(ra, dec), north = at(ra, dec + 1e-3), east = at(ra + 1e-3, dec);
    const TextRecord *n = Find("N"), *e = Find("E");
    ASSERT_TRUE(n && e);
    // From letter to letter: east less north, which are at right angles and equally long.
    const double expected = std::atan2(east.y - here.y, east.x - here.x),
                 up = std::atan2(north.y - here.y, north.x - here.x);
    const double across = std::atan2(e->y - n->y, e->x - n->x);
    const double wanted = std::atan2(std::sin(expected) - std::sin(up), std::cos(expected) - std::cos(up));
    EXPECT_NEAR(std::remainder(across - wanted, 2.0 * kPi), 0.0, 0.01) << azimuth;
  }
}

TEST_F(ChartLegendTest, NoLabelStandsOnIt) {
  const DisplayList& list = Draw();
  for (const TextRecord& text : list.GetTexts()) {
    if (text.object == ObjectRef{}) continue;
    EXPECT_FALSE(text.x > 1240.0f && text.y > 740.0f) << list.GetText(text);
  }
}
