// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/build/milky_way_map.h"

#include <gtest/gtest.h>

#include <cmath>

#include "scene/catalogs/sky_map.h"
#include "scene/view/base_plane.h"
#include "skydata/build/galactic_image.h"
#include "tests/skydata/tiny_source.h"

namespace skydata {
namespace {

using scene::Direction;
using scene::kRadiansPerDegree;

// By galactic longitude and latitude, degrees: the inverse of the matrix that takes J2000 there.
Direction AtGalactic(double lon, double lat) {
  double m[9];
  scene::PlaneMatrix(scene::kGalacticPlane, m);
  const Direction v = scene::MakeDirection(lon * kRadiansPerDegree, lat * kRadiansPerDegree);
  Direction j2000;
  for (int i = 0; i < 3; ++i) j2000.v[i] = m[i] * v.v[0] + m[3 + i] * v.v[1] + m[6 + i] * v.v[2];
  return j2000;
}

Direction AtEquatorial(double ra, double dec) {
  return scene::MakeDirection(ra * kRadiansPerDegree, dec * kRadiansPerDegree);
}

// A rectangle in galactic longitude and latitude, corner by corner in steps of a degree.
std::vector<Direction> Box(int west, int east, double south, double north) {
  std::vector<Direction> ring;
  for (int lon = west; lon < east; ++lon) ring.push_back(AtGalactic(lon, south));
  for (double lat = south; lat < north; ++lat) ring.push_back(AtGalactic(east, lat));
  for (int lon = east; lon > west; --lon) ring.push_back(AtGalactic(lon, north));
  for (double lat = north; lat > south; --lat) ring.push_back(AtGalactic(west, lat));
  return ring;
}

TEST(GalacticImage, RegionsAreFilledByTheEvenOddRule) {
  GalacticImage image;
  image.AddRegion({Box(10, 30, -10, 10), Box(15, 25, -5, 5)});
  EXPECT_EQ(image.Find(AtGalactic(12.0, 0.0)), 1.0f);
  EXPECT_EQ(image.Find(AtGalactic(20.0, 0.0)), 0.0f) << "the hole";
  EXPECT_EQ(image.Find(AtGalactic(20.0, 8.0)), 1.0f);
  EXPECT_EQ(image.Find(AtGalactic(8.0, 0.0)), 0.0f);
  EXPECT_EQ(image.Find(AtGalactic(190.0, 0.0)), 0.0f);
}

// Cells are a quarter of a degree high. Those with their middles at 10.125 and -9.875 are covered for 0.05
// and 0.15 degrees by the one region, that at 5.125 for 0.1 by the other.
TEST(GalacticImage, CellsAtEdgesCountAsFarAsTheyAreCovered) {
  GalacticImage wide, thin;
  wide.AddRegion({Box(10, 30, -9.9, 10.05)});
  thin.AddRegion({Box(10, 30, 5.1, 5.2)});
  for (const auto& [lat, covered] :
       {std::pair{10.375, 0.0}, {10.125, 0.2}, {9.875, 1.0}, {-9.625, 1.0}, {-9.875, 0.6}, {-10.125, 0.0}})
    EXPECT_NEAR(wide.Find(AtGalactic(20.125, lat)), covered, 1e-3) << lat;
  for (const auto& [lat, covered] : {std::pair{5.375, 0.0}, {5.125, 0.4}, {4.875, 0.0}})
    EXPECT_NEAR(thin.Find(AtGalactic(20.125, lat)), covered, 1e-3) << lat;
}

TEST(GalacticImage, RegionsCrossLongitudeZero) {
  GalacticImage image;
  image.AddRegion({Box(-20, 20, -10, 10)});
  for (const double lon : {-15.0, -0.01, 0.0, 0.01, 15.0, 345.0})
    EXPECT_EQ(image.Find(AtGalactic(lon, 3.0)), 1.0f) << lon;
  EXPECT_EQ(image.Find(AtGalactic(30.0, 3.0)), 0.0f);
  EXPECT_EQ(image.Find(AtGalactic(330.0, 3.0)), 0.0f);
}

// Two edges that go round the sky, as those of the faintest level do.
TEST(GalacticImage, ABandGoesRoundTheSky) {
  std::vector<Direction> north, south;
  for (int lon = 0; lon < 360; ++lon) {
    north.push_back(AtGalactic(lon, 10.0));
    south.push_back(AtGalactic(360 - lon, -10.0));
  }
  GalacticImage image;
  image.AddRegion({north, south});
  for (int lon = 0; lon < 360; lon += 15) {
    EXPECT_EQ(image.Find(AtGalactic(lon, 9.0)), 1.0f) << lon;
    EXPECT_EQ(image.Find(AtGalactic(lon, -9.0)), 1.0f) << lon;
    EXPECT_EQ(image.Find(AtGalactic(lon, 11.0)), 0.0f) << lon;
    EXPECT_EQ(image.Find(AtGalactic(lon, -80.0)), 0.0f) << lon;
  }
}

// A straight edge under three boxes of deviation s in all, each 2 s wide, has the distribution of the sum of
// three even ones: 1/2 on the edge, 1 - 1/6 and 1/6 at s to both sides of it, 1/48 at 2 s; up to boxes of
// whole cells. In longitude at high latitudes and across longitude 0 as well.
TEST(GalacticImage, ABlurredEdgeIsAsWideAsItSays) {
  constexpr double kDeviation = 3.0;
  GalacticImage across, along;
  across.AddRegion({Box(100, 160, -30, 30)});
  across.Blur(kDeviation);
  for (const auto& [offset, value] : {std::pair{0.0, 0.5f}, {3.0, 0.8333f}, {-3.0, 0.1667f}, {-6.0, 0.0208f}})
    EXPECT_NEAR(across.Find(AtGalactic(130.0, -30.0 + offset)), value, 0.012f) << offset;
  along.AddRegion({Box(0, 60, 20, 80)});
  along.Blur(kDeviation);
  const double wider = 1.0 / std::cos(50.0 * kRadiansPerDegree);
  for (const auto& [offset, value] : {std::pair{0.0, 0.5f}, {3.0, 0.8333f}, {-3.0, 0.1667f}, {-6.0, 0.0208f}})
    EXPECT_NEAR(along.Find(AtGalactic(offset * wider, 50.0)), value, 0.012f) << offset;
}

TEST(GalacticImage, ABlurCrossesThePole) {
  GalacticImage image;
  image.AddRegion({Box(10, 170, 60, 89)});
  image.Blur(5.0);
  EXPECT_NEAR(image.Find(AtGalactic(90.0, 89.9)), image.Find(AtGalactic(270.0, 89.9)), 0.02f);
  EXPECT_GT(image.Find(AtGalactic(90.0, 88.0)), image.Find(AtGalactic(270.0, 88.0)));
  EXPECT_GT(image.Find(AtGalactic(270.0, 87.0)), 0.1f);
}

class MilkyWayMap : public testing::Test {
 protected:
  static const scene::SkyMap& Get() {
    static const scene::SkyMap map = [] {
      scene::SkyMap made;
      std::string reason;
      EXPECT_TRUE(made.Read(MakeMilkyWayMap(CI_DATA_SOURCE), reason)) << reason;
      return made;
    }();
    return map;
  }
};

// What everybody sees: the star clouds of Sagittarius are the brightest, the rift parts the Milky Way from
// Cygnus to Ophiuchus, the winter part is faint, and the poles of the Galaxy are dark.
TEST_F(MilkyWayMap, LooksLikeTheMilkyWay) {
  const float large = Get().Find(AtEquatorial(270.5, -29.0));  // the Large Sagittarius Star Cloud
  EXPECT_GT(large, 210.0f);
  EXPECT_LT(Get().Find(AtEquatorial(86.4, 28.9)), 0.35f * large) << "the anticentre";
  EXPECT_GT(Get().Find(AtEquatorial(86.4, 28.9)), 10.0f);
  EXPECT_EQ(Get().Find(AtEquatorial(192.86, 27.13)), 0.0f) << "the north pole of the Galaxy";
  EXPECT_EQ(Get().Find(AtEquatorial(12.86, -27.13)), 0.0f) << "the south pole of the Galaxy";
  const float cygnus = Get().Find(AtEquatorial(300.0, 35.0)), rift = Get().Find(AtEquatorial(285.0, 7.0)),
              east = Get().Find(AtEquatorial(290.5, 4.0));
  EXPECT_GT(cygnus, 0.4f * large);
  EXPECT_LT(rift, 0.7f * east) << "the rift in Aquila beside the bright stream";
}

TEST_F(MilkyWayMap, HasTheMagellanicClouds) {
  EXPECT_GT(Get().Find(AtEquatorial(80.9, -69.8)), 60.0f);
  EXPECT_GT(Get().Find(AtEquatorial(13.2, -72.8)), 40.0f);
  EXPECT_LT(Get().Find(AtEquatorial(40.0, -71.0)), 15.0f) << "between them";
}

// Position angles count from north over east, which is where right ascensions grow: the bar of the Large
// Cloud lies at 115 degrees, the Small Cloud at 45. On both sides together, since the Large Cloud has its
// middle beside that of its bar.
TEST_F(MilkyWayMap, MagellanicCloudsAreLongAtTheirPositionAngles) {
  const struct { double ra, dec, positionAngle; } clouds[] = {{80.0, -69.5, 115.0}, {13.19, -72.83, 45.0}};
  for (const auto& cloud : clouds) {
    const auto along = [&cloud](double positionAngle) {
      constexpr double kAway = 1.2;
      const double angle = positionAngle * kRadiansPerDegree;
      const double east = kAway * std::sin(angle) / std::cos(cloud.dec * kRadiansPerDegree);
      const double north = kAway * std::cos(angle);
      return Get().Find(AtEquatorial(cloud.ra + east, cloud.dec + north)) +
             Get().Find(AtEquatorial(cloud.ra - east, cloud.dec - north));
    };
    EXPECT_GT(along(cloud.positionAngle), 1.2f * along(-cloud.positionAngle)) << cloud.ra;
  }
}

// Nowhere a step that the eye could take for an edge: a sixth of the scale over the width of the full Moon.
TEST_F(MilkyWayMap, HasNoEdges) {
  float steepest = 0.0f;
  for (double lon = 0.0; lon < 360.0; lon += 0.5) {
    for (double lat = -60.0; lat < 60.0; lat += 0.5)
      steepest = std::max(
          steepest, std::fabs(Get().Find(AtGalactic(lon, lat + 0.5)) - Get().Find(AtGalactic(lon, lat))));
  }
  EXPECT_LT(steepest, 42.0f);
}

TEST(MilkyWaySource, ASixthLevelIsRefused) {
  const skydata_test::TinySource source;
  EXPECT_EQ(
      source.Message(MakeMilkyWayMap, "milkyway/outlines.tsv", "Level\tRing\tRA_deg\tDec_deg\n6\t0\t1\t2\n"),
      "milkyway/outlines.tsv:2: Level: 6 is out of range");
}

TEST(MilkyWaySource, NoOutlineIsADarkSky) {
  const skydata_test::TinySource source;
  source.Write("milkyway/outlines.tsv", "Level\tRing\tRA_deg\tDec_deg\n");
  scene::SkyMap map;
  std::string reason;
  ASSERT_TRUE(map.Read(source.Make(MakeMilkyWayMap), reason)) << reason;
  EXPECT_EQ(map.Find(AtEquatorial(270.5, -29.0)), 0.0f);
}

}  // namespace
}  // namespace skydata
