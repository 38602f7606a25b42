// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What a frame puts into its display list.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <fstream>
#include <iterator>
#include <set>

#include "astro/coordinates.h"
#include "astro/vectors.h"
#include "scene/display_text.h"
#include "scene/frame_helpers.h"
#include "scene/perseids.h"
#include "scene/sky_images_files.h"
#include "support/allocation_counter.h"

using namespace scene;
using host_test::FrameFixture;

namespace {

constexpr int kRigel = 1713, kBetelgeuse = 2061;

template <class Record>
std::string Bytes(const std::vector<Record>& records) {
  return {reinterpret_cast<const char*>(records.data()), records.size() * sizeof(Record)};
}

std::string AllBytes(const DisplayList& l) {
  return Bytes(l.GetRuns()) + Bytes(l.GetPoints()) + Bytes(l.GetDiscs()) + Bytes(l.GetShadows()) +
         Bytes(l.GetGlobes()) + Bytes(l.GetMeshes()) + Bytes(l.GetColours()) + Bytes(l.GetPolylines()) +
         Bytes(l.GetEllipses()) + Bytes(l.GetPolygons()) + Bytes(l.GetGradients()) + Bytes(l.GetTexts()) +
         Bytes(l.GetRings()) + Bytes(l.GetVertices()) + Bytes(l.GetTextBytes());
}

// The records of one layer that a function sees.
template <class Record, class See>
int ForEach(const DisplayList& list, RecordType type, Layer layer, const std::vector<Record>& records,
            See see) {
  int seen = 0;
  for (const scene::Run& run : list.GetRuns()) {
    if (run.type != type || run.layer != layer) continue;
    for (int i = run.first; i < run.first + run.count; ++i, ++seen) see(records[static_cast<std::size_t>(i)]);
  }
  return seen;
}

const PointRecord* FindStar(const DisplayList& list, int number) {
  for (const PointRecord& point : list.GetPoints()) {
    if (point.object == ObjectRef{FourCC("star"), number}) return &point;
  }
  return nullptr;
}

class FrameDisplay : public testing::Test {
 protected:
  const DisplayList& GetList() const { return f.frame.GetDisplayList(); }
  // Everything that a frame can show.
  void ShowAll() {
    host_test::WriteSkyImages(f.sky.dir);
    ASSERT_FALSE(f.frame.SetImageFrames(kConstellationImages | kDeepskyImages | kMilkyWayImages));
    f.frame.SetCaption({"a line", "another"});
    f.frame.SetFavourites({SSO_ID(FourCC("star"), kRigel), SSO_ID(FourCC("nebu"), 42)});
    f.frame.SetShowers({host_test::MakePerseids()});
    for (int body = 1; body < static_cast<int>(f.catalogs.bodies.size()); ++body)
      f.frame.ShowOrbit(body, 0.0);
  }
  void LookAtMoon() {
    const auto& moon = f.frame.GetBodies().GetMoon().seen;
    double v[3], longitude = 0.0, latitude = 0.0;
    MV3prod(f.observer.reduction, moon.apparent, v);
    psf(v, 1.0, longitude, latitude);
    f.SetLook(360.0 - longitude / kRadiansPerDegree, latitude / kRadiansPerDegree);
  }

  FrameFixture f;
};

}  // namespace

TEST_F(FrameDisplay, HasTheSizeOfTheWindow) {
  f.SetWindow(800, 500);
  f.Compute();
  EXPECT_EQ(GetList().GetWidth(), 800);
  EXPECT_EQ(GetList().GetHeight(), 500);
  EXPECT_EQ(GetList().GetUnit(), 0.5f);
}

TEST_F(FrameDisplay, BeginsWithTheBackgroundOverTheWholePicture) {
  f.Compute();
  ASSERT_FALSE(GetList().GetRuns().empty());
  const scene::Run& mesh = GetList().GetRuns()[0];
  ASSERT_EQ(std::tuple(mesh.layer, mesh.type), std::tuple(Layer::kBackground, RecordType::kMesh));
  const MeshRecord& natural = GetList().GetMeshes()[0];
  EXPECT_EQ(std::tuple(natural.left, natural.top, natural.right, natural.bottom),
            std::tuple(0.0f, 0.0f, 1600.0f, 1000.0f));
  EXPECT_LE(static_cast<std::size_t>(natural.columns * natural.rows), GetList().GetColours().size());

  f.shown.naturalSky = false;
  f.Compute();
  const scene::Run& run = GetList().GetRuns()[0];
  EXPECT_EQ(run.layer, Layer::kBackground);
  ASSERT_EQ(run.type, RecordType::kGradient);
  const GradientRecord& sky = GetList().GetGradients()[0];
  EXPECT_EQ(std::set<float>(sky.cornerX, sky.cornerX + 4), (std::set<float>{0.0f, 1600.0f}));
  EXPECT_EQ(std::set<float>(sky.cornerY, sky.cornerY + 4), (std::set<float>{0.0f, 1000.0f}));
  EXPECT_EQ(sky.colour.alpha, 255);
}

TEST_F(FrameDisplay, LayersNeverDecrease) {
  ShowAll();
  f.shown.lines = {3, 3, 1, 1, 3, 1, 3, 31};
  // Grids came later and lie between the haze and the figures.
  const auto order = [](Layer layer) { return layer == Layer::kSkyLines ? 2.5 : static_cast<double>(layer); };
  std::set<Layer> seen;
  for (const double zoom : {0.25, 1.0, 8.0}) {
    f.camera.SetZoom(zoom);
    f.Compute();
    Layer last = Layer::kBackground;
    for (const scene::Run& run : GetList().GetRuns()) {
      EXPECT_GE(order(run.layer), order(last));
      last = run.layer;
      seen.insert(run.layer);
    }
  }
  EXPECT_GE(seen.size(), 13u);
}

TEST_F(FrameDisplay, RunsHoldEveryRecordOnce) {
  ShowAll();
  f.camera.SetZoom(0.4);
  f.Compute();
  const DisplayList& l = GetList();
  const std::vector<std::size_t> sizes = {
      l.GetPoints().size(),   l.GetDiscs().size(),    l.GetShadows().size(),   l.GetPolylines().size(),
      l.GetEllipses().size(), l.GetPolygons().size(), l.GetGradients().size(), l.GetTexts().size(),
      l.GetMeshes().size(),   l.GetGlobes().size()};
  std::vector<std::size_t> next(sizes.size());
  for (const scene::Run& run : l.GetRuns()) {
    std::size_t& from = next[static_cast<std::size_t>(run.type)];
    EXPECT_EQ(static_cast<std::size_t>(run.first), from);
    EXPECT_GT(run.count, 0);
    from += static_cast<std::size_t>(run.count);
  }
  EXPECT_EQ(next, sizes);
}

TEST_F(FrameDisplay, AreasHaveRings) {
  for (const bool horizon : {true, false}) {
    f.shown.horizon = horizon;
    f.Compute();
    for (const PolygonRecord& area : GetList().GetPolygons()) EXPECT_GT(area.ringCount, 0) << horizon;
  }
}

TEST_F(FrameDisplay, StarsAreNamedByTheirCatalogueNumber) {
  f.Compute();
  std::set<int> drawn, named;
  for (const DrawnStar& star : f.frame.GetStars()) drawn.insert(f.catalogs.stars.GetNumber(star.star));
  ForEach(GetList(), RecordType::kPoint, Layer::kStars, GetList().GetPoints(),
          [&named](const PointRecord& point) {
            EXPECT_EQ(point.object.kind, FourCC("star"));
            named.insert(point.object.number);
          });
  EXPECT_EQ(named, drawn);
  EXPECT_TRUE(named.count(2491)) << "Sirius";
}

TEST_F(FrameDisplay, DeepskyObjectsAreNamedByKindAndNumber) {
  f.camera.SetZoom(0.3);
  f.SetLook(220.0, 50.0);
  f.Compute();
  ASSERT_EQ(f.frame.GetDeepsky().size(), 3u);
  std::set<std::pair<int, int>> named;
  const auto take = [&named](const auto& record) { named.emplace(record.object.kind, record.object.number); };
  const int ellipses =
      ForEach(GetList(), RecordType::kEllipse, Layer::kDeepsky, GetList().GetEllipses(), take);
  const int boxes =
      ForEach(GetList(), RecordType::kPolyline, Layer::kDeepsky, GetList().GetPolylines(), take);
  EXPECT_EQ(ellipses, 2);
  EXPECT_EQ(boxes, 1);
  EXPECT_EQ(named, (std::set<std::pair<int, int>>{
                       {FourCC("nebu"), 42}, {FourCC("gala"), 31}, {FourCC("clst"), 45}}));
}

// M 31 lies at position angle 35 degrees, from north by east. Where a point a little way along its axis is
// drawn, says the angle of its ellipse, however the view is rolled.
TEST_F(FrameDisplay, SymbolsLieAtTheirPositionAngle) {
  f.sky.dir.Write("data/catalogs/ngc_ic.txt",
                  "Type:text\tNumber:i32\tRA:f64\tDec:f64\tPositionAngle:f32\tMessierNumber:i32\n"
                  "gala\t31\t0.18643\t0.72030\t0.6108652\t31\n");
  std::string error;
  ASSERT_TRUE(LoadSkyCatalogs(f.catalogs, error)) << error;
  SkyFrame frame(f.catalogs);
  f.camera.SetZoom(0.3);
  for (const double azimuth : {200.0, 240.0, 280.0}) {
    f.SetLook(azimuth, 50.0);
    const ObserverFrame observer = PrepareObserver(f.camera);
    frame.Compute(f.camera, observer, f.shown);
    const auto& ellipses = frame.GetDisplayList().GetEllipses();
    const auto galaxy = std::find_if(ellipses.begin(), ellipses.end(), [](const EllipseRecord& ellipse) {
      return ellipse.object == ObjectRef{FourCC("gala"), 31};
    });
    ASSERT_NE(galaxy, ellipses.end());
    constexpr double kStep = 1e-5, kAngle = 35.0 * kRadiansPerDegree;
    const Direction along = MakeDirection(0.18643 + kStep * std::sin(kAngle) / std::cos(0.72030),
                                          0.72030 + kStep * std::cos(kAngle));
    const auto from = ViewGeometry(f.camera).Project(
        ApparentDirection(MakeDirection(0.18643, 0.72030), observer), SkyFrameOf::kJ2000);
    const auto to = ViewGeometry(f.camera).Project(ApparentDirection(along, observer), SkyFrameOf::kJ2000);
    // Pixels of the geometry count upwards; an axis has no direction.
    const double expected = std::atan2(from.y - to.y, to.x - from.x);
    EXPECT_NEAR(std::remainder(static_cast<double>(galaxy->angle) - expected, kPi), 0.0, 1e-3) << azimuth;
  }
}

TEST_F(FrameDisplay, FiguresAndNamesStandForTheirConstellation) {
  f.Compute();
  const ObjectRef orion = {FourCC("cnst"), GetTraits(f.catalogs.constellations[0]).number};
  const int lines = ForEach(GetList(), RecordType::kPolyline, Layer::kFigures, GetList().GetPolylines(),
                            [&](const PolylineRecord& line) { EXPECT_EQ(line.object, orion); });
  EXPECT_GE(lines, 2);
  int names = 0;
  for (const TextRecord& text : GetList().GetTexts()) {
    if (std::string(GetList().GetText(text)) != "Orion") continue;
    EXPECT_EQ(text.object, orion);
    ++names;
  }
  EXPECT_EQ(names, 1);
}

TEST_F(FrameDisplay, BodiesAndTheirNamesStandForThem) {
  f.shown.horizon = false;
  f.camera.SetZoom(0.25);
  std::set<int> named;
  for (const double azimuth : {0.0, 90.0, 180.0, 270.0}) {
    f.SetLook(azimuth, 10.0);
    f.Compute();
    std::set<std::pair<int, int>> drawn, painted;
    for (std::size_t i = 0; i < f.catalogs.bodies.size(); ++i) {
      const SSO_ID& id = f.catalogs.bodies[i].id;
      if (f.frame.IsBodyDrawn(static_cast<int>(i))) drawn.emplace(id.kind, id.number);
    }
    const auto take = [&painted](const auto& record) {
      painted.emplace(record.object.kind, record.object.number);
    };
    ForEach(GetList(), RecordType::kPoint, Layer::kBodies, GetList().GetPoints(), take);
    ForEach(GetList(), RecordType::kDisc, Layer::kBodies, GetList().GetDiscs(), take);
    ForEach(GetList(), RecordType::kGlobe, Layer::kBodies, GetList().GetGlobes(),
            [&take](const GlobeRecord& globe) { take(globe.disc); });
    EXPECT_EQ(painted, drawn) << azimuth;
    for (const TextRecord& text : GetList().GetTexts()) {
      if (std::string(GetList().GetText(text)) == "Jupiter") named.insert(text.object.number);
    }
  }
  EXPECT_EQ(named, (std::set<int>{5}));
}

TEST_F(FrameDisplay, OrbitsAndFavouritesStandForTheirObjects) {
  ShowAll();
  f.camera.SetZoom(0.5);
  f.Compute();
  const int orbits =
      ForEach(GetList(), RecordType::kPolyline, Layer::kOrbits, GetList().GetPolylines(),
              [this](const PolylineRecord& line) {
                EXPECT_GE(FindBody(f.catalogs.bodies, SSO_ID(line.object.kind, line.object.number)), 1);
              });
  EXPECT_GT(orbits, 0);
  std::set<int> marked;
  ForEach(GetList(), RecordType::kPolygon, Layer::kFavourites, GetList().GetPolygons(),
          [&marked](const PolygonRecord& area) { marked.insert(area.object.number); });
  EXPECT_EQ(marked, (std::set<int>{42, kRigel}));
}

TEST_F(FrameDisplay, YCountsDownwards) {
  f.Compute();
  const PointRecord* betelgeuse = FindStar(GetList(), kBetelgeuse);
  const PointRecord* rigel = FindStar(GetList(), kRigel);
  ASSERT_TRUE(betelgeuse && rigel);
  EXPECT_LT(betelgeuse->y, rigel->y) << "it stands higher";
  for (const DrawnStar& drawn : f.frame.GetStars()) {
    const PointRecord* point = FindStar(GetList(), f.catalogs.stars.GetNumber(drawn.star));
    ASSERT_NE(point, nullptr);
    EXPECT_FLOAT_EQ(point->x, drawn.output->m_Place.x);
    EXPECT_FLOAT_EQ(point->y, 1000.0f - drawn.output->m_Place.y);
  }
}

// Half an hour into the umbra of the eclipse of 2025 March 14 its shadow is painted after the disc.
TEST_F(FrameDisplay, ShadowOnTheMoonFollowsItsDisc) {
  f.SetPlace(40.0, -100.0);
  f.SetTime(2025, 3, 14, 5, 40);
  f.camera.SetZoom(60.0);
  f.Compute();
  LookAtMoon();
  f.Compute();
  ASSERT_EQ(GetList().GetShadows().size(), 2u) << "penumbra and umbra";
  ASSERT_EQ(GetList().GetGlobes().size(), 1u);
  const DiscRecord& disc = GetList().GetGlobes()[0].disc;
  for (const ShadowRecord& shadow : GetList().GetShadows()) {
    EXPECT_EQ(shadow.object, (ObjectRef{FourCC("moon"), 301}));
    EXPECT_EQ(shadow.clipX, disc.x);
    EXPECT_EQ(shadow.clipY, disc.y);
    EXPECT_EQ(shadow.clipRadius, disc.radius);
  }
}

TEST_F(FrameDisplay, SameFrameHasTheSameBytes) {
  ShowAll();
  f.Compute();
  const std::string first = AllBytes(GetList());
  f.Compute();
  EXPECT_EQ(AllBytes(GetList()), first);
  f.camera.SetZoom(3.0);
  f.Compute();
  EXPECT_NE(AllBytes(GetList()), first);
  f.camera.SetZoom(1.0);
  f.Compute();
  EXPECT_EQ(AllBytes(GetList()), first) << "after another one";
  SkyFrame fresh(f.catalogs);
  SkyFrame plain(f.catalogs);
  fresh.Compute(f.camera, f.observer, f.shown);
  plain.Compute(f.camera, f.observer, f.shown);
  EXPECT_EQ(AllBytes(fresh.GetDisplayList()), AllBytes(plain.GetDisplayList())) << "of another frame";
}

TEST_F(FrameDisplay, NothingIsAllocatedOverZoomDirectionAndTime) {
  f.Compute();
  const unsigned long long before = host_test::GetAllocationCount();
  std::size_t records = 0;
  for (int i = 0; i < 80; ++i) {
    f.camera.SetZoom(0.25 + 0.1 * i);
    f.SetLook(4.5 * i, 40.0 - i);
    f.SetTime(2026, 1 + i % 12, 15, i % 24, i % 60);
    f.shown.horizon = i % 3 != 0;
    f.Compute();
    records +=
        GetList().GetPoints().size() + GetList().GetPolylines().size() + GetList().GetPolygons().size();
  }
  EXPECT_EQ(host_test::GetAllocationCount(), before);
  EXPECT_GT(records, 80u);
}

// Shadow, discs and the tail of a comet come when the time has gone on.
TEST_F(FrameDisplay, NothingIsAllocatedWhenAnEclipseBegins) {
  f.SetPlace(40.0, -100.0);
  f.SetTime(2025, 3, 14, 3, 0);
  f.camera.SetZoom(60.0);
  f.Compute();
  LookAtMoon();
  f.Compute();
  ASSERT_TRUE(GetList().GetShadows().empty());
  const unsigned long long before = host_test::GetAllocationCount();
  std::size_t shadows = 0;
  for (int i = 0; i < 24; ++i) {
    f.SetTime(2025, 3, 14, 3 + i / 6, 10 * (i % 6));
    f.Compute();
    LookAtMoon();
    f.Compute();
    shadows += GetList().GetShadows().size();
  }
  EXPECT_EQ(host_test::GetAllocationCount(), before);
  EXPECT_GT(shadows, 0u);
}

// Halley's comet in March 1986, south of the ecliptic.
TEST_F(FrameDisplay, NothingIsAllocatedWhenACometComes) {
  f.SetPlace(-30.0, 20.0);
  f.shown.horizon = false;
  f.camera.SetZoom(0.3);
  f.Compute();
  const unsigned long long before = host_test::GetAllocationCount();
  std::size_t tails = 0;
  f.SetTime(1986, 3, 20, 3, 0);
  for (int i = 0; i < 12; ++i) {
    f.SetLook(30.0 * i, 0.0);
    f.Compute();
    tails += GetList().GetGradients().size() - 1;
  }
  EXPECT_EQ(host_test::GetAllocationCount(), before);
  EXPECT_GT(tails, 0u);
}

// The whole list of a picture of Orion, as text. Who changes the drawing compares, then copies what the test
// tells into the file.
TEST_F(FrameDisplay, SmallSkyIsTheOneOfTheFile) {
  f.SetWindow(400, 300);
  f.SetLook(190.0, 35.0);
  f.camera.SetZoom(0.8);
  f.shown.horizon = f.shown.compass = f.shown.naturalSky = false;
  f.Compute();
  std::ifstream in(CI_SMALL_FRAME, std::ios::binary);
  const std::string expected{std::istreambuf_iterator<char>(in), {}};
  EXPECT_EQ(host_test::DisplayText(GetList()).Get(), expected);
}
