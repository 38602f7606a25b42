// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/satellite_pass.h"

#include <gtest/gtest.h>

#include "astro/rise_set.h"
#include "astro/solar_system.h"
#include "astro/vectors.h"
#include "helpers/midnight.h"

using namespace astro;

namespace {

const SSO_ID kStation(FourCC("scft"), 25544);

class SatellitePass : public testing::Test {
 protected:
  SatellitePass() {
    int number = 0;
    std::string error;
    const bool read = ParseTwoLineElements(
        "1 25544U 98067A   14020.93268519  .00009878  00000-0  18200-3 0  5082",
        "2 25544  51.6498 109.4756 0003572  55.9686 274.8005 15.49815350868473", elements, number, error);
    EXPECT_TRUE(read) << error;
  }

  OrbitalElements elements;
  EarthPlace berlin = astro_test::At(52.5, 13.4);
};

}  // namespace

// Berlin, 2014 January 21, 05:07:12 UT: azimuth 190.8, altitude 69.0, 449 km away, sunlit; 03:30:30 UT:
// azimuth 169.9, altitude 69.9, in the Earth's shadow (PyEphem 4.1.4 from the same elements).
TEST_F(SatellitePass, StationStandsAndShinesWhereAnotherLibrarySeesIt) {
  const SatelliteModel satellite(elements);
  CQXSolSys model;
  ASSERT_TRUE(model.SetAdditionalObject(kStation, &elements));
  const struct {
    int hour, minute, second;
    double azimuth, altitude, distance;
    bool sunlit;
  } expected[] = {{5, 7, 12, 190.823, 69.022, 449.2, true}, {3, 30, 30, 169.896, 69.939, 446.4, false}};
  for (const auto& entry : expected) {
    const SkyMoment moment =
        astro_test::MomentOf({2014, 1, 21, entry.hour, entry.minute, static_cast<double>(entry.second)});
    SetUpModel(moment, berlin, model);
    ObservedBody seen, sun;
    ASSERT_TRUE(model.ObserveAdditionalObject(kStation, seen) && model.Observe(kSun, nullptr, sun));
    double axes[9];
    HorizonAxes(moment, berlin, axes);
    const HorizonPlace stands = MakeHorizonPlace(axes, seen.apparent, 0.0);
    // The station crosses half a degree in half a second.
    EXPECT_NEAR(stands.altitude / kRadiansPerDegree, entry.altitude, 0.7);
    EXPECT_NEAR(stands.azimuth / kRadiansPerDegree, entry.azimuth, 2.0);
    EXPECT_NEAR(seen.distance * kKilometresPerAu, entry.distance, 3.0);
    const SatellitePlace place = FindSatellitePlace(satellite, elements.epoch, moment, berlin, sun.apparent);
    ASSERT_TRUE(place.known);
    EXPECT_EQ(place.sunlit, entry.sunlit);
    // The same place; the apparent one has aberration (21 arc seconds at most) and 1.5 milliseconds of light
    // time.
    double apparent[3];
    MV3prod(axes, seen.apparent, apparent);
    EXPECT_NEAR(VectorsAngle(place.direction, apparent) / kRadiansPerArcsecond, 0.0, 30.0);
    EXPECT_NEAR(Vmod(place.direction, 3), 1.0, 1e-15);
  }
}

TEST_F(SatellitePass, NothingIsKnownOfWhatTheModelCannotTell) {
  const SatelliteModel satellite(elements);
  const double sun[3] = {1.0, 0.0, 0.0};
  const SkyMoment far = astro_test::Midnight(2300, 1, 1);
  double position[3] = {1.0, 2.0, 3.0};
  EXPECT_FALSE(GetSatellitePosition(satellite, elements.epoch, far, position));
  EXPECT_EQ(position[0], 1.0);
  EXPECT_FALSE(FindSatellitePlace(satellite, elements.epoch, far, berlin, sun).known);
}

TEST(SatelliteLight, IsHiddenWhereTheEarthHidesTheSun) {
  const double sun[3] = {1.0, 0.0, 0.0};
  const double day[3] = {7000.0, 0.0, 0.0}, night[3] = {-7000.0, 0.0, 0.0}, side[3] = {0.0, 7000.0, 0.0},
               beyond[3] = {-7000.0, 6400.0, 0.0}, grazing[3] = {-7000.0, 6300.0, 0.0};
  EXPECT_TRUE(IsSunlit(day, sun));
  EXPECT_FALSE(IsSunlit(night, sun));
  EXPECT_TRUE(IsSunlit(side, sun));
  EXPECT_TRUE(IsSunlit(beyond, sun));
  EXPECT_FALSE(IsSunlit(grazing, sun));
}

// By hand: from 7000 km the Earth's limb is asin(6371 / 7000) = 65.53 degrees off its centre.
TEST(SatelliteLight, MarginIsTheAngleFromTheLimb) {
  const double sun[3] = {1.0, 0.0, 0.0};
  const double day[3] = {7000.0, 0.0, 0.0}, night[3] = {-7000.0, 0.0, 0.0}, side[3] = {0.0, 7000.0, 0.0};
  EXPECT_NEAR(SunlightMargin(day, sun) / kRadiansPerDegree, 180.0 - 65.53, 0.01);
  EXPECT_NEAR(SunlightMargin(side, sun) / kRadiansPerDegree, 90.0 - 65.53, 0.01);
  EXPECT_NEAR(SunlightMargin(night, sun) / kRadiansPerDegree, -65.53, 0.01);
  const double decayed[3] = {0.0, 0.0, 6000.0};
  EXPECT_GE(SunlightMargin(decayed, sun), 0.0);
}
