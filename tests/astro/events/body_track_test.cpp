// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/events/body_track.h"

#include <gtest/gtest.h>

#include "astro/earth_orientation.h"
#include "astro/object_records.h"
#include "astro/planets.h"
#include "astro/rise_set.h"
#include "astro/vectors.h"
#include "tests/astro/helpers/measure.h"
#include "tests/astro/helpers/midnight.h"

using namespace astro;
using astro_internal::PlaceState;
using astro_internal::PlaceTrack;

namespace {

StarRecord FarStar() {
  StarRecord star;
  star.ra = 4.0;
  star.dec = -0.5;
  return star;
}

const StarRecord kFarStar = FarStar();

}  // namespace

// At 400 odd moments of two centuries, between the dates that are computed: direction, azimuth and altitude
// are those that the model has.
TEST(BodyTrack, GoesWhereTheModelHasTheBody) {
  const EarthPlace place = astro_test::At(48.2, 16.4, 200.0);
  const struct {
    SSO_ID body;
    const void* data;
    const char* name;
    double tolerance;  // arc seconds
  } bodies[] = {{kSun, nullptr, "track of the Sun against the model", 0.002},
                {kMoon, nullptr, "track of the Moon against the model", 0.03},
                {SSO_ID(kPlanetKind, 2), nullptr, "track of Venus against the model", 0.01},
                {SSO_ID(kPlanetKind, 1), nullptr, "track of Mercury against the model", 0.01},
                {SSO_ID(FourCC("star"), 1), &kFarStar, "track of a star against the model", 0.002}};
  CQXSolSys model;
  for (const auto& row : bodies) {
    PlaceTrack track(row.body, row.data, place);
    astro_test::Largest direction(row.name, "arc seconds");
    for (int i = 0; i < 400; ++i) {
      const SkyMoment moment = MakeMomentTT(2415020.5 + 182.637 * i);
      PlaceState state;
      ObservedBody seen;
      SetUpModel(moment, place, model);
      ASSERT_TRUE(track.Get(moment.julianDateTT, state) && model.Observe(row.body, row.data, seen));
      double toDate[9], expected[3], axes[9];
      PrecessionNutationMatrix(moment.julianDateTT, toDate);
      MV3prod(toDate, seen.apparent, expected);
      direction.Note(VectorsAngle(expected, state.fromPlace) / astro_test::kArcSecond, moment.julianDateTT);
      HorizonAxes(moment, place, axes);
      const HorizonPlace stands = MakeHorizonPlace(axes, seen.apparent, 0.0);
      EXPECT_NEAR(state.altitude, stands.altitude, 0.05 * astro_test::kArcSecond);
      EXPECT_NEAR(
          std::remainder(AzimuthOf(state, place.lat) - stands.azimuth, kTurn) * std::cos(stands.altitude),
          0.0, 0.05 * astro_test::kArcSecond);
    }
    direction.Expect(row.tolerance);
  }
}

TEST(BodyTrack, OutsideTheRangeOfTheModelThereIsNothing) {
  astro_internal::BodyTrack moon(kMoon, nullptr), stranger(SSO_ID(FourCC("astr"), 7), nullptr);
  astro_internal::BodyState state;
  EXPECT_FALSE(moon.Get(kLastPlanetDate + 100.0, state));
  EXPECT_FALSE(moon.Get(0.0, state));
  EXPECT_FALSE(moon.Get(std::nan(""), state));
  EXPECT_FALSE(moon.Get(1e300, state));
  EXPECT_FALSE(stranger.Get(kJ2000, state));
  EXPECT_TRUE(moon.Get(kJ2000, state));
}

// Io goes round in 1.77 days: its track takes looks that lie 45 minutes apart.
TEST(BodyTrack, FollowsTheMoonsOfPlanets) {
  const SSO_ID io(kMoonKind, 501);
  astro_internal::BodyTrack track(io, nullptr);
  CQXSolSys model;
  model.SetObserverAtEarthCentre();
  astro_test::Largest direction("track of Io against the model", "arc seconds");
  for (int i = 0; i < 20; ++i) {
    const SkyMoment moment = MakeMomentTT(2459000.5 + 17.123 * i);
    astro_internal::BodyState state;
    ObservedBody seen;
    model.SetMoment(moment.julianDateTT, moment.deltaT);
    ASSERT_TRUE(track.Get(moment.julianDateTT, state) && model.Observe(io, nullptr, seen));
    double toDate[9], expected[3];
    PrecessionNutationMatrix(moment.julianDateTT, toDate);
    MV3prod(toDate, seen.apparent, expected);
    direction.Note(VectorsAngle(expected, state.apparent) / astro_test::kArcSecond, moment.julianDateTT);
  }
  direction.Expect(0.01);
}
