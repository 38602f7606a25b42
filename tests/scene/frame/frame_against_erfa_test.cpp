// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Where the frame draws the brightest stars, turned back from pixels into azimuth and altitude, against the
// astrometry library erfa, which knows parallax, light bending and the daily aberration as well.
#include <erfa.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <vector>

#include "astro/astro.h"
#include "scene/frame_helpers.h"
#include "scene/view/base_plane.h"

using namespace scene;

namespace {

constexpr double kArcSecond = kRadiansPerDegree / 3600.0;
constexpr double kMas = 0.001 * kArcSecond;

struct Moment {
  int year, month, day, hour;
};

// Azimuth from north over east and altitude, radians.
struct HorizonPlace {
  double azimuth, altitude;
};

// The observed place without atmosphere. UT1 is the moment as given and TT lies `deltaT` seconds after it;
// the routine wants them as UTC and UT1 - UTC.
HorizonPlace ErfaPlace(const host_test::BrightStar& star, const Moment& moment, double deltaT,
                       double latitude, double longitude) {
  double leap = 0.0, day1 = 0.0, day2 = 0.0;
  eraDat(moment.year, moment.month, moment.day, 0.5, &leap);
  eraCal2jd(moment.year, moment.month, moment.day, &day1, &day2);
  const double dut1 = 32.184 + leap - deltaT;
  const double utc = moment.hour / 24.0 - dut1 / 86400.0;
  const double dec = star.dec * kRadiansPerDegree;
  double azimuth, zenith, hourAngle, apparentDec, apparentRA, origins;
  const int status =
      eraAtco13(star.ra * kRadiansPerDegree, dec, star.motionRA * kMas / std::cos(dec), star.motionDec * kMas,
                star.parallax * 0.001, star.radialVelocity, day1 + day2, utc, dut1,
                longitude * kRadiansPerDegree, latitude * kRadiansPerDegree, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0,
                0.55, &azimuth, &zenith, &hourAngle, &apparentDec, &apparentRA, &origins);
  EXPECT_GE(status, 0);
  return {azimuth, 0.5 * kPi - zenith};
}

// The inverse of the projection, from the place that the frame kept for the star.
Direction DirectionOfPixel(const CommonInterfaces::Camera& camera, double x, double y) {
  const ViewGeometry geometry(camera);
  const double left = geometry.width * 0.5 - x, up = y - geometry.height * 0.5;
  const double theta = 2.0 * std::atan(std::hypot(left, up) / geometry.scale);
  const double bearing = std::atan2(up, left);
  const double picture[3] = {std::sin(theta) * std::cos(bearing), std::sin(theta) * std::sin(bearing),
                             std::cos(theta)};
  const SphViewCoor& view = camera.GetViewAngles();
  const double angles[3] = {view.lon, view.lat, view.slope};
  double matrix[9];
  CommonInterfaces::Camera::InitCameraMatrix(angles, matrix);
  Direction direction;
  V3Mprod(picture, matrix, direction.v);
  return direction;
}

// Looks at where the star is said to be, finds it on the picture and gives the distance, arcseconds.
double Difference(host_test::FrameFixture& fixture, int number, const HorizonPlace& expected) {
  fixture.SetLook(expected.azimuth / kRadiansPerDegree, expected.altitude / kRadiansPerDegree);
  fixture.Compute();
  const DrawnStar* drawn = fixture.Find(number);
  if (!drawn) return 1e9;
  const auto& place = drawn->output->m_Place;
  const Direction seen = DirectionOfPixel(fixture.camera, place.x, place.y);
  const Direction wanted = MakeDirection(-expected.azimuth, expected.altitude);
  return VectorsAngle(seen.v, wanted.v) / kArcSecond;
}

}  // namespace

TEST(FrameAgainstErfa, TheBrightestStarsAreWithinTwoArcSeconds) {
  const Moment moments[] = {{1975, 7, 1, 3}, {2000, 1, 1, 12}, {2012, 6, 6, 0}, {2024, 10, 25, 18}};
  const double places[][2] = {{52.52, 13.405}, {-33.87, 151.21}, {0.0, -78.5}, {69.65, 18.96}};
  host_test::FrameFixture fixture;
  fixture.shown.naturalSky = false;  // by day too
  fixture.camera.SetZoom(20.0);
  double largest = 0.0;
  int compared = 0;
  for (const auto& moment : moments) {
    fixture.SetTime(moment.year, moment.month, moment.day, moment.hour, 0);
    CommonInterfaces::_Date time;
    fixture.camera.GetUniversalTime(time);
    const double deltaT = ET_UT::Get(time.day, time.fraction);
    for (const auto& place : places) {
      fixture.SetPlace(place[0], place[1]);
      for (const auto& star : host_test::kBrightStars) {
        const auto expected = ErfaPlace(star, moment, deltaT, place[0], place[1]);
        if (expected.altitude < kRadiansPerDegree) continue;
        const double difference = Difference(fixture, star.number, expected);
        EXPECT_LT(difference, 2.0) << star.name << " " << moment.year << " at latitude " << place[0];
        largest = std::max(largest, difference);
        ++compared;
      }
    }
  }
  EXPECT_GT(compared, 50);
  std::printf("%d places of bright stars against erfa: largest difference %.2f arcseconds\n", compared,
              largest);
}

// Every vertex of the drawn lines, turned back from its pixel into the coordinates of the system by erfa,
// stands on a whole line. Vertices on the window's edge lie on the straight stretch between two that stand
// outside.
class GridsAgainstErfa : public testing::Test {
 protected:
  GridsAgainstErfa() {
    f.shown = {};
    f.shown.horizon = f.shown.compass = f.shown.figures = f.shown.naturalSky = false;
    CommonInterfaces::_Date time;
    f.camera.GetTime(time);
    m_TT = time.day + time.fraction;
  }

  static std::vector<Vertex> FindGridVertices(const DisplayList& list) {
    std::vector<Vertex> inside;
    for (const auto& run : list.GetRuns()) {
      if (run.layer != Layer::kSkyLines) continue;
      for (int i = run.first; i < run.first + run.count; ++i) {
        const PolylineRecord& line = list.GetPolylines()[static_cast<std::size_t>(i)];
        for (int k = line.firstVertex; k < line.firstVertex + line.vertexCount; ++k) {
          const Vertex& p = list.GetVertices()[static_cast<std::size_t>(k)];
          if (p.x > 1.0f && p.y > 1.0f && p.x < 1599.0f && p.y < 999.0f) inside.push_back(p);
        }
      }
    }
    return inside;
  }

  // Of the seen direction on J2000 axes.
  using FindCoordinates = std::function<void(double v[3], double& longitude, double& latitude)>;

  void Compare(const char* name, const FindCoordinates& find) {
    double largest = 0.0;
    int vertices = 0;
    for (const auto& [azimuth, altitude] :
         {std::pair{180.0, 40.0}, {20.0, 70.0}, {270.0, -10.0}, {95.0, -60.0}}) {
      f.SetLook(azimuth, altitude);
      f.Compute();
      const DisplayList& list = f.frame.GetDisplayList();
      for (const auto& vertex : FindGridVertices(list)) {
        const Direction seen = DirectionOfPixel(f.camera, vertex.x, 1000.0 - vertex.y);
        double v[3], longitude = 0.0, latitude = 0.0;
        V3Mprod(seen.v, f.observer.reduction, v);
        find(v, longitude, latitude);
        const auto off = [](double angle, double degrees) {
          return std::fabs(std::remainder(angle, degrees * kRadiansPerDegree));
        };
        const double away = std::min(off(latitude, 5.0), off(longitude, 2.5) * std::cos(latitude));
        largest = std::max(largest, away * 0.5 * ViewGeometry(f.camera).scale);
        ++vertices;
      }
    }
    EXPECT_GT(vertices, 3000) << name;
    EXPECT_LT(largest, 0.01) << name;
    std::printf("%s: %d vertices of lines against erfa, largest difference %.4f pixels\n", name, vertices,
                largest);
  }

  // The place in the catalogue whose stars are seen in a direction: aberration undone by erfa.
  void FindCatalogued(const double seen[3], double catalogued[3]) const {
    double helio[2][3], bary[2][3], velocity[3];
    eraEpv00(m_TT, 0.0, helio, bary);
    constexpr double kDaysPerAu = 499.004783836 / 86400.0;
    double square = 0.0;
    for (int i = 0; i < 3; ++i) {
      velocity[i] = bary[1][i] * kDaysPerAu;
      square += velocity[i] * velocity[i];
    }
    std::copy(seen, seen + 3, catalogued);
    for (int round = 0; round < 4; ++round) {
      double moved[3];
      eraAb(catalogued, velocity, std::hypot(helio[0][0], helio[0][1], helio[0][2]), std::sqrt(1.0 - square),
            moved);
      for (int i = 0; i < 3; ++i) catalogued[i] += seen[i] - moved[i];
    }
  }
  void MakeEquatorOfDate(const double v[3], double ofDate[3]) const {
    double matrix[3][3], icrs[3] = {v[0], v[1], v[2]};
    eraPnm06a(m_TT, 0.0, matrix);
    eraRxp(matrix, icrs, ofDate);
  }

  host_test::FrameFixture f;
  double m_TT;
};

TEST_F(GridsAgainstErfa, EquatorialOfDate) {
  f.shown.lines.equatorialGrid = 1;
  Compare("equator of date", [this](double v[3], double& longitude, double& latitude) {
    double ofDate[3];
    MakeEquatorOfDate(v, ofDate);
    eraC2s(ofDate, &longitude, &latitude);
  });
}

TEST_F(GridsAgainstErfa, EquatorialJ2000) {
  f.shown.lines.equatorialGrid = 2;
  Compare("J2000", [this](double v[3], double& longitude, double& latitude) {
    double catalogued[3];
    FindCatalogued(v, catalogued);
    eraC2s(catalogued, &longitude, &latitude);
  });
}

TEST_F(GridsAgainstErfa, Ecliptic) {
  f.shown.lines.eclipticGrid = 1;
  double dpsi = 0.0, deps = 0.0;
  eraNut06a(m_TT, 0.0, &dpsi, &deps);
  const double obliquity = eraObl06(m_TT, 0.0) + deps;
  Compare("ecliptic of date", [this, obliquity](double v[3], double& longitude, double& latitude) {
    double ofDate[3];
    MakeEquatorOfDate(v, ofDate);
    const double c = std::cos(obliquity), s = std::sin(obliquity);
    double ecliptic[3] = {ofDate[0], c * ofDate[1] + s * ofDate[2], c * ofDate[2] - s * ofDate[1]};
    eraC2s(ecliptic, &longitude, &latitude);
  });
}

TEST_F(GridsAgainstErfa, Galactic) {
  f.shown.lines.galacticGrid = 1;
  Compare("galactic", [this](double v[3], double& longitude, double& latitude) {
    double catalogued[3], ra = 0.0, dec = 0.0;
    FindCatalogued(v, catalogued);
    eraC2s(catalogued, &ra, &dec);
    eraIcrs2g(ra, dec, &longitude, &latitude);
  });
}

// The frame of the place is compared with erfa's by the stars above.
TEST_F(GridsAgainstErfa, Horizontal) {
  f.shown.lines.horizontalGrid = 1;
  Compare("horizon", [this](double v[3], double& longitude, double& latitude) {
    double there[3];
    MV3prod(f.observer.reduction, v, there);
    eraC2s(there, &longitude, &latitude);
  });
}

// The ecliptic of erfa counts from axes that the frame bias has turned by 0.02 seconds of arc.
TEST(FrameAgainstErfa, PlanesOfTheSkyAreTheSame) {
  double galactic[9], ecliptic[9];
  PlaneMatrix(kGalacticPlane, galactic);
  PlaneMatrix(kEclipticPlane, ecliptic);
  for (int ra = 0; ra < 360; ra += 15) {
    for (int dec = -75; dec <= 75; dec += 15) {
      const Direction sky = MakeDirection(ra * kRadiansPerDegree, dec * kRadiansPerDegree);
      double lon = 0.0, lat = 0.0;
      Direction ours;
      eraIcrs2g(ra * kRadiansPerDegree, dec * kRadiansPerDegree, &lon, &lat);
      MV3prod(galactic, sky.v, ours.v);
      EXPECT_LT(VectorsAngle(ours.v, MakeDirection(lon, lat).v), 1e-6 * kArcSecond) << ra << " " << dec;
      eraEqec06(2451545.0, 0.0, ra * kRadiansPerDegree, dec * kRadiansPerDegree, &lon, &lat);
      MV3prod(ecliptic, sky.v, ours.v);
      EXPECT_LT(VectorsAngle(ours.v, MakeDirection(lon, lat).v), 0.03 * kArcSecond) << ra << " " << dec;
    }
  }
}
