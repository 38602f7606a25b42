// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The scene as a program sees it: exported headers and the shared library. Lists are those of
// docs/formats/display_list.md.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdio>
#include <string>
#include <vector>

#include "common_interfaces/common_interfaces.h"
#include "scene/scene.h"
#include "utils/utils.h"

namespace {

using namespace scene;

constexpr ObjectRef kVega = {static_cast<int>(FourCC("star")), 7001};

// A star, a line that leads to it, and its name.
DisplayList MakeExample() {
  DisplayList list;
  list.Begin(320, 200, 0.2);
  list.AddVertex(40.0, 160.0);
  list.AddVertex(160.0, 100.0);
  PolylineRecord line = {};
  line.width = 1.5f;
  line.colour = {90, 110, 170, 140};
  line.flags = kRoundCaps;
  list.AddLine(Layer::kFigures, line);
  PointRecord star = {};
  star.x = 160.0f;
  star.y = 100.0f;
  star.radius = 2.5f;
  star.colour = {202, 216, 255, 255};
  star.object = kVega;
  list.Add(Layer::kStars, star);
  TextRecord name = {};
  name.x = 166.0f;
  name.y = 104.0f;
  name.size = 13.0f;
  name.colour = {219, 227, 245, 235};
  name.object = kVega;
  list.AddText(Layer::kLabels, name, "Vega");
  return list;
}

template <class Record>
std::string Hex(const std::vector<Record>& records) {
  std::string text;
  const auto* bytes = reinterpret_cast<const unsigned char*>(records.data());
  for (std::size_t i = 0; i < records.size() * sizeof(Record); ++i) {
    char two[4];
    std::snprintf(two, sizeof two, i % 4 == 0 && i > 0 ? " %02X" : "%02X", static_cast<unsigned>(bytes[i]));
    text += two;
  }
  return text;
}

TEST(DisplayListBytes, AreThoseOfTheMesh) {
  DisplayList list;
  list.Begin(320, 200, 0.2);
  for (const Rgba& colour : {Rgba{4, 6, 14, 255}, {4, 6, 14, 255}, {8, 12, 25, 255}, {8, 12, 25, 255}}) {
    list.AddColour(colour);
  }
  list.AddMesh(Layer::kBackground, {0.0f, 0.0f, 320.0f, 200.0f, 2, 0, 0, {}});
  EXPECT_EQ(Hex(list.GetRuns()), "08000000 00000000 00000000 01000000");
  EXPECT_EQ(Hex(list.GetMeshes()),
            "00000000 00000000 0000A043 00004843 02000000 02000000 00000000 00000000 00000000");
  EXPECT_EQ(Hex(list.GetColours()), "04060EFF 04060EFF 080C19FF 080C19FF");
}

TEST(DisplayListBytes, AreThoseOfTheWorkedExample) {
  const DisplayList list = MakeExample();
  EXPECT_EQ(Hex(list.GetRuns()),
            "03000000 03000000 00000000 01000000 "
            "00000000 07000000 00000000 01000000 "
            "07000000 0F000000 00000000 01000000");
  EXPECT_EQ(Hex(list.GetPolylines()),
            "00000000 02000000 0000C03F 00000000 "
            "5A6EAA8C 02000000 00000000 00000000");
  EXPECT_EQ(Hex(list.GetVertices()), "00002042 00002043 00002043 0000C842");
  EXPECT_EQ(Hex(list.GetPoints()),
            "00002043 0000C842 00002040 CAD8FFFF "
            "00000000 00000000 00000000 00000000 00000000 "
            "72617473 591B0000");
  EXPECT_EQ(Hex(list.GetTexts()),
            "00002643 0000D042 00000000 00005041 "
            "00000000 04000000 00000000 DBE3F5EB "
            "72617473 591B0000");
  EXPECT_EQ(Hex(list.GetTextBytes()), "56656761 00");
}

TEST(PickExample, NameLiesOverTheStarAndBothAreOneObject) {
  const std::vector<Hit> hits = PickObjects(MakeExample(), 161.0, 100.0, 4.0);
  ASSERT_EQ(hits.size(), 1u);
  EXPECT_EQ(hits[0].object, kVega);
  EXPECT_EQ(hits[0].layer, Layer::kStars);  // the text is 5 pixels away, the star is under the pixel
  EXPECT_EQ(hits[0].distance, 0.0);
}

TEST(PickExample, NameAloneIsHitBesideTheStar) {
  const std::vector<Hit> hits = PickObjects(MakeExample(), 170.0, 100.0, 4.0);
  ASSERT_EQ(hits.size(), 1u);
  EXPECT_EQ(hits[0].object, kVega);
  EXPECT_EQ(hits[0].layer, Layer::kLabels);
}

TEST(PickExample, LineStandsForNoObject) {
  EXPECT_TRUE(PickObjects(MakeExample(), 100.0, 130.0, 4.0).empty());
}

// The whole road of a program, and back from a pixel to the object.
TEST(OpenRoot, FrameOfASavedViewIsPickedFrom) {
  SkyCatalogs catalogs;
  std::string error;
  ASSERT_TRUE(OpenDataRoot(CI_DATA_ROOT, "", kDefaultLanguage, catalogs, error)) << error;
  CommonInterfaces::Camera camera(1);
  camera.CreateDefault();
  ASSERT_TRUE(camera.ReadSelf("views:orion.data", 1));
  camera.SetWinRect({1600, 1000, 1600, 1000});
  const ShownKinds shown;
  const SkyMarkers markers;
  FrameMaker maker(camera, catalogs, shown, ObjectFilters::None(), markers);
  maker.Prepare();
  maker.Compute();
  const SkyFrame& frame = maker.GetFrame();
  ASSERT_FALSE(frame.GetStars().empty());

  const ObjectSearch search(catalogs);
  const auto rigel = search.FindOne("Rigel", error);
  ASSERT_TRUE(rigel) << error;
  const ObjectRef wanted = {GetKind(*rigel, catalogs), GetNumber(*rigel, catalogs)};
  int found = 0;
  for (const PointRecord& point : frame.GetDisplayList().GetPoints()) {
    if (!(point.object == wanted)) continue;
    ++found;
    const auto hits = PickObjects(frame.GetDisplayList(), point.x, point.y, 2.0);
    ASSERT_FALSE(hits.empty());
    EXPECT_EQ(hits[0].object, wanted);
  }
  EXPECT_EQ(found, 1);
}

TEST(Limits, OpacityFallsFromTheFullLimitToTheDrawLimit) {
  CommonInterfaces::Camera camera(1);
  camera.SetWinRect({800, 600, 800, 600});
  camera.SetZoom(1.0);
  const ClassLimits limits(camera, FourCC("star"));
  EXPECT_EQ(limits.Opacity(limits.full), 1.0f);
  if (limits.draw > limits.full) {
    EXPECT_NEAR(limits.Opacity(limits.draw), 0.3f, 1e-6);
  }
  EXPECT_DOUBLE_EQ(MagnitudeOfCode(100.0), 8.0);
}

TEST(Names, CodesAndFieldsAreWrittenOut) {
  EXPECT_EQ(GetCodeText(FourCC("star")), "star");
  EXPECT_EQ(GetFieldTitle(GetUniqueID("VisMagnitude")), "VisMagnitude");
  EXPECT_EQ(GetFieldTitle(GetUniqueID("NoSuchFieldAtAll"))[0], '@');
}

TEST(Planes, NearASurfaceTheEquatorBecomesTheHorizon) {
  CommonInterfaces::Camera camera(1);
  camera.CreateDefault();
  camera.SetBasePlane(kHorizonPlane);
  EXPECT_TRUE(CountsFromHorizon(camera));
  camera.SetBasePlane(kEquatorPlane);
  EXPECT_EQ(CountsFromHorizon(camera), IsNearSurface(camera));
  camera.SetBasePlane(kGalacticPlane);
  EXPECT_FALSE(CountsFromHorizon(camera));
}

TEST(StandingOf, AnAxisOfTheHorizonIsItsDirection) {
  ObserverFrame observer = {};
  observer.horizon = true;
  for (int i = 0; i < 3; ++i) observer.reduction[4 * i] = 1.0;  // x north, y west, z zenith
  const Standing west = FindStanding({{0.0, 1.0, 0.0}}, observer);
  EXPECT_NEAR(west.azimuth, 270.0, 1e-12);
  EXPECT_NEAR(west.altitude, 0.0, 1e-12);
  EXPECT_NEAR(FindStanding({{0.0, 0.0, 1.0}}, observer).altitude, 90.0, 1e-12);
}

}  // namespace
