// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/almanac/year_chart.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "scene/almanac/chart_labels.h"
#include "scene/almanac/night_bands.h"

using namespace scene;

namespace {

// Twenty nights from 18 to 6 o'clock, the first eight of them dark, and a planet that rises later each
// time.
YearGraph MakeGraph() {
  YearGraph graph;
  graph.nights = 20;
  graph.latitude = 0.9;
  for (auto& band : graph.bands) band.resize(20);
  for (int night = 0; night < 20; ++night) graph.bands[0][static_cast<std::size_t>(night)] = {{6.0f, 18.0f}};
  for (int night = 0; night < 8; ++night) graph.bands[3][static_cast<std::size_t>(night)] = {{9.0f, 15.0f}};
  RisingLine line = {SSO_ID(astro::kPlanetKind, 5), true, {}};
  for (int night = 0; night < 20; ++night)
    line.points.push_back({night, 7.0f + 0.5f * static_cast<float>(night)});
  graph.lines.push_back(line);
  graph.phases.push_back({{2, 10.0f}, astro::EventKind::kFirstQuarter});
  graph.phases.push_back({{5, 10.0f}, astro::EventKind::kFullMoon});
  return graph;
}

const YearChartTexts kTexts = {
    "Title", "Note", {{0, "January"}}, {"Jupiter rises"}, {{1, "An event"}, {1, "Another"}}};

DisplayList Draw(const YearGraph& graph, const YearChartTexts& texts = kTexts) {
  DisplayList list;
  DrawYearChart(graph, texts, TextExtents(), 1200, 1600, list);
  return list;
}

const TextRecord* FindText(const DisplayList& list, const std::string& text) {
  for (const auto& record : list.GetTexts()) {
    if (list.GetText(record) == text) return &record;
  }
  return nullptr;
}

}  // namespace

TEST(YearChart, HasItsTextsAndAreas) {
  const DisplayList list = Draw(MakeGraph());
  for (const char* text :
       {"Title", "Note", "January", "Jupiter rises", "An event", "Another", "18", "0", "6"})
    EXPECT_TRUE(FindText(list, text)) << text;
  EXPECT_FALSE(FindText(list, "12"));        // the day is not shown
  EXPECT_EQ(list.GetPolygons().size(), 3u);  // the day, the night, and the dark; two twilights have none
  ASSERT_EQ(list.GetDiscs().size(), 2u);
  EXPECT_EQ(list.GetDiscs()[0].cosPhase, 0.0f);
  EXPECT_EQ(list.GetDiscs()[0].sunX, 1.0f);
  EXPECT_EQ(list.GetDiscs()[1].cosPhase, 1.0f);
  EXPECT_LT(list.GetDiscs()[0].y, list.GetDiscs()[1].y);
}

TEST(YearChart, FirstQuarterIsLitOnTheLeftInTheSouth) {
  YearGraph graph = MakeGraph();
  graph.latitude = -0.5;
  EXPECT_EQ(Draw(graph).GetDiscs()[0].sunX, -1.0f);
}

TEST(YearChart, EventsOfANightStandBelowEachOther) {
  const DisplayList list = Draw(MakeGraph());
  const TextRecord *first = FindText(list, "An event"), *second = FindText(list, "Another");
  ASSERT_TRUE(first && second);
  EXPECT_GE(second->y - first->y, first->size);
  EXPECT_EQ(first->x, second->x);
}

TEST(YearChart, LinesAreDrawnWhereTheSunIsDownAndBrokenAtJumps) {
  YearGraph graph = MakeGraph();
  auto& points = graph.lines[0].points;
  points[4].hour = 17.0f;  // far from its neighbours
  points[9].hour = 20.0f;  // by day
  const DisplayList list = Draw(graph);
  std::vector<int> counts;
  for (const auto& run : list.GetRuns()) {
    if (run.type != RecordType::kPolyline || run.layer != Layer::kOrbits) continue;
    for (int i = 0; i < run.count; ++i)
      counts.push_back(list.GetPolylines()[static_cast<std::size_t>(run.first + i)].vertexCount);
  }
  EXPECT_EQ(counts, (std::vector<int>{4, 4, 10}));  // nights 0 to 3, 5 to 8, 10 to 19
}

TEST(YearChart, AllHoursAreShownWhereTheSunDoesNotSet) {
  YearGraph graph = MakeGraph();
  for (auto& band : graph.bands) band.assign(20, {});
  const DisplayList list = Draw(graph);
  EXPECT_TRUE(FindText(list, "12"));
  EXPECT_FALSE(FindText(list, "Jupiter rises"));
}

TEST(NightBands, StretchesAreJoinedAndEndInPoints) {
  DisplayList list;
  const ChartFrame chart({0.0, 0.0, 0.0, 0.0}, {0.0, 24.0, 0.0, 4.0}, 1600, 1000, list);
  const NightHours all = {0.0f, 24.0f};
  EXPECT_FALSE(AddNightBand(chart, all, {{}, {}}));
  EXPECT_TRUE(AddNightBand(chart, all, {{}, {{6.0f, 18.0f}}, {{8.0f, 16.0f}}, {}}));
  ASSERT_EQ(list.GetVertices().size(), 12u);  // a point above, the two joined, a point below
  double area = 0.0;
  const auto& v = list.GetVertices();
  for (std::size_t quad = 0; quad < 3; ++quad) {
    for (std::size_t i = 0; i < 4; ++i) {
      const Vertex a = v[4 * quad + i], b = v[4 * quad + (i + 1) % 4];
      area += 0.5 * (static_cast<double>(a.x) * b.y - static_cast<double>(b.x) * a.y);
    }
  }
  // Triangles of 12 and 8 hours and the trapezium between, a night high each: 1600 / 24 by 1000 / 4 pixels.
  EXPECT_NEAR(area, (6.0 + 10.0 + 4.0) * (1600.0 / 24.0) * 250.0, 1.0);
}

// Rectangles that meet without a gap cover the whole of what they stand for.
TEST(NightBands, StretchesThatPartCoverTheirHalfNights) {
  DisplayList list;
  const ChartFrame chart({0.0, 0.0, 0.0, 0.0}, {0.0, 24.0, 0.0, 2.0}, 1600, 1000, list);
  ASSERT_TRUE(AddNightBand(chart, {0.0f, 24.0f}, {{{0.0f, 24.0f}}, {{0.0f, 6.0f}, {18.0f, 24.0f}}}));
  double area = 0.0;
  const auto& v = list.GetVertices();
  for (std::size_t quad = 0; 4 * quad < v.size(); ++quad)
    area +=
        0.5 *
        static_cast<double>((v[4 * quad + 1].x - v[4 * quad].x) + (v[4 * quad + 2].x - v[4 * quad + 3].x)) *
        static_cast<double>(v[4 * quad + 2].y - v[4 * quad].y);
  EXPECT_NEAR(area, 1600.0 * 500.0 + 800.0 * 500.0, 1.0);
}

TEST(ChartLabels, NamesDoNotLieOverEachOther) {
  DisplayList list;
  const ChartFrame chart({0.0, 0.0, 0.0, 0.0}, {0.0, 1.0, 0.0, 1.0}, 1600, 1000, list);
  const TextExtents extents;
  ChartLabels labels(chart, extents);
  std::vector<ChartPoint> line;
  for (int i = 0; i <= 40; ++i) line.push_back({800.0, 300.0 + 10.0 * i});
  for (int i = 0; i < 12; ++i) labels.Place("A long name", line, palette::kChartText);
  const auto& texts = list.GetTexts();
  ASSERT_GE(texts.size(), 8u);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      const bool apart =
          std::fabs(texts[i].y - texts[j].y) >= texts[i].size ||
          std::fabs(texts[i].x - texts[j].x) >= extents.GetWidth("A long name", texts[i].size, 0);
      EXPECT_TRUE(apart) << i << " " << j;
    }
  }
}

TEST(ChartLabels, ChooseTheSideWithoutLines) {
  DisplayList list;
  const ChartFrame chart({0.0, 0.0, 0.0, 0.0}, {0.0, 1.0, 0.0, 1.0}, 1600, 1000, list);
  const TextExtents extents;
  ChartLabels labels(chart, extents);
  std::vector<ChartPoint> line;
  for (int i = 0; i <= 40; ++i) {
    line.push_back({800.0, 300.0 + 10.0 * i});
    labels.AddObstacle({830.0, 300.0 + 10.0 * i});
  }
  labels.Place("Name", line, palette::kChartText);
  labels.Place("No room", {}, palette::kChartText);
  ASSERT_EQ(list.GetTexts().size(), 1u);
  EXPECT_LT(list.GetTexts()[0].x, 800.0f);
}
