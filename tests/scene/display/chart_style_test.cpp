// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/visibility/chart_style.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "scene/display/style_rules.h"
#include "scene/display_text.h"
#include "scene/frame_helpers.h"
#include "support/allocation_counter.h"

using namespace scene;

namespace {

// Every colour of a list by which something is painted, with the layer; glows where there are some.
void ForEachColour(const DisplayList& list, const std::function<void(const Rgba&, Layer)>& see) {
  const auto at = [](const auto& records, int i) -> const auto& {
    return records[static_cast<std::size_t>(i)];
  };
  for (const scene::Run& run : list.GetRuns()) {
    const auto glow = [&](const Glow& light) {
      if (light.radius > 0.0f) see(light.colour, run.layer), see(light.middleColour, run.layer);
    };
    for (int i = run.first; i < run.first + run.count; ++i) {
      switch (run.type) {
        case RecordType::kPoint:
          see(at(list.GetPoints(), i).colour, run.layer);
          glow(at(list.GetPoints(), i).glow);
          break;
        case RecordType::kDisc:
          see(at(list.GetDiscs(), i).lit, run.layer);
          see(at(list.GetDiscs(), i).dark, run.layer);
          glow(at(list.GetDiscs(), i).glow);
          break;
        case RecordType::kGlobe:
          see(at(list.GetGlobes(), i).disc.lit, run.layer);
          see(at(list.GetGlobes(), i).disc.dark, run.layer);
          glow(at(list.GetGlobes(), i).disc.glow);
          break;
        case RecordType::kShadow:
          see(at(list.GetShadows(), i).inner, run.layer);
          see(at(list.GetShadows(), i).middleColour, run.layer);
          see(at(list.GetShadows(), i).outer, run.layer);
          break;
        case RecordType::kPolyline:
          see(at(list.GetPolylines(), i).colour, run.layer);
          break;
        case RecordType::kEllipse:
          see(at(list.GetEllipses(), i).colour, run.layer);
          break;
        case RecordType::kPolygon:
          see(at(list.GetPolygons(), i).colour, run.layer);
          see(at(list.GetPolygons(), i).edge, run.layer);
          break;
        case RecordType::kGradient:
          see(at(list.GetGradients(), i).colour, run.layer);
          see(at(list.GetGradients(), i).middleColour, run.layer);
          see(at(list.GetGradients(), i).endColour, run.layer);
          break;
        case RecordType::kText:
          see(at(list.GetTexts(), i).colour, run.layer);
          break;
        case RecordType::kMesh: {
          const MeshRecord& mesh = at(list.GetMeshes(), i);
          for (int node = 0; node < mesh.columns * mesh.rows; ++node)
            see(at(list.GetColours(), mesh.firstColour + node), run.layer);
          break;
        }
      }
    }
  }
}

// Orion high in the south with everything on that a frame can show, at night.
class ChartStyleTest : public testing::Test {
 protected:
  ChartStyleTest() {
    f.camera.SetZoom(0.6);
    f.shown.lines.equatorialGrid = f.shown.lines.equator = f.shown.lines.ecliptic = 1;
    f.shown.boundaries = true;
    f.frame.SetCaption({"a caption"});
    f.frame.ShowLegend(true);
    f.frame.SetFinders({{0.05, 0.0, 0.0, 0.0, "a circle"}});
  }
  const DisplayList& Draw(ChartStyle style) {
    SetChartStyle(style, f.shown);
    f.Compute();
    return f.frame.GetDisplayList();
  }
  bool HasLayer(Layer layer) {
    const auto& runs = f.frame.GetDisplayList().GetRuns();
    return std::any_of(runs.begin(), runs.end(),
                       [layer](const scene::Run& run) { return run.layer == layer; });
  }

  host_test::FrameFixture f;
};

}  // namespace

TEST_F(ChartStyleTest, PaperIsWhiteAndStarsAreBlack) {
  const DisplayList& list = Draw(ChartStyle::kPrint);
  int grounds = 0, stars = 0;
  ForEachColour(list, [&](const Rgba& colour, Layer layer) {
    if (layer != Layer::kBackground) return;
    EXPECT_EQ(colour, (Rgba{255, 255, 255, 255}));
    ++grounds;
  });
  EXPECT_GT(grounds, 0);
  for (const PointRecord& point : list.GetPoints()) {
    if (point.object.kind != GetFOURCC("star")) continue;
    ++stars;
    EXPECT_EQ(point.colour, (Rgba{0, 0, 0, 255})) << point.object.number;
  }
  EXPECT_GE(stars, 4) << "Sirius, Rigel, Procyon, Betelgeuse";
}

// The rim is a light of the paper's colour that begins at the edge of the dot.
TEST_F(ChartStyleTest, StarsOnPaperHaveAThinWhiteRim) {
  int rims = 0;
  for (const PointRecord& point : Draw(ChartStyle::kPrint).GetPoints()) {
    if (point.object.kind != GetFOURCC("star") || point.glow.radius == 0.0f) continue;
    ++rims;
    EXPECT_EQ(point.glow.innerRadius, point.radius);
    EXPECT_LE(point.glow.radius, point.radius + 1.0f);
    EXPECT_EQ(point.glow.colour, (Rgba{255, 255, 255, 255}));
  }
  EXPECT_GE(rims, 4);
}

// With its rim a faint star shows on a bright one, not the other way round.
TEST_F(ChartStyleTest, BrightStarsLieLowestOnPaperAndHighestOnTheScreen) {
  const auto first = [](const DisplayList& list) {
    return std::find_if(list.GetPoints().begin(), list.GetPoints().end(),
                        [](const PointRecord& point) { return point.object.kind == GetFOURCC("star"); });
  };
  const auto radii = [&](ChartStyle style) {
    const DisplayList& list = Draw(style);
    std::vector<float> radius;
    for (auto point = first(list); point->object.kind == GetFOURCC("star"); ++point)
      radius.push_back(point->radius);
    return radius;
  };
  const auto screen = radii(ChartStyle::kScreen), paper = radii(ChartStyle::kPrint);
  EXPECT_TRUE(std::is_sorted(screen.begin(), screen.end()));
  EXPECT_TRUE(std::is_sorted(paper.rbegin(), paper.rend()));
}

TEST_F(ChartStyleTest, TextsAndLinesOnPaperAreDark) {
  const DisplayList& list = Draw(ChartStyle::kPrint);
  ASSERT_FALSE(list.GetTexts().empty());
  for (const TextRecord& text : list.GetTexts())
    EXPECT_LE(std::max({text.colour.red, text.colour.green, text.colour.blue}), 150) << list.GetText(text);
  for (const PolylineRecord& line : list.GetPolylines())
    EXPECT_LE(std::max({line.colour.red, line.colour.green, line.colour.blue}), 160);
}

TEST_F(ChartStyleTest, NothingButRedInANightChart) {
  int seen = 0, bright = 0;
  ForEachColour(Draw(ChartStyle::kNight), [&](const Rgba& colour, Layer layer) {
    ++seen;
    EXPECT_EQ(colour.green, 0) << static_cast<int>(layer);
    EXPECT_EQ(colour.blue, 0) << static_cast<int>(layer);
    if (colour.red > 200) ++bright;
  });
  EXPECT_GT(seen, 50);
  EXPECT_GT(bright, 5) << "stars and names can be read";
  for (const GlobeRecord& globe : f.frame.GetDisplayList().GetGlobes())
    EXPECT_EQ(globe.map, -1) << "a map has colours of its own";
}

// At noon: stars as at night in both charts, none on the screen.
TEST_F(ChartStyleTest, ChartsKnowNoDay) {
  f.SetTime(2026, 1, 15, 11, 0);
  f.SetLook(180.0, 60.0);
  f.camera.SetZoom(0.3);
  Draw(ChartStyle::kScreen);
  EXPECT_TRUE(f.frame.GetStars().empty());
  Draw(ChartStyle::kPrint);
  const std::size_t stars = f.frame.GetStars().size();
  EXPECT_GE(stars, 1u);
  Draw(ChartStyle::kNight);
  EXPECT_EQ(f.frame.GetStars().size(), stars);
}

TEST_F(ChartStyleTest, PhotographHasNoLinesNamesAndSymbols) {
  f.frame.ShowLegend(false);
  f.frame.SetFinders({});
  const DisplayList& list = Draw(ChartStyle::kPhoto);
  EXPECT_TRUE(list.GetTexts().empty());
  EXPECT_TRUE(list.GetPolylines().empty());
  EXPECT_TRUE(list.GetEllipses().empty());
  for (const Layer layer : {Layer::kFigures, Layer::kSkyLines, Layer::kCompass, Layer::kCaptionGround})
    EXPECT_FALSE(HasLayer(layer)) << static_cast<int>(layer);
  EXPECT_TRUE(HasLayer(Layer::kStars));
}

TEST_F(ChartStyleTest, PhotographHasMoreGlareAndTheColoursOfStars) {
  const auto sirius = [this](ChartStyle style) {
    const auto& points = Draw(style).GetPoints();
    return *std::find_if(points.begin(), points.end(), [](const PointRecord& point) {
      return point.object == ObjectRef{GetFOURCC("star"), 2491};
    });
  };
  const PointRecord screen = sirius(ChartStyle::kScreen), photo = sirius(ChartStyle::kPhoto);
  EXPECT_GT(photo.glow.radius, 1.5f * screen.glow.radius);
  EXPECT_EQ(photo.colour, screen.colour);
}

// From one style to the next and back: nothing of a style stays.
TEST_F(ChartStyleTest, ScreenIsAsItWasAfterOtherStyles) {
  const std::string before = host_test::DisplayText(Draw(ChartStyle::kScreen)).Get();
  Draw(ChartStyle::kPrint);
  Draw(ChartStyle::kNight);
  EXPECT_EQ(host_test::DisplayText(Draw(ChartStyle::kScreen)).Get(), before);
}

TEST_F(ChartStyleTest, SettingsThatSwitchOffStayOff) {
  f.shown.figures = false;
  Draw(ChartStyle::kPrint);
  EXPECT_FALSE(HasLayer(Layer::kFigures));
}

TEST_F(ChartStyleTest, LampsHideStarsOfAChart) {
  const ClassLimits stars(f.camera, GetFOURCC("star"));
  Draw(ChartStyle::kPrint);
  EXPECT_EQ(f.frame.GetDrawnLimits(stars).draw, stars.draw);
  f.shown.darkness = 17.5;
  Draw(ChartStyle::kPrint);
  EXPECT_LT(f.frame.GetDrawnLimits(stars).draw, stars.draw - 10.0f) << "a magnitude and more";
  ForEachColour(f.frame.GetDisplayList(), [](const Rgba& colour, Layer layer) {
    if (layer != Layer::kBackground) return;
    EXPECT_EQ(colour, (Rgba{255, 255, 255, 255})) << "paper stays white";
  });
}

TEST_F(ChartStyleTest, NoStyleAllocatesAfterItsFirstFrame) {
  for (const ChartStyle style : {ChartStyle::kPrint, ChartStyle::kNight, ChartStyle::kPhoto}) {
    Draw(style);
    const auto before = host_test::GetAllocationCount();
    f.frame.Compute(f.camera, f.observer, f.shown);
    EXPECT_EQ(host_test::GetAllocationCount(), before) << static_cast<int>(style);
  }
}

// Hand-made: darker takes 78 % of the least channel off and 70 % of the rest.
TEST(Ink, MakesColours) {
  const Rgba pale = {200, 100, 100, 128};
  EXPECT_EQ((Ink{Ink::Way::kAsIs, {}, 0.5f, 1.0f}.Apply(pale)), (Rgba{200, 100, 100, 64}));
  EXPECT_EQ((Ink{Ink::Way::kFlat, {1, 2, 3, 0}, 1.0f, 1.0f}.Apply(pale)), (Rgba{1, 2, 3, 128}));
  EXPECT_EQ((Ink{Ink::Way::kTone, {255, 51, 0, 0}, 4.0f, 1.0f}.Apply(pale)), (Rgba{200, 40, 0, 255}));
  EXPECT_EQ((Ink{Ink::Way::kDarker, {}, 1.0f, 1.0f}.Apply(pale)), (Rgba{85, 15, 15, 128}));
}
