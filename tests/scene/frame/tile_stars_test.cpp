// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/tile_stars.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <memory>
#include <random>

#include "astro/coordinates.h"
#include "astro/healpix.h"
#include "astro/vectors.h"
#include "scene/bodies/solar_system_part.h"
#include "scene/display/star_tint.h"
#include "scene/frame_helpers.h"
#include "scene/tile_files.h"
#include "scene/visibility/zoom_range.h"
#include "support/allocation_counter.h"

using namespace scene;

namespace {

const Landscape kNoLand;

struct Seen {
  std::size_t drawn = 0, empty = 0, most = 0;
};

class TileStarsTest : public testing::Test {
 protected:
  TileStarsTest() { f.shown.naturalSky = false; }  // by day too
  void UseStars(const std::vector<TileStar>& stars) {
    ASSERT_TRUE(host_test::WriteTiles(f.sky.dir.Path("data/catalogs/stars.tiles"), stars));
    Load();
  }
  void Load() {
    std::string error;
    ASSERT_TRUE(LoadSkyCatalogs(catalogs, error)) << error;
    frame = std::make_unique<SkyFrame>(catalogs);
  }
  void Compute() {
    f.observer = PrepareObserver(f.camera);
    frame->Compute(f.camera, f.observer, f.shown);
  }
  // A moment up to so many years from J2000, a direction anywhere, the poles and a window of any shape too.
  void TakeAnyView(double years) {
    f.camera.SetBasePlane(Any(0.0, 1.0) < 0.5 ? 1 : 2);
    CommonInterfaces::_Date time;
    time.day = static_cast<int>(2451545.0 + 365.25 * years * Any(-1.0, 1.0));
    time.fraction = Any(0.0, 1.0);
    f.camera.SetUniversalTime(time);
    f.SetWindow(static_cast<int>(Any(50.0, 2000.0)), static_cast<int>(Any(50.0, 1500.0)));
    f.camera.SetZoom(std::exp(Any(std::log(kMinZoom), std::log(200.0))));
    SphViewCoor angles;
    angles.lon = Any(0.0, 2.0 * kPi);
    angles.lat = std::asin(Any(-1.0, 1.0));
    if (Any(0.0, 1.0) < 0.1) angles.lat = angles.lat < 0.0 ? -0.5 * kPi : 0.5 * kPi;
    angles.slope = Any(-kPi, kPi);
    f.camera.SetRA_Dec(angles);
    f.shown.horizon = Any(0.0, 1.0) < 0.5;
  }
  double Any(double from, double to) { return std::uniform_real_distribution<double>(from, to)(random); }

  template <class Visit>
  void VisitAll(Visit&& visit) const {
    for (const StarTiles& tiles : catalogs.starTiles) {
      for (int band = 0; band < tiles.GetBandCount(); ++band) {
        const std::uint32_t cells = astro::GetHealpixCellCount(tiles.GetBand(band).order);
        for (std::uint32_t cell = 0; cell < cells; ++cell) {
          const StarTileRecords stars = tiles.GetStars(band, cell);
          for (std::uint32_t i = 0; i < stars.GetCount(); ++i) visit(stars[i]);
        }
      }
    }
  }
  // What a walk over all records lets through, by number.
  std::map<int, tPoint<double>> FindAll() const {
    std::map<int, tPoint<double>> found;
    const ViewGeometry geometry(f.camera);
    const ObjectTests tests(catalogs, geometry, f.observer, f.shown, ObjectFilters::None(), light, kNoLand);
    VisitAll([&](const StarTileRecord& star) {
      ObjectPlace place;
      if (tests.FindStarObstacles(star, place) == 0) found[star.GetNumber()] = place.pixel;
    });
    return found;
  }
  // Whether the frame of this view draws the stars of the walk.
  void CompareWithWalk(int view, Seen& all) {
    Compute();
    const auto expected = FindAll();
    std::map<int, tPoint<double>> seen;
    for (const DrawnStar& star : frame->GetStars()) {
      if (star.star < 0) seen[star.number] = {star.output->m_Place.x, star.output->m_Place.y};
    }
    ASSERT_EQ(seen.size(), CountDrawnTileStars()) << "one is drawn twice, view " << view;
    ASSERT_EQ(seen.size(), expected.size()) << view;
    for (const auto& [number, place] : expected) {
      const auto found = seen.find(number);
      ASSERT_NE(found, seen.end()) << view << ", star " << number;
      ASSERT_EQ(static_cast<float>(place.x), found->second.x) << view;
      ASSERT_EQ(static_cast<float>(place.y), found->second.y) << view;
    }
    all.drawn += seen.size();
    all.empty += seen.empty();
    all.most = std::max(all.most, seen.size());
  }
  std::size_t CountDrawnTileStars() const {
    std::size_t count = 0;
    for (const DrawnStar& drawn : frame->GetStars()) count += drawn.star < 0;
    return count;
  }

  host_test::FrameFixture f;
  SkyCatalogs catalogs;
  std::unique_ptr<SkyFrame> frame;
  SkyLight light;  // of the walk
  std::mt19937_64 random{7};
};

constexpr int kFirst = kHipparcosNumbers + 1;

}  // namespace

TEST_F(TileStarsTest, FrameDrawsExactlyTheStarsThatAWalkOverAllFinds) {
  UseStars(host_test::MakeTileStars(12000, kFirst, 0.0, 14.0, 1.1));
  Seen seen;
  for (int i = 0; i < 1500; ++i) {
    TakeAnyView(i % 3 == 0 ? 20000.0 : 100.0);
    ASSERT_NO_FATAL_FAILURE(CompareWithWalk(i, seen));
  }
  EXPECT_GT(seen.drawn, 20000u);
  EXPECT_GT(seen.most, 200u);
  EXPECT_LT(seen.empty, 1000u);
}

// Day, twilight and night, and low air: the walk stops where the sky hides everything fainter.
TEST_F(TileStarsTest, FrameUnderANaturalSkyDrawsExactlyTheStarsThatItDoesNotHide) {
  UseStars(host_test::MakeTileStars(12000, kFirst, 0.0, 14.0, 1.1));
  f.shown.naturalSky = true;
  SolarSystemPart bodies(catalogs.bodies, catalogs.gazetteers);
  Seen seen;
  int fewer = 0, same = 0;
  for (int i = 0; i < 600; ++i) {
    TakeAnyView(100.0);
    f.observer = PrepareObserver(f.camera);
    light.SetPlain();
    const std::size_t plain = FindAll().size();
    const ViewGeometry geometry(f.camera);
    bodies.Observe(geometry);
    const auto sources = bodies.FindSources(f.observer);
    if (sources) light.Compute(geometry, *sources);
    ASSERT_NO_FATAL_FAILURE(CompareWithWalk(i, seen));
    fewer += CountDrawnTileStars() < plain;
    same += plain > 0 && CountDrawnTileStars() == plain;
  }
  EXPECT_GT(seen.drawn, 2000u);
  EXPECT_GT(fewer, 100);
  EXPECT_GT(same, 20);
}

// Their opacity as that of bright stars: by the limits of the class and what the sky takes.
TEST_F(TileStarsTest, SkyFadesTileStarsAsItFadesBrightOnes) {
  UseStars(host_test::MakeTileStars(5000, kFirst, 0.0, 7.0));
  f.shown.naturalSky = true;
  SolarSystemPart bodies(catalogs.bodies, catalogs.gazetteers);
  std::map<int, StarTileRecord> records;
  VisitAll([&](const StarTileRecord& star) { records.emplace(star.GetNumber(), star); });
  int faded = 0;
  for (int i = 0; i < 300; ++i) {
    TakeAnyView(1.0);
    Compute();
    const ViewGeometry geometry(f.camera);
    bodies.Observe(geometry);
    const auto sources = bodies.FindSources(f.observer);
    light.SetPlain();
    if (sources) light.Compute(geometry, *sources);
    const ObjectTests tests(catalogs, geometry, f.observer, f.shown, ObjectFilters::None(), light, kNoLand);
    for (const DrawnStar& star : frame->GetStars()) {
      if (star.star >= 0) continue;
      ObjectPlace place;
      const StarTileRecord& record = records.at(star.number);
      ASSERT_EQ(tests.FindStarObstacles(record, place), 0u);
      ASSERT_EQ(star.opacity, tests.GetStarLimits().Opacity(record.GetCode() + place.dim)) << i;
      faded += star.opacity < tests.GetStarLimits().Opacity(record.GetCode());
    }
  }
  EXPECT_GT(faded, 200);
}

// The disc of a bright star reaches into a window from far outside, in a large picture.
TEST_F(TileStarsTest, DiscThatReachesInFromOutsideIsDrawn) {
  UseStars({{kFirst, 1.0, 0.3, -1.0}});
  f.shown.horizon = false;
  f.SetWindow(6000, 4000);
  f.camera.SetZoom(200.0);
  int reachIn = 0, away = 0;
  for (int i = 0; i < 4000; ++i) {
    f.observer = PrepareObserver(f.camera);
    double there[3];
    MV3prod(f.observer.reduction, ApparentDirection(MakeDirection(1.0, 0.3), f.observer).v, there);
    const double corner = ViewGeometry(f.camera).cornerAngle;
    SphViewCoor angles;
    psf(there, 1.0, angles.lon, angles.lat);
    angles.lon += 1.2 * corner * Any(-1.0, 1.0) / std::cos(angles.lat);
    angles.lat += 1.2 * corner * Any(-1.0, 1.0);
    f.camera.SetRA_Dec(angles);
    Compute();
    const auto expected = FindAll();
    ASSERT_EQ(CountDrawnTileStars(), expected.size()) << i;
    away += expected.empty();
    for (const auto& entry : expected) reachIn += !ViewGeometry(f.camera).IsInside(entry.second, 30.0);
  }
  EXPECT_GT(reachIn, 20);
  EXPECT_GT(away, 100);
}

TEST_F(TileStarsTest, BrightAndFaintStarsStandInOneOrder) {
  UseStars(host_test::MakeTileStars(5000, kFirst, -1.0, 7.0));
  f.shown.horizon = false;
  f.camera.SetZoom(kMinZoom);
  Compute();
  std::map<int, float> codes;
  VisitAll([&](const StarTileRecord& star) { codes[star.GetNumber()] = star.GetCode(); });
  float last = -1000.0f;
  int changes = 0;
  bool lastBright = false;
  for (const DrawnStar& drawn : frame->GetStars()) {
    const float code = drawn.star >= 0 ? catalogs.stars.GetCode(drawn.star) : codes.at(drawn.number);
    EXPECT_GE(code, last);
    changes += (drawn.star >= 0) != lastBright;
    last = code;
    lastBright = drawn.star >= 0;
  }
  EXPECT_GT(changes, 4) << "bright and faint stars do not alternate";
  EXPECT_GT(CountDrawnTileStars(), 100u);
}

TEST_F(TileStarsTest, PointsCarryNumberAndTintOfTheStar) {
  UseStars(
      {{kFirst, 1.0, 0.5, 3.0, 1.6}, {kFirst + 1, 1.001, 0.5, 3.0, -0.2}, {kFirst + 2, 1.002, 0.5, 3.0}});
  f.shown.horizon = false;
  f.camera.SetBasePlane(2);
  f.camera.SetZoom(kMinZoom);
  std::map<int, Rgba> colours;
  for (int look = 0; look < 360; look += 60) {
    f.SetLook(look, 20.0);
    Compute();
    for (const PointRecord& point : frame->GetDisplayList().GetPoints()) {
      if (point.object.kind == FourCC("star")) colours[point.object.number] = point.colour;
    }
  }
  ASSERT_EQ(colours.count(kFirst) + colours.count(kFirst + 1) + colours.count(kFirst + 2), 3u);
  const auto tint = [](unsigned cls) { return ToRgba(palette::kStars[cls]); };
  EXPECT_EQ(colours[kFirst].blue, tint(6).blue) << "M";
  EXPECT_EQ(colours[kFirst + 1].blue, tint(1).blue) << "B";
  EXPECT_EQ(colours[kFirst + 2].red, tint(palette::kSpectralClasses).red) << "unknown";
}

TEST_F(TileStarsTest, TintsFollowTheMainSequence) {
  // B-V of main-sequence stars: zeta Oph O9.5 has 0.02 by reddening, but O5 -0.33, B5 -0.17, Vega A0 0.00, F5
  // 0.44, the Sun 0.65, K5 1.15, Barnard's star M4 1.57.
  const float colours[] = {-0.33f, -0.17f, 0.00f, 0.44f, 0.65f, 1.15f, 1.57f};
  for (int cls = 0; cls < 7; ++cls) EXPECT_EQ(GetClassOfColour(colours[cls]), cls);
  EXPECT_EQ(GetClassOfColour(std::numeric_limits<float>::quiet_NaN()), palette::kSpectralClasses);
}

TEST_F(TileStarsTest, StarsWithoutNamesHaveNoLabels) {
  UseStars(host_test::MakeTileStars(2000, kFirst, 1.0, 4.0));
  f.shown.horizon = false;
  Compute();
  EXPECT_GT(CountDrawnTileStars(), 10u);
  for (const DrawnStar& drawn : frame->GetStars()) {
    if (drawn.star < 0) {
      EXPECT_EQ(drawn.output->m_LabelIndex, -1);
    }
  }
}

TEST_F(TileStarsTest, SwitchOffLeavesNone) {
  UseStars(host_test::MakeTileStars(2000, kFirst, 1.0, 4.0));
  f.shown.stars = false;
  Compute();
  EXPECT_TRUE(frame->GetStars().empty());
}

TEST_F(TileStarsTest, FrameAllocatesNothingAfterTheOneWithTheMostStars) {
  UseStars(host_test::MakeTileStars(60000, kFirst, 0.0, 9.0, 1.2));
  f.shown.horizon = false;
  f.camera.SetZoom(kMinZoom);
  f.SetWindow(2000, 1500);
  Compute();
  const std::size_t most = CountDrawnTileStars();
  EXPECT_GT(most, 1000u);
  const unsigned long long before = host_test::GetAllocationCount();
  std::size_t drawn = 0;
  for (int i = 0; i < 300; ++i) {
    TakeAnyView(100.0);
    Compute();
    if (CountDrawnTileStars() > most) continue;
    drawn += CountDrawnTileStars();
  }
  EXPECT_EQ(host_test::GetAllocationCount(), before);
  EXPECT_GT(drawn, 10000u);
}

TEST_F(TileStarsTest, MoreThanAFrameShowsLeavesTheFaintestOut) {
  UseStars(host_test::MakeTileStars(static_cast<int>(TileStars::kMostTileStars) + 100000, kFirst, 1.0, 2.0));
  f.shown.horizon = false;
  f.SetWindow(2000, 2000);
  f.camera.SetZoom(kMinZoom);
  f.observer = PrepareObserver(f.camera);
  const ViewGeometry geometry(f.camera);
  const ObjectTests tests(catalogs, geometry, f.observer, f.shown, ObjectFilters::None(), light, kNoLand);
  ASSERT_GT(tests.GetStarLimits().draw, 40.5f);
  TileStars stars(catalogs);
  std::size_t all = 0;
  int brightestOut = 100000;
  stars.Find(geometry, tests);
  std::vector<char> shown(static_cast<std::size_t>(catalogs.starTiles[0].GetCount()));
  int faintest = -100000;
  for (std::size_t i = 0; i < stars.GetCount(); ++i) {
    shown[static_cast<std::size_t>(stars.Get(i).star.GetNumber() - kFirst)] = 1;
    faintest = std::max(faintest, stars.Get(i).star.GetMillimagnitudes());
  }
  VisitAll([&](const StarTileRecord& star) {
    ObjectPlace place;
    if (tests.FindStarObstacles(star, place) != 0) return;
    ++all;
    if (!shown[static_cast<std::size_t>(star.GetNumber() - kFirst)])
      brightestOut = std::min(brightestOut, star.GetMillimagnitudes());
  });
  EXPECT_GT(all, TileStars::kMostTileStars) << "the test shows what it is about";
  EXPECT_TRUE(stars.AreSomeLeftOut());
  EXPECT_LE(stars.GetCount(), TileStars::kMostTileStars);
  EXPECT_GE(stars.GetCount(), TileStars::kMostTileStars / 2);
  EXPECT_EQ(brightestOut, faintest + 1) << "whole steps of the magnitude go, the faintest ones";
}

TEST_F(TileStarsTest, SkyGoesWithoutACatalogThatIsNone) {
  f.sky.dir.Write("data/catalogs/stars.tiles", "no stars at all");
  f.diagnostics.lines.clear();
  Load();
  ASSERT_EQ(f.diagnostics.lines.size(), 1u);
  EXPECT_NE(f.diagnostics.lines[0].find("stars.tiles"), std::string::npos) << f.diagnostics.lines[0];
  EXPECT_TRUE(catalogs.starTiles.empty());
  Compute();
  EXPECT_EQ(CountDrawnTileStars(), 0u);
  EXPECT_FALSE(frame->GetStars().empty());
}

TEST_F(TileStarsTest, TwoCatalogsAreOneSky) {
  ASSERT_TRUE(host_test::WriteTiles(f.sky.dir.Path("data/catalogs/stars.tiles"),
                                    host_test::MakeTileStars(3000, kFirst, 2.0, 6.0)));
  ASSERT_TRUE(host_test::WriteTiles(f.sky.dir.Path("data/catalogs/deep_stars.tiles"),
                                    host_test::MakeTileStars(3000, kImportedNumbers + 1, 2.0, 6.0)));
  Load();
  f.shown.horizon = false;
  Compute();
  std::size_t own = 0, imported = 0;
  for (const DrawnStar& drawn : frame->GetStars()) {
    own += drawn.number >= kFirst && drawn.number < kImportedNumbers;
    imported += drawn.number > kImportedNumbers;
  }
  EXPECT_GT(own, 20u);
  EXPECT_EQ(own, imported) << "the same stars with other numbers";
}
