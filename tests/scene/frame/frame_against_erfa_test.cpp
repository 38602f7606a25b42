// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Where the frame draws the brightest stars, turned back from pixels into azimuth and altitude, against the
// astrometry library erfa, which knows parallax, light bending and the daily aberration as well.
#include <erfa.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>

#include "astro/astro.h"
#include "scene/base_plane.h"
#include "scene/frame_helpers.h"

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
