// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/display/deepsky_symbols.h"

#include <gtest/gtest.h>

#include <vector>

#include "utils/text.h"

namespace scene {
namespace {

DeepskySymbol At100(DeepskySign sign) {
  return {sign, 100.0f, 100.0f, 10.0f, 5.0f, 0.0f, 1.0f, {1, 2, 3, 4}, {FourCC("nebu"), 7}};
}

DisplayList Draw(DeepskySign sign) {
  DisplayList list;
  list.Begin(200, 200, 1.0);
  AddSymbolRings(At100(sign), list);
  AddSymbolLines(At100(sign), list);
  for (const auto& line : list.GetPolylines()) EXPECT_EQ(line.object, (ObjectRef{FourCC("nebu"), 7}));
  EXPECT_LE(list.GetPolylines().size(), static_cast<std::size_t>(kMostSymbolLines));
  EXPECT_LE(list.GetVertices().size(), static_cast<std::size_t>(kMostSymbolVertices));
  return list;
}

void ExpectVertices(const DisplayList& list, const std::vector<std::pair<float, float>>& wanted) {
  ASSERT_EQ(list.GetVertices().size(), wanted.size());
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    EXPECT_NEAR(list.GetVertices()[i].x, wanted[i].first, 1e-4f) << i;
    EXPECT_NEAR(list.GetVertices()[i].y, wanted[i].second, 1e-4f) << i;
  }
}

int Number(int subType) { return subType << 24 | 42; }

}  // namespace

TEST(DeepskySymbols, SubTypesHaveTheSignsOfAtlases) {
  const int cluster = FourCC("clst"), nebula = FourCC("nebu");
  EXPECT_EQ(FindDeepskySign(FourCC("gala"), Number(62)), DeepskySign::kGalaxy);
  EXPECT_EQ(FindDeepskySign(FourCC("gala"), 31), DeepskySign::kGalaxy);
  for (const int open : {0, 40, 42, 43, 45})
    EXPECT_EQ(FindDeepskySign(cluster, Number(open)), DeepskySign::kOpenCluster) << open;
  EXPECT_EQ(FindDeepskySign(cluster, Number(41)), DeepskySign::kGlobularCluster);
  EXPECT_EQ(FindDeepskySign(cluster, Number(44)), DeepskySign::kOther) << "a double star";
  for (const int bright : {0, 30, 31, 33, 34})
    EXPECT_EQ(FindDeepskySign(nebula, Number(bright)), DeepskySign::kBrightNebula) << bright;
  EXPECT_EQ(FindDeepskySign(nebula, Number(32)), DeepskySign::kPlanetaryNebula);
  EXPECT_EQ(FindDeepskySign(nebula, Number(35)), DeepskySign::kDarkNebula);
  EXPECT_EQ(FindDeepskySign(nebula, Number(36)), DeepskySign::kClusterInNebula);
  EXPECT_EQ(FindDeepskySign(nebula, -1), DeepskySign::kBrightNebula) << "an object without a number";
  EXPECT_EQ(FindDeepskySign(FourCC("dsnv"), Number(72)), DeepskySign::kOther);
}

TEST(DeepskySymbols, AGalaxyIsAnEllipseAndNeverRound) {
  const DisplayList list = Draw(DeepskySign::kGalaxy);
  ASSERT_EQ(list.GetEllipses().size(), 1u);
  EXPECT_EQ(list.GetEllipses()[0].semiMajor, 10.0f);
  EXPECT_EQ(list.GetEllipses()[0].semiMinor, 5.0f);
  EXPECT_EQ(list.GetEllipses()[0].dash, 0.0f);
  EXPECT_TRUE(list.GetPolylines().empty());
  DeepskySymbol round = At100(DeepskySign::kGalaxy);
  round.minor = 10.0f;
  DisplayList other;
  other.Begin(200, 200, 1.0);
  AddSymbolRings(round, other);
  EXPECT_EQ(other.GetEllipses()[0].semiMinor, 7.5f);
}

TEST(DeepskySymbols, AnOpenClusterIsADottedRing) {
  const DisplayList list = Draw(DeepskySign::kOpenCluster);
  ASSERT_EQ(list.GetEllipses().size(), 1u);
  EXPECT_EQ(list.GetEllipses()[0].semiMinor, 10.0f);
  EXPECT_GT(list.GetEllipses()[0].dash, 1.0f);
  EXPECT_TRUE(list.GetPolylines().empty());
}

TEST(DeepskySymbols, AGlobularClusterIsARingWithACross) {
  const DisplayList list = Draw(DeepskySign::kGlobularCluster);
  ASSERT_EQ(list.GetEllipses().size(), 1u);
  EXPECT_EQ(list.GetEllipses()[0].semiMajor, 10.0f);
  EXPECT_EQ(list.GetEllipses()[0].dash, 0.0f);
  ASSERT_EQ(list.GetPolylines().size(), 2u);
  ExpectVertices(list, {{90, 100}, {110, 100}, {100, 90}, {100, 110}});
}

TEST(DeepskySymbols, APlanetaryNebulaIsARingWithFourRays) {
  const DisplayList list = Draw(DeepskySign::kPlanetaryNebula);
  ASSERT_EQ(list.GetEllipses().size(), 1u);
  EXPECT_FLOAT_EQ(list.GetEllipses()[0].semiMajor, 6.0f);
  ASSERT_EQ(list.GetPolylines().size(), 4u);
  ExpectVertices(
      list, {{106, 100}, {114, 100}, {100, 106}, {100, 114}, {94, 100}, {86, 100}, {100, 94}, {100, 86}});
}

TEST(DeepskySymbols, NebulaeAreBoxesAndDarkOnesDashed) {
  for (const DeepskySign sign :
       {DeepskySign::kBrightNebula, DeepskySign::kDarkNebula, DeepskySign::kClusterInNebula}) {
    const DisplayList list = Draw(sign);
    ASSERT_EQ(list.GetPolylines().size(), 1u);
    EXPECT_EQ(list.GetPolylines()[0].flags, unsigned{kClosedLine});
    EXPECT_EQ(list.GetPolylines()[0].dash > 0.0f, sign == DeepskySign::kDarkNebula);
    EXPECT_EQ(list.GetEllipses().size(), sign == DeepskySign::kClusterInNebula ? 1u : 0u);
    ExpectVertices(list, {{90, 95}, {110, 95}, {110, 105}, {90, 105}});
  }
}

TEST(DeepskySymbols, OthersAreDiamonds) {
  const DisplayList list = Draw(DeepskySign::kOther);
  EXPECT_TRUE(list.GetEllipses().empty());
  ExpectVertices(list, {{90, 100}, {100, 90}, {110, 100}, {100, 110}});
}

}  // namespace scene
