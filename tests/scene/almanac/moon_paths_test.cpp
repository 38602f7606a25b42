// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/almanac/moon_paths.h"

#include <gtest/gtest.h>

#include <cmath>

#include "astro/julian_date.h"
#include "astro/moon_phenomena.h"
#include "scene/almanac/moon_chart.h"

using namespace scene;

namespace {

constexpr double kStep = 1.0 / 96.0;

SkyMoment At(int year, int month, int day) {
  int number = 0;
  double fraction = 0.0;
  DJ({year, month, day, 0, 0, 0.0}, number, fraction);
  return MakeMoment(number, fraction);
}

const MoonPathPoint& PointAt(const MoonPath& path, const SkyMoment& first, double julianDateTT) {
  const double at = (julianDateTT - first.julianDateTT) / kStep;
  return path.points[static_cast<std::size_t>(std::lround(at))];
}

int CountTexts(const DisplayList& list, const std::string& text) {
  int count = 0;
  for (const auto& record : list.GetTexts()) count += list.GetText(record) == text;
  return count;
}

}  // namespace

// Semi-major axes in radii of Jupiter (71492 km): 421800, 671100, 1070400, 1882700 km.
TEST(MoonPaths, ReachAsFarAsTheOrbits) {
  const auto paths = MakeJupiterMoonPaths(At(2027, 3, 1), 31.0, kStep);
  ASSERT_EQ(paths.size(), 4u);
  const double axes[] = {5.90, 9.39, 14.97, 26.33};
  for (std::size_t i = 0; i < paths.size(); ++i) {
    EXPECT_EQ(paths[i].moon.number, 501 + static_cast<int>(i));
    ASSERT_EQ(paths[i].points.size(), 31u * 96u + 1u);
    float east = 0.0f, west = 0.0f;
    for (const auto& point : paths[i].points) {
      east = std::min(east, point.offset);
      west = std::max(west, point.offset);
    }
    EXPECT_NEAR(west, axes[i], 0.02 * axes[i]) << i;
    EXPECT_NEAR(-east, axes[i], 0.02 * axes[i]) << i;
  }
}

// Before and behind the disc as the search for phenomena has it.
TEST(MoonPaths, AreHiddenDuringOccultationsAndEclipses) {
  const SkyMoment first = At(2027, 3, 1);
  const auto paths = MakeJupiterMoonPaths(first, 31.0, kStep);
  int hidden = 0, seen = 0;
  for (const auto& event : astro::FindMoonEvents(5, first.julianDateTT, first.julianDateTT + 31.0)) {
    const double middle = 0.5 * (event.begin + event.end);
    if (middle < first.julianDateTT || middle > first.julianDateTT + 31.0 || event.end - event.begin < 0.05)
      continue;
    const auto& point = PointAt(paths[static_cast<std::size_t>(event.moon.number - 501)], first, middle);
    if (event.kind == astro::MoonPhenomenon::kTransit) {
      EXPECT_FALSE(point.hidden);
      EXPECT_LT(std::fabs(point.offset), 0.3);
      ++seen;
    } else if (event.kind != astro::MoonPhenomenon::kShadowTransit) {
      EXPECT_TRUE(point.hidden) << event.moon.number << " " << middle;
      ++hidden;
    }
  }
  EXPECT_GT(hidden, 40);
  EXPECT_GT(seen, 25);
}

TEST(MoonPaths, WestIsPositive) {
  const SkyMoment first = At(2027, 3, 1);
  const auto paths = MakeJupiterMoonPaths(first, 1.0, 1.0);
  CQXSolSys model;
  model.SetObserverAtEarthCentre();
  model.SetMoment(first.julianDateTT, first.deltaT);
  ObservedBody jupiter, callisto;
  ASSERT_TRUE(model.Observe(SSO_ID(astro::kPlanetKind, 5), nullptr, jupiter));
  ASSERT_TRUE(model.Observe(SSO_ID(astro::kMoonKind, 504), nullptr, callisto));
  const auto rightAscension = [](const ObservedBody& seen) {
    return std::atan2(seen.apparent[1], seen.apparent[0]);
  };
  const double east = rightAscension(callisto) - rightAscension(jupiter);
  EXPECT_GT(std::fabs(east), 1e-4);
  EXPECT_EQ(paths[3].points[0].offset > 0.0f, east < 0.0);
}

TEST(MoonPaths, NothingForNoTimeAndOutsideTheTheory) {
  EXPECT_TRUE(MakeJupiterMoonPaths(At(2027, 3, 1), 0.0, kStep).empty());
  EXPECT_TRUE(MakeJupiterMoonPaths(At(2027, 3, 1), 31.0, 0.0).empty());
  EXPECT_TRUE(MakeJupiterMoonPaths(At(-2900, 3, 1), 31.0, kStep).empty());
}

TEST(MoonChart, LinesAreBrokenWhereMoonsAreHidden) {
  const std::vector<MoonPath> paths = {
      {SSO_ID(astro::kMoonKind, 501),
       {{-4.0f, false}, {-2.0f, false}, {0.0f, true}, {2.0f, false}, {4.0f, false}}}};
  DisplayList list;
  DrawMoonChart(paths, 2.0, {"Title", "East", "West", "Note", {"Io"}, {"1", "2"}}, 1600, 1000, list);
  int curves = 0;
  for (const auto& run : list.GetRuns()) {
    if (run.type == RecordType::kPolyline && run.layer == Layer::kOrbits) curves += run.count;
  }
  EXPECT_EQ(curves, 3);  // before and behind the disc, and the stroke of the legend
  for (const char* text : {"Title", "East", "West", "Note", "Io", "1", "2"})
    EXPECT_EQ(CountTexts(list, text), 1) << text;
  ASSERT_EQ(list.GetPolygons().size(), 1u);  // the disc
}

TEST(MoonChart, EastIsLeftAndTimeRunsDown) {
  const std::vector<MoonPath> paths = {{SSO_ID(astro::kMoonKind, 501), {{-4.0f, false}, {4.0f, false}}}};
  DisplayList list;
  DrawMoonChart(paths, 1.0, {"", "", "", "", {"Io"}, {}}, 1600, 1000, list);
  const auto& vertices = list.GetVertices();
  bool found = false;
  for (const auto& line : list.GetPolylines()) {
    if (line.vertexCount != 2 || line.width < 2.0f || line.width > 2.5f) continue;
    const Vertex a = vertices[static_cast<std::size_t>(line.firstVertex)],
                 b = vertices[static_cast<std::size_t>(line.firstVertex) + 1];
    EXPECT_LT(a.x, b.x);
    EXPECT_LT(a.y, b.y);
    found = true;
  }
  EXPECT_TRUE(found);
}

// The one ends at the right edge of the field, the other begins at the left one, both on one line above it.
TEST(MoonChart, EastAndWestStandOverTheirSides) {
  DisplayList list;
  DrawMoonChart({{SSO_ID(astro::kMoonKind, 501), {{-4.0f, false}, {4.0f, false}}}}, 1.0,
                {"", "East", "West", "", {"Io"}, {}}, 1600, 1000, list);
  const auto find = [&list](const std::string& text) {
    for (const TextRecord& record : list.GetTexts()) {
      if (list.GetText(record) == text) return record;
    }
    ADD_FAILURE() << text;
    return TextRecord{};
  };
  const TextRecord east = find("East"), west = find("West");
  EXPECT_EQ(east.anchor, 0.0f);
  EXPECT_EQ(west.anchor, 1.0f);
  EXPECT_LT(east.x, 160.0f);
  EXPECT_GT(west.x, 1440.0f);
  EXPECT_LE(west.x, 1600.0f);
  EXPECT_EQ(east.y, west.y);
  EXPECT_GT(east.y, 0.0f);
  EXPECT_LT(east.y, 200.0f);
}
