// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/display/star_signs.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "scene/frame_helpers.h"
#include "scene/search/aim.h"
#include "scene/view/standing.h"
#include "utils/text.h"

using namespace scene;

namespace {

constexpr int kDouble = 1, kVariable = 2, kHost = 3, kPlain = 4;

// Four stars of magnitude 2 a degree apart on the equator at right ascension 84 to 87 degrees; the fainter
// star of the double stands to the east.
class StarSigns : public testing::Test {
 protected:
  StarSigns() {
    f.sky.dir.Write("data/catalogs/stars.txt",
                    "Number:i32\tRA:f64\tDec:f64\tVisMagnitude:f32\tSpectrType:text\tPairAngle:f32\t"
                    "VarName:text\tHasPlanets:i32\n"
                    "1\t1.46608\t0\t2\tA0V\t1.5707964\t\t\n2\t1.48353\t0\t2\tA0\t\tδ Cep\t\n"
                    "3\t1.50098\t0\t2\tgK0\t\t\t1\n4\t1.51844\t0\t2\tB1Ib\t\t\t\n");
    std::string error;
    EXPECT_TRUE(LoadSkyCatalogs(f.catalogs, error)) << error;
    frame = std::make_unique<SkyFrame>(f.catalogs);
    f.camera.SetZoom(6.0);
    LookTo(FindStanding(ApparentDirection(MakeDirection(1.49, 0.0), PrepareObserver(f.camera)),
                        PrepareObserver(f.camera)),
           f.camera);
  }
  const DisplayList& Compute() {
    frame->Compute(f.camera, PrepareObserver(f.camera), f.shown);
    return frame->GetDisplayList();
  }
  static int CountRings(const DisplayList& list, int star) {
    int count = 0;
    for (const auto& ring : list.GetEllipses()) count += ring.object == ObjectRef{FourCC("star"), star};
    return count;
  }
  static const PolylineRecord* FindBar(const DisplayList& list, int star) {
    for (const auto& line : list.GetPolylines()) {
      if (line.object == ObjectRef{FourCC("star"), star}) return &line;
    }
    return nullptr;
  }
  static const PointRecord* FindDot(const DisplayList& list, int star) {
    for (const auto& dot : list.GetPoints()) {
      if (dot.object == ObjectRef{FourCC("star"), star}) return &dot;
    }
    return nullptr;
  }

  host_test::FrameFixture f;
  std::unique_ptr<SkyFrame> frame;
};

}  // namespace

TEST_F(StarSigns, EachKindHasItsOwnAndOthersNone) {
  const DisplayList& list = Compute();
  EXPECT_NE(FindBar(list, kDouble), nullptr);
  EXPECT_EQ(CountRings(list, kDouble), 0);
  EXPECT_EQ(FindBar(list, kVariable), nullptr);
  EXPECT_EQ(CountRings(list, kVariable), 1);
  EXPECT_EQ(CountRings(list, kHost), 1);
  EXPECT_EQ(CountRings(list, kPlain), 0);
  EXPECT_EQ(FindBar(list, kPlain), nullptr);
  for (const auto& ring : list.GetEllipses()) {
    if (ring.object == ObjectRef{FourCC("star"), kVariable}) {
      EXPECT_EQ(ring.semiMajor, ring.semiMinor);
    } else if (ring.object == ObjectRef{FourCC("star"), kHost}) {
      EXPECT_GT(ring.semiMajor, 2.0f * ring.semiMinor);
    }
  }
}

// The other stars of the line stand exactly east of the double: the bar points at them.
TEST_F(StarSigns, BarLiesTowardsTheCompanionThroughTheDot) {
  const DisplayList& list = Compute();
  const PolylineRecord* const bar = FindBar(list, kDouble);
  const PointRecord *const dot = FindDot(list, kDouble), *const east = FindDot(list, kVariable);
  ASSERT_TRUE(bar && dot && east);
  ASSERT_EQ(bar->vertexCount, 2);
  const auto& from = list.GetVertices()[static_cast<std::size_t>(bar->firstVertex)];
  const auto& to = list.GetVertices()[static_cast<std::size_t>(bar->firstVertex) + 1];
  EXPECT_NEAR(0.5f * (from.x + to.x), dot->x, 0.01f);
  EXPECT_NEAR(0.5f * (from.y + to.y), dot->y, 0.01f);
  const double dx = to.x - from.x, dy = to.y - from.y, ex = east->x - dot->x, ey = east->y - dot->y;
  const double length = std::hypot(dx, dy);
  EXPECT_GT(length, 2.0 * dot->radius + 4.0);
  EXPECT_NEAR(std::fabs(dx * ex + dy * ey) / (length * std::hypot(ex, ey)), 1.0, 1e-3);
}

TEST_F(StarSigns, SwitchesTakeThemAwayOneByOne) {
  f.shown.doubleSigns = false;
  EXPECT_EQ(FindBar(Compute(), kDouble), nullptr);
  EXPECT_EQ(CountRings(Compute(), kVariable), 1);
  f.shown.variableSigns = false;
  EXPECT_EQ(CountRings(Compute(), kVariable), 0);
  EXPECT_EQ(CountRings(Compute(), kHost), 1);
  f.shown.planetSigns = false;
  EXPECT_EQ(CountRings(Compute(), kHost), 0);
}

TEST_F(StarSigns, WideViewsOfTheScreenHaveNoneAndAtlasesHaveThem) {
  f.camera.SetZoom(3.9);
  EXPECT_EQ(FindBar(Compute(), kDouble), nullptr);
  f.camera.SetZoom(4.0);
  EXPECT_NE(FindBar(Compute(), kDouble), nullptr);
  f.camera.SetZoom(1.0);
  for (const ChartStyle style : {ChartStyle::kPrint, ChartStyle::kNight}) {
    f.shown.style = style;
    EXPECT_NE(FindBar(Compute(), kDouble), nullptr);
    EXPECT_EQ(CountRings(Compute(), kVariable), 1);
  }
}

TEST_F(StarSigns, PhotographsHaveNone) {
  f.shown.style = ChartStyle::kPhoto;
  EXPECT_EQ(FindBar(Compute(), kDouble), nullptr);
  EXPECT_EQ(CountRings(Compute(), kVariable), 0);
}

TEST_F(StarSigns, LegendNamesThoseThatOccur) {
  f.shown.style = ChartStyle::kPrint;
  f.shown.planetSigns = false;
  frame->ShowLegend(true);
  const DisplayList& list = Compute();
  const auto has = [&list](const char* text) {
    return std::string_view(list.GetTextBytes().data(), list.GetTextBytes().size()).find(text) !=
           std::string_view::npos;
  };
  EXPECT_TRUE(has("Double star"));
  EXPECT_TRUE(has("Variable star"));
  EXPECT_FALSE(has("Star with planets"));
}

// MK types and the letters of older catalogues.
TEST(LuminosityClass, IsReadFromEveryFormOfSpectralType) {
  const struct {
    const char* type;
    int expected;
  } kTypes[] = {{"A1Vm", 5}, {"K1.5III", 3},  {"M1-2Ia-Iab", 1},   {"F0II", 2},    {"F5IV-V", 4},
                {"gG9", 3},  {"dF6", 5},      {"sgG6", 4},         {"cF5", 1},     {"sdB2", 6},
                {"wd", 7},   {"DA2", 7},      {"K5", 255},         {"A0pCr", 255}, {"", 255},
                {"M3VI", 6}, {"B8IIIpSi", 3}, {"G5IIIe+G0III", 3}, {"O9.5Iab", 1}};
  for (const auto& entry : kTypes) EXPECT_EQ(FindLuminosityClass(entry.type), entry.expected) << entry.type;
}

TEST_F(StarSigns, TraitsHaveTheLuminosityClass) {
  EXPECT_EQ(f.catalogs.stars.GetCount(), 4);
  for (int i = 0; i < 4; ++i) {
    const ObjectTraits traits = f.catalogs.stars.GetTraits(i);
    const int expected[] = {0, 5, 255, 3, 1};
    EXPECT_EQ(traits.luminosity, expected[traits.number]) << traits.number;
  }
}
