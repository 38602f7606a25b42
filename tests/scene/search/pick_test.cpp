// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/search/pick.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numbers>

#include "scene/frame_helpers.h"

using namespace scene;

namespace {

constexpr ObjectRef kFirst = {1, 10}, kSecond = {1, 11}, kThird = {2, 10};

class Pick : public testing::Test {
 protected:
  Pick() { list.Begin(400, 300, 1.0); }

  void AddPoint(float x, float y, float radius, ObjectRef object, Layer layer = Layer::kStars) {
    list.Add(layer, PointRecord{x, y, radius, {}, {}, object});
  }
  void AddVertices(std::initializer_list<Vertex> vertices) {
    for (const Vertex& vertex : vertices) list.AddVertex(vertex.x, vertex.y);
  }
  void AddText(float x, float y, float anchor, ObjectRef object) {
    TextRecord text = {};
    text.x = x;
    text.y = y;
    text.anchor = anchor;
    text.size = 10.0f;
    text.object = object;
    list.AddText(Layer::kLabels, text, "abcd");  // 24.8 pixels wide, from 7.6 above the baseline to 2.2 below
  }
  std::vector<ObjectRef> Find(double x, double y, double tolerance = 0.0) const {
    std::vector<ObjectRef> objects;
    for (const Hit& hit : PickObjects(list, x, y, tolerance)) objects.push_back(hit.object);
    return objects;
  }
  bool IsHit(double x, double y) const { return !Find(x, y).empty(); }
  // How far the only object is from the pixel.
  double DistanceAt(double x, double y) const {
    const auto hits = PickObjects(list, x, y, 1000.0);
    EXPECT_EQ(hits.size(), 1u);
    return hits.empty() ? -1.0 : hits[0].distance;
  }

  DisplayList list;
};

using Objects = std::vector<ObjectRef>;

}  // namespace

TEST_F(Pick, StarIsHitInsideItsCircle) {
  AddPoint(100.0f, 50.0f, 3.0f, kFirst);
  const auto hits = PickObjects(list, 102.0, 51.0, 0.0);
  ASSERT_EQ(hits.size(), 1u);
  EXPECT_EQ(hits[0].object, kFirst);
  EXPECT_EQ(hits[0].layer, Layer::kStars);
  EXPECT_EQ(hits[0].distance, 0.0);
}

TEST_F(Pick, ToleranceReachesFromTheEdge) {
  AddPoint(100.0f, 50.0f, 2.0f, kFirst);
  EXPECT_TRUE(Find(103.0, 54.0, 2.9).empty());  // 5 from the middle, 3 from the edge
  EXPECT_EQ(Find(103.0, 54.0, 3.0), Objects{kFirst});
  EXPECT_DOUBLE_EQ(DistanceAt(103.0, 54.0), 3.0);
}

TEST_F(Pick, LastPaintedComesFirst) {
  AddPoint(100.0f, 50.0f, 5.0f, kFirst);
  AddPoint(101.0f, 50.0f, 5.0f, kSecond);
  AddPoint(100.0f, 50.0f, 5.0f, kThird, Layer::kBodies);
  EXPECT_EQ(Find(100.0, 50.0), (Objects{kThird, kSecond, kFirst}));
}

TEST_F(Pick, ObjectOfSeveralRecordsIsToldOnceWithTheNearest) {
  AddPoint(100.0f, 50.0f, 2.0f, kFirst);
  AddPoint(100.0f, 50.0f, 2.0f, kSecond);
  AddText(104.0f, 50.0f, 0.0f, kFirst);
  const auto hits = PickObjects(list, 101.0, 50.0, 5.0);
  ASSERT_EQ(hits.size(), 2u);
  EXPECT_EQ(hits[0].object, kFirst) << "its name was painted last";
  EXPECT_EQ(hits[0].layer, Layer::kStars) << "but its star is nearer";
  EXPECT_EQ(hits[0].distance, 0.0);
  EXPECT_EQ(hits[1].object, kSecond);
}

TEST_F(Pick, NumberAloneDoesNotMakeTheSameObject) {
  AddPoint(100.0f, 50.0f, 2.0f, kFirst);
  AddPoint(100.0f, 50.0f, 2.0f, kThird);
  EXPECT_EQ(Find(100.0, 50.0).size(), 2u);
}

TEST_F(Pick, RecordsOfNoObjectArePassedOver) {
  AddPoint(100.0f, 50.0f, 5.0f, {});
  list.Add(Layer::kBackground,
           GradientRecord{{0, 400, 400, 0}, {0, 0, 300, 300}, 0, 0, 0, 300, 0.5f, {}, {}, {}, {}});
  AddText(100.0f, 50.0f, 0.5f, {});
  EXPECT_TRUE(Find(100.0, 50.0, 100.0).empty());
}

TEST_F(Pick, DiscIsHitOnItsDarkSideToo) {
  DiscRecord disc = {};
  disc.x = 100.0f;
  disc.y = 50.0f;
  disc.radius = 20.0f;
  disc.sunX = 1.0f;
  disc.cosPhase = -1.0f;
  disc.object = kFirst;
  list.Add(Layer::kBodies, disc);
  EXPECT_TRUE(IsHit(81.0, 50.0));
  EXPECT_DOUBLE_EQ(DistanceAt(100.0, 80.0), 10.0);
}

TEST_F(Pick, ShadowIsHitOnTheDiscItFallsOn) {
  ShadowRecord shadow = {};
  shadow.x = 130.0f;
  shadow.y = 50.0f;
  shadow.outerRadius = 60.0f;
  shadow.clipX = 100.0f;
  shadow.clipY = 50.0f;
  shadow.clipRadius = 20.0f;
  shadow.object = kFirst;
  list.Add(Layer::kBodies, shadow);
  EXPECT_TRUE(IsHit(110.0, 50.0));
  EXPECT_FALSE(IsHit(140.0, 50.0)) << "in the shadow, beside the disc";
}

TEST_F(Pick, LineIsHitOnItsWidth) {
  AddVertices({{100, 50}, {200, 50}, {200, 150}});
  list.AddLine(Layer::kFigures, PolylineRecord{0, 0, 4.0f, 0.0f, {}, 0, kFirst});
  EXPECT_TRUE(IsHit(150.0, 51.9));
  EXPECT_FALSE(IsHit(150.0, 52.1));
  EXPECT_TRUE(IsHit(198.1, 120.0));
  EXPECT_DOUBLE_EQ(DistanceAt(150.0, 57.0), 5.0);
  EXPECT_DOUBLE_EQ(DistanceAt(97.0, 46.0), 3.0);  // 5 from the end
}

TEST_F(Pick, ClosedLineIsHitBetweenItsEnds) {
  AddVertices({{100, 50}, {200, 50}, {200, 150}, {100, 150}});
  list.AddLine(Layer::kDeepsky, PolylineRecord{0, 0, 2.0f, 0.0f, {}, kClosedLine, kFirst});
  EXPECT_TRUE(IsHit(100.0, 100.0));
  EXPECT_DOUBLE_EQ(DistanceAt(150.0, 100.0), 49.0) << "the inside of an outline is not the line";
}

TEST_F(Pick, LineOfOneVertexOrNoneIsNothing) {
  list.AddLine(Layer::kFigures, PolylineRecord{0, 0, 4.0f, 0.0f, {}, kClosedLine, kFirst});
  EXPECT_TRUE(Find(0.0, 0.0, 1000.0).empty());
  AddVertices({{100, 50}});
  list.AddLine(Layer::kFigures, PolylineRecord{0, 0, 4.0f, 0.0f, {}, 0, kSecond});
  EXPECT_TRUE(Find(100.0, 50.0).empty());
}

TEST_F(Pick, EllipseIsHitInside) {
  const float turn =
      static_cast<float>(std::numbers::pi / 6.0);  // the major axis leads 30 degrees down to the right
  list.Add(Layer::kDeepsky, EllipseRecord{100.0f, 50.0f, 20.0f, 10.0f, turn, 1.0f, 0.0f, {}, kFirst});
  EXPECT_TRUE(IsHit(100.0, 50.0));
  EXPECT_TRUE(IsHit(100.0 + 0.866 * 19.0, 50.0 + 0.5 * 19.0));
  EXPECT_FALSE(IsHit(100.0 + 0.866 * 19.0, 50.0 - 0.5 * 19.0));
  EXPECT_NEAR(DistanceAt(100.0 - 0.8660254 * 25.0, 50.0 - 0.5 * 25.0), 5.0, 1e-4);   // along the major axis
  EXPECT_NEAR(DistanceAt(100.0 - 0.5 * 25.0, 50.0 + 0.8660254 * 25.0), 15.0, 1e-4);  // along the minor axis
}

TEST_F(Pick, AreaIsHitInsideAndNotInItsHole) {
  AddVertices({{100, 50}, {200, 50}, {200, 150}, {100, 150}});
  list.EndRing();
  AddVertices({{140, 90}, {160, 90}, {160, 110}, {140, 110}});
  list.AddArea(Layer::kMilkyWay, PolygonRecord{0, 0, {}, {}, 0.0f, kFirst});
  EXPECT_TRUE(IsHit(120.0, 100.0));
  EXPECT_FALSE(IsHit(150.0, 100.0));
  EXPECT_DOUBLE_EQ(DistanceAt(152.0, 100.0), 8.0);
  EXPECT_FALSE(IsHit(99.0, 100.0));
  EXPECT_DOUBLE_EQ(DistanceAt(97.0, 46.0), 5.0);
}

TEST_F(Pick, GradientIsHitInItsCorners) {
  list.Add(Layer::kBodies,
           GradientRecord{{100, 200, 200, 100}, {90, 50, 150, 110}, 0, 0, 1, 1, 0.5f, {}, {}, {}, kFirst});
  EXPECT_TRUE(IsHit(195.0, 60.0));
  EXPECT_FALSE(IsHit(105.0, 60.0));
  EXPECT_DOUBLE_EQ(DistanceAt(203.0, 100.0), 3.0);
}

TEST_F(Pick, TextIsHitInItsBoxWhereItsAnchorPutsIt) {
  const struct {
    float anchor;
    double left, right;
  } cases[] = {{0.0f, 100.0, 124.8}, {0.5f, 87.6, 112.4}, {1.0f, 75.2, 100.0}};
  for (const auto& c : cases) {
    list.Begin(400, 300, 1.0);
    AddText(100.0f, 50.0f, c.anchor, kFirst);
    EXPECT_TRUE(IsHit(c.left + 0.1, 47.0));
    EXPECT_TRUE(IsHit(c.right - 0.1, 47.0));
    EXPECT_FALSE(IsHit(c.left - 0.1, 47.0));
    EXPECT_FALSE(IsHit(c.right + 0.1, 47.0));
    EXPECT_TRUE(IsHit(c.left + 5.0, 42.5));
    EXPECT_FALSE(IsHit(c.left + 5.0, 42.3));
    EXPECT_TRUE(IsHit(c.left + 5.0, 52.1));
    EXPECT_FALSE(IsHit(c.left + 5.0, 52.3));
    EXPECT_NEAR(DistanceAt(c.right + 3.0, 56.2), 5.0, 1e-5);  // 3 to the right and 4 below
  }
}

TEST_F(Pick, EmptyListHasNothing) { EXPECT_TRUE(Find(0.0, 0.0, 1e9).empty()); }

TEST(PickInFrame, EveryStarIsFoundAtItsPixel) {
  host_test::FrameFixture f;
  f.camera.SetZoom(0.4);
  f.Compute();
  ASSERT_GE(f.frame.GetStars().size(), 5u);
  for (const DrawnStar& drawn : f.frame.GetStars()) {
    const auto& place = drawn.output->m_Place;
    const auto hits =
        PickObjects(f.frame.GetDisplayList(), place.x, 1000.0 - static_cast<double>(place.y), 1.0);
    const int number = f.catalogs.stars.GetNumber(drawn.star);
    EXPECT_TRUE(std::any_of(hits.begin(), hits.end(), [number](const Hit& hit) {
      return hit.object == ObjectRef{FourCC("star"), number};
    })) << number;
  }
}

TEST(PickInFrame, NameOfAStarIsTheStar) {
  host_test::FrameFixture f;
  f.Compute();
  const DisplayList& list = f.frame.GetDisplayList();
  for (const TextRecord& text : list.GetTexts()) {
    if (std::string(list.GetText(text)) != "Sirius") continue;
    const auto hits = PickObjects(list, text.x + (0.5f - text.anchor), text.y - 2.0f, 0.0);
    ASSERT_FALSE(hits.empty());
    EXPECT_EQ(hits[0].object, (ObjectRef{FourCC("star"), 2491}));
    EXPECT_EQ(hits[0].layer, Layer::kLabels);
    return;
  }
  FAIL() << "Sirius has no name";
}

TEST(PickInFrame, EmptySkyIsNothing) {
  host_test::FrameFixture f;
  f.shown = {};
  f.shown.stars = false;
  f.SetLook(0.0, 60.0);
  f.Compute();
  EXPECT_TRUE(PickObjects(f.frame.GetDisplayList(), 800.0, 500.0, 3.0).empty());
}
