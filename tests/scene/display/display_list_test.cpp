// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/display/display_list.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <tuple>

#include "scene/display/palette.h"
#include "support/allocation_counter.h"

using namespace scene;

namespace {

using RunFields = std::tuple<RecordType, Layer, int, int>;

std::vector<RunFields> GetRuns(const DisplayList& list) {
  std::vector<RunFields> runs;
  for (const scene::Run& run : list.GetRuns()) runs.emplace_back(run.type, run.layer, run.first, run.count);
  return runs;
}

void AddSquare(double x, double y, double size, DisplayList& list) {
  list.AddVertex(x, y);
  list.AddVertex(x + size, y);
  list.AddVertex(x + size, y + size);
  list.AddVertex(x, y + size);
}

// A few records of every type.
void Fill(DisplayList& list) {
  for (int i = 0; i < 20; ++i) {
    list.Add(Layer::kBackground, GradientRecord{});
    list.Add(Layer::kStars, PointRecord{});
    list.Add(Layer::kBodies, DiscRecord{});
    list.Add(Layer::kBodies, ShadowRecord{});
    list.Add(Layer::kDeepsky, EllipseRecord{});
    AddSquare(i, i, 1.0, list);
    list.AddLine(Layer::kOrbits, PolylineRecord{});
    AddSquare(i, i, 1.0, list);
    list.AddArea(Layer::kHaze, PolygonRecord{});
    for (int node = 0; node < 4; ++node) list.AddColour({1, 2, 3, 255});
    list.AddMesh(Layer::kBackground, {0.0f, 0.0f, 1.0f, 1.0f, 2, 0, 0, {}});
    list.AddText(Layer::kLabels, TextRecord{}, "a text that is too long for a short string");
  }
}

class DisplayListTest : public testing::Test {
 protected:
  DisplayListTest() { list.Begin(1600, 1000, 1.0); }
  DisplayList list;
};

}  // namespace

TEST_F(DisplayListTest, RunsFollowTheOrderOfAdding) {
  list.Add(Layer::kBackground, GradientRecord{});
  list.Add(Layer::kStars, PointRecord{});
  list.Add(Layer::kBodies, DiscRecord{});
  list.Add(Layer::kBodies, PointRecord{});
  list.Add(Layer::kBodies, DiscRecord{});
  EXPECT_EQ(GetRuns(list), (std::vector<RunFields>{{RecordType::kGradient, Layer::kBackground, 0, 1},
                                                   {RecordType::kPoint, Layer::kStars, 0, 1},
                                                   {RecordType::kDisc, Layer::kBodies, 0, 1},
                                                   {RecordType::kPoint, Layer::kBodies, 1, 1},
                                                   {RecordType::kDisc, Layer::kBodies, 1, 1}}));
}

TEST_F(DisplayListTest, NeighboursOfOneTypeAndLayerMakeOneRun) {
  for (int i = 0; i < 3; ++i) list.Add(Layer::kStars, PointRecord{});
  for (int i = 0; i < 2; ++i) list.Add(Layer::kBodies, PointRecord{});
  list.AddLine(Layer::kBodies, PolylineRecord{});
  list.Add(Layer::kBodies, PointRecord{});
  EXPECT_EQ(GetRuns(list), (std::vector<RunFields>{{RecordType::kPoint, Layer::kStars, 0, 3},
                                                   {RecordType::kPoint, Layer::kBodies, 3, 2},
                                                   {RecordType::kPolyline, Layer::kBodies, 0, 1},
                                                   {RecordType::kPoint, Layer::kBodies, 5, 1}}));
}

TEST_F(DisplayListTest, LinesTakeTheVerticesAddedSince) {
  list.AddVertex(1.0, 2.0);
  list.AddVertex(3.0, 4.0);
  list.AddLine(Layer::kOrbits, PolylineRecord{77, 88, 1.5f, 0.0f, {1, 2, 3, 4}, kRoundCaps, {5, 6}});
  list.AddVertex(5.0, 6.0);
  list.AddLine(Layer::kOrbits, PolylineRecord{});
  list.AddLine(Layer::kOrbits, PolylineRecord{});
  const auto& lines = list.GetPolylines();
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(std::tuple(lines[0].firstVertex, lines[0].vertexCount), std::tuple(0, 2));
  EXPECT_EQ(std::tuple(lines[1].firstVertex, lines[1].vertexCount), std::tuple(2, 1));
  EXPECT_EQ(std::tuple(lines[2].firstVertex, lines[2].vertexCount), std::tuple(3, 0));
  EXPECT_EQ(lines[0].width, 1.5f);
  EXPECT_EQ(lines[0].flags, unsigned{kRoundCaps});
  EXPECT_EQ(lines[0].object, (ObjectRef{5, 6}));
  EXPECT_EQ(list.GetVertices()[1].x, 3.0f);
  EXPECT_EQ(list.GetVertices()[1].y, 4.0f);
}

TEST_F(DisplayListTest, AreaTakesTheRingsAddedSince) {
  AddSquare(0.0, 0.0, 10.0, list);
  list.EndRing();
  AddSquare(2.0, 2.0, 5.0, list);
  list.EndRing();
  list.AddArea(Layer::kMilkyWay, PolygonRecord{});
  AddSquare(20.0, 20.0, 5.0, list);
  list.EndRing();
  list.AddArea(Layer::kMilkyWay, PolygonRecord{});
  const auto& areas = list.GetPolygons();
  ASSERT_EQ(areas.size(), 2u);
  EXPECT_EQ(std::tuple(areas[0].firstRing, areas[0].ringCount), std::tuple(0, 2));
  EXPECT_EQ(std::tuple(areas[1].firstRing, areas[1].ringCount), std::tuple(2, 1));
  ASSERT_EQ(list.GetRings().size(), 3u);
  for (int i = 0; i < 3; ++i) {
    const RingRecord& ring = list.GetRings()[static_cast<std::size_t>(i)];
    EXPECT_EQ(std::tuple(ring.firstVertex, ring.vertexCount), std::tuple(4 * i, 4));
  }
}

TEST_F(DisplayListTest, VerticesWithoutARingStandForOne) {
  AddSquare(0.0, 0.0, 10.0, list);
  list.EndRing();
  AddSquare(2.0, 2.0, 5.0, list);
  list.AddArea(Layer::kMilkyWay, PolygonRecord{});
  EXPECT_EQ(list.GetPolygons()[0].ringCount, 2);
  list.AddArea(Layer::kMilkyWay, PolygonRecord{});
  EXPECT_EQ(list.GetPolygons()[1].ringCount, 0) << "nothing was added since";
}

TEST_F(DisplayListTest, LinesAndAreasDoNotTakeEachOthersVertices) {
  AddSquare(0.0, 0.0, 10.0, list);
  list.AddArea(Layer::kGround, PolygonRecord{});
  list.AddVertex(1.0, 1.0);
  list.AddVertex(2.0, 2.0);
  list.AddLine(Layer::kGround, PolylineRecord{});
  AddSquare(5.0, 5.0, 1.0, list);
  list.AddArea(Layer::kGround, PolygonRecord{});
  EXPECT_EQ(list.GetPolylines()[0].firstVertex, 4);
  EXPECT_EQ(list.GetPolylines()[0].vertexCount, 2);
  ASSERT_EQ(list.GetRings().size(), 2u);
  EXPECT_EQ(list.GetRings()[1].firstVertex, 6);
  EXPECT_EQ(list.GetRings()[1].vertexCount, 4);
}

TEST_F(DisplayListTest, MeshTakesTheColoursAddedSince) {
  for (unsigned char i = 0; i < 6; ++i) list.AddColour({i, 0, 0, 255});
  list.AddMesh(Layer::kBackground, {0.0f, 0.0f, 1600.0f, 1000.0f, 3, 77, 88, {5, 6}});
  for (unsigned char i = 0; i < 8; ++i) list.AddColour({i, 0, 0, 255});
  list.AddMesh(Layer::kBackground, {0.0f, 0.0f, 10.0f, 10.0f, 2, 0, 0, {}});
  ASSERT_EQ(list.GetMeshes().size(), 2u);
  const MeshRecord &first = list.GetMeshes()[0], &second = list.GetMeshes()[1];
  EXPECT_EQ(std::tuple(first.columns, first.rows, first.firstColour), std::tuple(3, 2, 0));
  EXPECT_EQ(std::tuple(second.columns, second.rows, second.firstColour), std::tuple(2, 4, 6));
  EXPECT_EQ(first.object, (ObjectRef{5, 6}));
  EXPECT_EQ(list.GetColours()[13], (Rgba{7, 0, 0, 255}));
  EXPECT_EQ(GetRuns(list), (std::vector<RunFields>{{RecordType::kMesh, Layer::kBackground, 0, 2}}));
}

TEST_F(DisplayListTest, TextsStandBehindOneAnotherWithAZero) {
  list.AddText(Layer::kLabels, TextRecord{}, "Vega");
  list.AddText(Layer::kLabels, TextRecord{}, "");
  list.AddText(Layer::kLabels, TextRecord{}, "α Ori");
  const auto& texts = list.GetTexts();
  EXPECT_EQ(std::tuple(texts[0].first, texts[0].length), std::tuple(0, 4));
  EXPECT_EQ(std::tuple(texts[1].first, texts[1].length), std::tuple(5, 0));
  EXPECT_EQ(std::tuple(texts[2].first, texts[2].length), std::tuple(6, 6));
  EXPECT_EQ(list.GetTextBytes().size(), 13u);
  EXPECT_STREQ(list.GetText(texts[0]), "Vega");
  EXPECT_STREQ(list.GetText(texts[1]), "");
  EXPECT_STREQ(list.GetText(texts[2]), "α Ori");
}

TEST_F(DisplayListTest, BeginEmptiesTheList) {
  Fill(list);
  list.AddVertex(1.0, 1.0);
  list.EndRing();
  list.AddVertex(1.0, 1.0);
  list.AddColour({});
  list.Begin(640, 480, 0.4);
  EXPECT_EQ(list.GetWidth(), 640);
  EXPECT_EQ(list.GetHeight(), 480);
  EXPECT_EQ(list.GetUnit(), 0.4f);
  EXPECT_EQ(list.GetRuns().size() + list.GetPoints().size() + list.GetDiscs().size() +
                list.GetShadows().size() + list.GetPolylines().size() + list.GetEllipses().size() +
                list.GetPolygons().size() + list.GetGradients().size() + list.GetTexts().size() +
                list.GetRings().size() + list.GetVertices().size() + list.GetTextBytes().size() +
                list.GetMeshes().size() + list.GetColours().size(),
            0u);
  list.AddVertex(7.0, 8.0);
  list.AddArea(Layer::kHaze, PolygonRecord{});
  EXPECT_EQ(list.GetPolygons()[0].ringCount, 1) << "what was open before belongs to nothing";
  EXPECT_EQ(list.GetRings()[0].vertexCount, 1);
}

TEST_F(DisplayListTest, BeginKeepsTheMemory) {
  Fill(list);
  const Vertex* const vertices = list.GetVertices().data();
  const unsigned long long before = host_test::GetAllocationCount();
  for (int i = 0; i < 10; ++i) {
    list.Begin(1600, 1000, 1.0);
    Fill(list);
  }
  EXPECT_EQ(host_test::GetAllocationCount(), before);
  EXPECT_EQ(list.GetVertices().data(), vertices);
}

TEST_F(DisplayListTest, RoomThatWasReservedIsNotAllocatedAgain) {
  list.Reserve({.points = 20,
                .discs = 20,
                .shadows = 20,
                .polylines = 20,
                .ellipses = 20,
                .polygons = 20,
                .gradients = 20,
                .texts = 20,
                .meshes = 20,
                .rings = 20,
                .vertices = 160,
                .textBytes = 1000,
                .runs = 180,
                .colours = 80});
  const unsigned long long before = host_test::GetAllocationCount();
  Fill(list);
  EXPECT_EQ(host_test::GetAllocationCount(), before);
}

// What readers in other languages rely on: every member is a word of four bytes, one behind the other.
TEST(DisplayRecords, HaveTheirMembersWhereReadersExpectThem) {
  EXPECT_EQ(offsetof(Rgba, red), 0u);
  EXPECT_EQ(offsetof(Rgba, alpha), 3u);
  EXPECT_EQ(offsetof(ObjectRef, number), 4u);
  EXPECT_EQ(offsetof(Glow, middle), 8u);
  EXPECT_EQ(offsetof(Glow, colour), 12u);
  EXPECT_EQ(offsetof(Glow, middleColour), 16u);
  EXPECT_EQ(offsetof(PointRecord, radius), 8u);
  EXPECT_EQ(offsetof(PointRecord, colour), 12u);
  EXPECT_EQ(offsetof(PointRecord, glow), 16u);
  EXPECT_EQ(offsetof(PointRecord, object), 36u);
  EXPECT_EQ(offsetof(DiscRecord, sunX), 12u);
  EXPECT_EQ(offsetof(DiscRecord, cosPhase), 20u);
  EXPECT_EQ(offsetof(DiscRecord, lit), 24u);
  EXPECT_EQ(offsetof(DiscRecord, dark), 28u);
  EXPECT_EQ(offsetof(DiscRecord, glow), 32u);
  EXPECT_EQ(offsetof(DiscRecord, object), 52u);
  EXPECT_EQ(offsetof(GlobeRecord, toBody), 60u);
  EXPECT_EQ(offsetof(GlobeRecord, flattening), 96u);
  EXPECT_EQ(offsetof(GlobeRecord, limbDarkening), 100u);
  EXPECT_EQ(offsetof(GlobeRecord, ringInner), 104u);
  EXPECT_EQ(offsetof(GlobeRecord, firstRingColour), 112u);
  EXPECT_EQ(offsetof(GlobeRecord, map), 120u);
  EXPECT_EQ(offsetof(GlobeRecord, air), 124u);
  EXPECT_EQ(offsetof(ShadowRecord, innerRadius), 8u);
  EXPECT_EQ(offsetof(ShadowRecord, middle), 16u);
  EXPECT_EQ(offsetof(ShadowRecord, clipX), 20u);
  EXPECT_EQ(offsetof(ShadowRecord, inner), 32u);
  EXPECT_EQ(offsetof(ShadowRecord, object), 44u);
  EXPECT_EQ(offsetof(PolylineRecord, width), 8u);
  EXPECT_EQ(offsetof(PolylineRecord, dash), 12u);
  EXPECT_EQ(offsetof(PolylineRecord, colour), 16u);
  EXPECT_EQ(offsetof(PolylineRecord, flags), 20u);
  EXPECT_EQ(offsetof(PolylineRecord, object), 24u);
  EXPECT_EQ(offsetof(EllipseRecord, semiMajor), 8u);
  EXPECT_EQ(offsetof(EllipseRecord, angle), 16u);
  EXPECT_EQ(offsetof(EllipseRecord, width), 20u);
  EXPECT_EQ(offsetof(EllipseRecord, colour), 28u);
  EXPECT_EQ(offsetof(EllipseRecord, object), 32u);
  EXPECT_EQ(offsetof(PolygonRecord, colour), 8u);
  EXPECT_EQ(offsetof(PolygonRecord, edge), 12u);
  EXPECT_EQ(offsetof(PolygonRecord, softness), 16u);
  EXPECT_EQ(offsetof(PolygonRecord, object), 20u);
  EXPECT_EQ(offsetof(GradientRecord, cornerY), 16u);
  EXPECT_EQ(offsetof(GradientRecord, x0), 32u);
  EXPECT_EQ(offsetof(GradientRecord, middle), 48u);
  EXPECT_EQ(offsetof(GradientRecord, colour), 52u);
  EXPECT_EQ(offsetof(GradientRecord, object), 64u);
  EXPECT_EQ(offsetof(TextRecord, anchor), 8u);
  EXPECT_EQ(offsetof(TextRecord, first), 16u);
  EXPECT_EQ(offsetof(TextRecord, style), 24u);
  EXPECT_EQ(offsetof(TextRecord, colour), 28u);
  EXPECT_EQ(offsetof(TextRecord, object), 32u);
  EXPECT_EQ(offsetof(MeshRecord, bottom), 12u);
  EXPECT_EQ(offsetof(MeshRecord, columns), 16u);
  EXPECT_EQ(offsetof(MeshRecord, rows), 20u);
  EXPECT_EQ(offsetof(MeshRecord, firstColour), 24u);
  EXPECT_EQ(offsetof(MeshRecord, object), 28u);
  EXPECT_EQ(offsetof(scene::Run, layer), 4u);
  EXPECT_EQ(offsetof(scene::Run, first), 8u);
  EXPECT_EQ(offsetof(scene::Run, count), 12u);
}

TEST(DisplayRecords, AreWordsWithoutPadding) {
  EXPECT_EQ(sizeof(Rgba), 4u);
  EXPECT_EQ(sizeof(ObjectRef), 8u);
  EXPECT_EQ(sizeof(Glow), 3u * 4 + 2 * 4);
  EXPECT_EQ(sizeof(PointRecord), 3u * 4 + 4 + 20 + 8);
  EXPECT_EQ(sizeof(DiscRecord), 6u * 4 + 2 * 4 + 20 + 8);
  EXPECT_EQ(sizeof(GlobeRecord), 60u + 9 * 4 + 4 * 4 + 3 * 4 + 4);
  EXPECT_EQ(sizeof(ShadowRecord), 8u * 4 + 3 * 4 + 8);
  EXPECT_EQ(sizeof(PolylineRecord), 4u * 4 + 4 + 4 + 8);
  EXPECT_EQ(sizeof(EllipseRecord), 7u * 4 + 4 + 8);
  EXPECT_EQ(sizeof(PolygonRecord), 2u * 4 + 2 * 4 + 4 + 8);
  EXPECT_EQ(sizeof(RingRecord), 2u * 4);
  EXPECT_EQ(sizeof(GradientRecord), 13u * 4 + 3 * 4 + 8);
  EXPECT_EQ(sizeof(TextRecord), 7u * 4 + 4 + 8);
  EXPECT_EQ(sizeof(MeshRecord), 7u * 4 + 8);
  EXPECT_EQ(sizeof(Vertex), 2u * 4);
  EXPECT_EQ(sizeof(scene::Run), 4u * 4);
  EXPECT_TRUE(std::is_trivially_copyable_v<DiscRecord> && std::is_standard_layout_v<DiscRecord>);
}

TEST(DisplayGlobes, TakeTheColoursOfTheirRing) {
  DisplayList list;
  list.Begin(100, 100, 1.0);
  list.Add(Layer::kBodies, GlobeRecord{});
  list.AddColour({1, 2, 3, 4});
  list.AddColour({5, 6, 7, 8});
  list.Add(Layer::kBodies, GlobeRecord{});
  EXPECT_EQ(list.GetGlobes()[0].ringColourCount, 0);
  EXPECT_EQ(list.GetGlobes()[1].firstRingColour, 0);
  EXPECT_EQ(list.GetGlobes()[1].ringColourCount, 2);
  list.Begin(100, 100, 1.0);
  EXPECT_TRUE(list.GetGlobes().empty() && list.GetColours().empty());
}

TEST(DisplayColours, AreBytesOfTheFractions) {
  EXPECT_EQ(ToRgba({1.0, 0.5, 0.0, 0.2}), (Rgba{255, 128, 0, 51}));
  EXPECT_EQ(ToRgba({0.1, 0.2, 0.3, 0.8}, 0.5), (Rgba{26, 51, 77, 102}));  // 25.5, 51, 76.5, 255 * 0.4
  EXPECT_EQ(ToRgba({1.7, -0.3, 0.0, 1.0}, 2.0), (Rgba{255, 0, 0, 255})) << "nothing leaves the range";
}

TEST(DisplayColours, FaintOnesKeepTheirLight) {
  // 0.01 * 255 = 2.55 becomes 3, and the colour 0.85 of what it was: 0.8 * 0.85 * 255 = 173.4.
  EXPECT_EQ(ToFaintRgba({0.8, 0.4, 0.0, 0.01}), (Rgba{173, 87, 0, 3}));
  EXPECT_EQ(ToFaintRgba({0.8, 0.4, 0.0, 1.0}), (Rgba{204, 102, 0, 255}));
}
