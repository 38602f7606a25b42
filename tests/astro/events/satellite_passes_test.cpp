// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/satellite_passes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <vector>

#include "astro/planets.h"
#include "astro/rise_set.h"
#include "astro/satellite_pass.h"
#include "companions/astro/events/pass_track.h"
#include "tests/astro/helpers/known_orbits.h"
#include "tests/astro/helpers/measure.h"
#include "tests/astro/helpers/midnight.h"

namespace {

using astro::EventSearch;
using astro::FindPasses;
using astro::PassLimits;
using astro::PassPoint;
using astro::SatellitePass;
using astro::SatelliteTarget;
using astro_test::Largest;

constexpr double kDegree = astro::kRadiansPerDegree;
const SSO_ID kStation(FourCC("scft"), 25544);

OrbitalElements Station() {
  return astro_test::Satellite("1 25544U 98067A   14020.93268519  .00009878  00000-0  18200-3 0  5082",
                               "2 25544  51.6498 109.4756 0003572  55.9686 274.8005 15.49815350868473");
}

EventSearch Nights(double days) {
  const astro::SkyMoment from = astro_test::Midnight(2014, 1, 21);
  return {from, astro::Later(from, days), astro_test::At(52.5, 13.4)};
}

std::vector<SatellitePass> PassesOf(const OrbitalElements& elements, const EventSearch& search,
                                    const PassLimits& limits = {}) {
  std::vector<SatellitePass> passes;
  const SatelliteTarget target = {kStation, &elements, -1.8};
  EXPECT_TRUE(FindPasses(search, target, limits, [&](const SatellitePass& pass) { passes.push_back(pass); }));
  return passes;
}

double SecondsOf(const PassPoint& point) {
  const astro::SkyMoment start = astro_test::Midnight(2014, 1, 21);
  return (point.moment.day - start.day + point.moment.fraction - start.fraction) * astro::kSecondsPerDay;
}

}  // namespace

// PyEphem 4.1.4 from the same elements, searched by steps of half a minute: seconds from 2014 January 21, 0h
// UT, of rise, culmination, set at 10 degrees, and of the way out of the shadow, whose Earth is larger by 7
// km there; degrees; km.
TEST(SatellitePasses, MeetThoseOfAnotherLibrary) {
  const struct {
    double rise, top, set, altitude, riseAzimuth, setAzimuth, distance, out;
  } expected[] = {{6667.3, 6842.2, 7017.7, 27.94, 211.6, 90.1, 814.7, 0.0},
                  {12429.9, 12630.0, 12830.6, 69.94, 253.8, 86.7, 446.4, 12812.9},
                  {18231.3, 18431.7, 18632.0, 69.02, 273.5, 107.0, 449.2, 18387.1},
                  {24044.8, 24219.0, 24392.6, 27.15, 269.4, 149.8, 833.2, 0.0},
                  {90205.3, 90358.7, 90512.7, 20.46, 196.2, 96.0, 1010.5, 0.0},
                  {95940.8, 96138.9, 96337.6, 59.37, 245.1, 85.2, 483.7, 0.0},
                  {101738.6, 101939.7, 102140.8, 76.36, 270.6, 99.7, 432.6, 102007.6},
                  {107545.8, 107733.1, 107919.9, 36.37, 273.0, 136.5, 673.2, 107581.8},
                  {173761.5, 173876.9, 173992.5, 14.55, 176.7, 106.1, 1241.9, 0.0},
                  {179454.1, 179648.1, 179842.7, 47.39, 235.0, 85.3, 556.9, 0.0},
                  {185244.8, 185446.0, 185647.3, 78.91, 266.2, 93.8, 428.5, 185628.0},
                  {191049.1, 191243.9, 191438.2, 47.50, 274.7, 124.9, 556.7, 191202.2},
                  {196898.8, 197015.3, 197131.6, 14.62, 254.1, 183.0, 1240.6, 0.0}};
  Largest times("passes against PyEphem", "second"), shadow("ends of the shadow against PyEphem", "second"),
      angles("altitudes and azimuths of passes against PyEphem", "degree");
  const auto passes = PassesOf(Station(), Nights(3.0));
  ASSERT_EQ(passes.size(), std::size(expected));
  for (std::size_t i = 0; i < passes.size(); ++i) {
    const SatellitePass& pass = passes[i];
    const double where = static_cast<double>(i);
    times.Note(SecondsOf(pass.rise) - expected[i].rise, where);
    times.Note(SecondsOf(pass.culmination) - expected[i].top, where);
    times.Note(SecondsOf(pass.set) - expected[i].set, where);
    angles.Note(pass.culmination.altitude / kDegree - expected[i].altitude, where);
    angles.Note(pass.rise.azimuth / kDegree - expected[i].riseAzimuth, where);
    angles.Note(pass.set.azimuth / kDegree - expected[i].setAzimuth, where);
    EXPECT_NEAR(pass.culmination.distance, expected[i].distance, 0.3);
    EXPECT_NEAR(pass.rise.altitude / kDegree, 10.0, 0.001);
    EXPECT_FALSE(pass.intoShadow);
    ASSERT_EQ(pass.outOfShadow.has_value(), expected[i].out > 0.0) << i;
    if (pass.outOfShadow) shadow.Note(SecondsOf(*pass.outOfShadow) - expected[i].out, where);
  }
  times.Expect(0.3);
  angles.Expect(0.06);
  shadow.Expect(2.5);
}

// The first pass is in the shadow from end to end; the fourth, after sunrise, in sunlight; the seventh comes
// out of the shadow as it goes down before a dark sky.
TEST(SatellitePasses, AreSeenInSunlightBeforeADarkSky) {
  const auto passes = PassesOf(Station(), Nights(3.0));
  ASSERT_EQ(passes.size(), 13u);
  EXPECT_FALSE(passes[0].best) << "all of it in the shadow";
  EXPECT_FALSE(passes[3].best) << "the sky is bright";
  ASSERT_TRUE(passes[6].best && passes[6].outOfShadow);
  EXPECT_GE(SecondsOf(*passes[6].best), SecondsOf(*passes[6].outOfShadow));
  EXPECT_TRUE(passes[6].best->sunlit);
  EXPECT_LT(passes[6].best->sunAltitude, -6.0 * kDegree);
  PassLimits byDay;
  byDay.sunAltitude = 90.0 * kDegree;
  const auto any = PassesOf(Station(), Nights(3.0), byDay);
  ASSERT_TRUE(any[3].best);
  EXPECT_TRUE(any[3].best->sunlit);
}

// The distance and the angle at the satellite from the model's own place of it.
TEST(SatellitePasses, MagnitudesFollowDistanceAndPhase) {
  const OrbitalElements elements = Station();
  const EventSearch search = Nights(3.0);
  astro_internal::PassTrack track(elements, *search.place, search);
  const PassPoint point = track.Look(track.DayOf(astro::Later(search.from, 18431.7 / 86400.0)), -1.8);
  ASSERT_TRUE(point.sunlit);
  CQXSolSys model;
  ASSERT_TRUE(model.SetAdditionalObject(kStation, &elements));
  astro::SetUpModel(point.moment, *search.place, model);
  ObservedBody seen, sun;
  ASSERT_TRUE(model.ObserveAdditionalObject(kStation, seen) && model.Observe(astro::kSun, nullptr, sun));
  const double back[3] = {-seen.astrometric[0], -seen.astrometric[1], -seen.astrometric[2]};
  const double lit = 0.5 * (1.0 + std::cos(VectorsAngle(back, sun.astrometric)));
  const double distance = seen.distance * astro::kKilometresPerAu;
  EXPECT_NEAR(point.magnitude, -1.8 + 5.0 * std::log10(distance / 1000.0) - 2.5 * std::log10(2.0 * lit),
              0.01);
  EXPECT_EQ(track.Look(0.5, static_cast<double>(kUnknownStarMagnitude)).magnitude,
            static_cast<double>(kUnknownStarMagnitude));
}

// The quick altitude of the search against the one that goes through the axes of J2000.
TEST(SatellitePasses, TheQuickAltitudeIsTheRealOne) {
  const OrbitalElements elements = Station();
  const SatelliteModel satellite(elements);
  const EventSearch search = Nights(10.0);
  astro_internal::PassTrack track(elements, *search.place, search);
  Largest difference("quick altitude of satellites", "arc second");
  const double sun[3] = {1.0, 0.0, 0.0};
  for (int i = 0; i < 500; ++i) {
    const astro::SkyMoment moment = astro::Later(search.from, 0.0201 * i);
    const auto place = astro::FindSatellitePlace(satellite, elements.epoch, moment, *search.place, sun);
    const double flat = std::hypot(place.direction[0], place.direction[1]);
    difference.Note(
        (track.Altitude(track.DayOf(moment)) - std::atan2(place.direction[2], flat)) / astro_test::kArcSecond,
        i);
  }
  difference.Expect(0.5);
}

// Looks every ten seconds, tenfold of those of the search, at a satellite near the Earth, at one on a long
// way far out and at one that goes round in ten days and rises as the stars do: whatever stands above the
// horizon belongs to a pass, and nothing else does.
TEST(SatellitePasses, NoneIsMissedNorInvented) {
  const OrbitalElements molniya =
      astro_test::Satellite("1 08195U 75081A   06176.33215444  .00000099  00000-0  11873-3 0   813",
                            "2 08195  64.1586 279.0717 6877146 264.7651  20.2257  2.00491383225656");
  OrbitalElements distant = molniya;
  distant.n /= 20.0;
  distant.e = 0.1;
  for (const auto& [elements, start] : {std::pair(Station(), astro_test::Midnight(2014, 1, 21)),
                                        std::pair(molniya, astro_test::Midnight(2006, 6, 26)),
                                        std::pair(distant, astro_test::Midnight(2006, 6, 26))}) {
    PassLimits limits;
    limits.altitude = 2.0 * kDegree;
    const EventSearch search = {start, astro::Later(start, 5.0), astro_test::At(40.0, -105.0)};
    // Passes that culminate outside belong to their neighbours.
    const EventSearch wider = {astro::Later(start, -2.0), astro::Later(start, 7.0), search.place};
    const auto passes = PassesOf(elements, wider, limits);
    astro_internal::PassTrack track(elements, *search.place, search);
    constexpr double second = 1.0 / astro::kSecondsPerDay;
    int above = 0;
    for (double t = 0.0; t < 5.0; t += 10.0 * second) {
      const astro::SkyMoment moment = astro::Later(start, t);
      const double height = track.Altitude(track.DayOf(moment)) - limits.altitude;
      if (std::fabs(height) < 1e-6) continue;
      const auto holds = [&moment](const SatellitePass& pass) {
        return moment.julianDateTT > pass.rise.moment.julianDateTT &&
               moment.julianDateTT < pass.set.moment.julianDateTT;
      };
      ASSERT_EQ(std::count_if(passes.begin(), passes.end(), holds), height > 0.0 ? 1 : 0) << t;
      above += height > 0.0;
    }
    EXPECT_GT(above, 500);
  }
}

TEST(SatellitePasses, SpansThatMeetShareThemOut) {
  const auto whole = PassesOf(Station(), Nights(3.0));
  const astro::SkyMoment border = whole[4].culmination.moment;
  const EventSearch search = Nights(3.0);
  auto parts = PassesOf(Station(), {search.from, border, search.place});
  EXPECT_EQ(parts.size(), 4u);
  for (const SatellitePass& pass : PassesOf(Station(), {border, search.to, search.place}))
    parts.push_back(pass);
  ASSERT_EQ(parts.size(), whole.size());
  for (std::size_t i = 0; i < whole.size(); ++i)
    EXPECT_EQ(parts[i].culmination.moment.julianDateTT, whole[i].culmination.moment.julianDateTT);
}

TEST(SatellitePasses, ComeInTheFormOfAllEvents) {
  const OrbitalElements elements = Station();
  const SatelliteTarget targets[] = {{kStation, &elements, -1.8}};
  const auto passes = PassesOf(elements, Nights(3.0));
  std::size_t next = 0;
  EXPECT_TRUE(astro::FindSatellitePasses(Nights(3.0), targets, {}, [&](const astro::SkyEvent& event) {
    const SatellitePass& pass = passes.at(next++);
    EXPECT_EQ(event.kind, astro::EventKind::kSatellitePass);
    EXPECT_TRUE(event.body == kStation);
    EXPECT_EQ(event.value, pass.culmination.altitude);
    EXPECT_EQ(event.detail, pass.best ? 1 : 0);
    EXPECT_NEAR((event.sinceBegin + event.untilEnd) * astro::kSecondsPerDay,
                SecondsOf(pass.set) - SecondsOf(pass.rise), 0.001);
  }));
  EXPECT_EQ(next, passes.size());
}

TEST(SatellitePasses, NothingWhereThereIsNothing) {
  const auto none = [](const SatellitePass&) { ADD_FAILURE(); };
  const OrbitalElements elements = Station();
  EventSearch nowhere = Nights(3.0);
  nowhere.place.reset();
  EXPECT_FALSE(FindPasses(nowhere, {kStation, &elements}, {}, none));
  EXPECT_FALSE(FindPasses(Nights(3.0), {kStation, nullptr}, {}, none));
  OrbitalElements broken = elements;
  broken.tag = 0;
  EXPECT_FALSE(FindPasses(Nights(3.0), {kStation, &broken}, {}, none));
  EXPECT_TRUE(FindPasses(Nights(-1.0), {kStation, &elements}, {}, none));
  const EventSearch endless = {astro::MakeMoment(3000000, 0.0), astro::MakeMoment(3700000, 0.0),
                               astro_test::At(52.5, 13.4)};
  EXPECT_FALSE(FindPasses(endless, {kStation, &elements}, {}, none)) << "more than 200 years away";
  EventSearch far = Nights(1.0);
  far.place = astro_test::At(-85.0, 0.0);
  EXPECT_TRUE(FindPasses(far, {kStation, &elements}, {}, none)) << "the orbit reaches 51 degrees";
  const OrbitalElements falling = astro_test::FallingStage();
  const astro::SkyMoment late = astro_test::Midnight(2005, 12, 20);
  EXPECT_FALSE(FindPasses({late, astro::Later(late, 1.0), astro_test::At(50.0, 10.0)}, {kStation, &falling},
                          {}, [](const SatellitePass&) {}));
}

// The pass of which the culmination lies a second before the span.
TEST(SatellitePasses, BelongToTheSpanOfTheirCulmination) {
  const EventSearch search = Nights(3.0);
  const auto whole = PassesOf(Station(), search);
  const astro::SkyMoment after = astro::Later(whole[4].culmination.moment, 1.0 / astro::kSecondsPerDay);
  EXPECT_EQ(PassesOf(Station(), {after, search.to, search.place}).size(), whole.size() - 5);
}

TEST(SatellitePasses, NoneInASpanWithoutDates) {
  const OrbitalElements elements = Station();
  for (const double bad :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    EventSearch from = Nights(3.0), to = Nights(3.0);
    from.from.julianDateTT = -bad;
    to.to.julianDateTT = bad;
    EXPECT_TRUE(PassesOf(elements, from).empty());
    EXPECT_TRUE(PassesOf(elements, to).empty());
  }
}

// In the year 3003 nobody knows where the Sun stands.
TEST(SatellitePasses, WithoutASunThereIsNothingToSee) {
  OrbitalElements elements = Station();
  elements.epoch = kLastPlanetDate + 1000.0;
  const astro::SkyMoment from = astro::MakeMoment(static_cast<int>(elements.epoch), 0.0);
  PassLimits byDay;
  byDay.sunAltitude = 90.0 * kDegree;
  const auto passes = PassesOf(elements, {from, astro::Later(from, 3.0), astro_test::At(52.5, 13.4)}, byDay);
  EXPECT_GT(passes.size(), 5u);
  for (const SatellitePass& pass : passes) EXPECT_FALSE(pass.best || pass.intoShadow || pass.outOfShadow);
}

TEST(SatellitePasses, BeyondTheModelThereAreNoNumbers) {
  const OrbitalElements elements = Station();
  const EventSearch search = Nights(1.0);
  astro_internal::PassTrack track(elements, *search.place, search);
  EXPECT_TRUE(std::isnan(track.Altitude(80000.0)));
  EXPECT_TRUE(std::isnan(track.LightMargin(80000.0)));
  const PassPoint nowhere = track.Look(80000.0, -1.8);
  EXPECT_FALSE(nowhere.sunlit);
  EXPECT_EQ(nowhere.distance, 0.0);
}

TEST(SatellitePasses, OfASpanThatBeginsTooEarlyTheRestIsSearched) {
  OrbitalElements elements = Station();
  elements.dragTerm = 0.0;
  const SatelliteTarget target = {kStation, &elements};
  const astro::SkyMoment first = astro::MakeMoment(static_cast<int>(elements.epoch) - 73050, 0.5);
  int passes = 0;
  const auto count = [&passes](const SatellitePass&) { ++passes; };
  const auto place = astro_test::At(52.5, 13.4);
  EXPECT_TRUE(FindPasses({astro::Later(first, 1.0), astro::Later(first, 2.0), place}, target, {}, count));
  EXPECT_GT(passes, 0);
  const int inside = passes;
  EXPECT_FALSE(FindPasses({astro::Later(first, -2.0), astro::Later(first, 2.0), place}, target, {}, count));
  EXPECT_GE(passes, 2 * inside);
}

// All of them equally bright, as nobody knows how bright: the highest point that is lit.
TEST(SatellitePasses, OfUnknownMagnitudeTheHighestIsTheBest) {
  const OrbitalElements elements = Station();
  PassLimits byDay;
  byDay.sunAltitude = 90.0 * kDegree;
  int lit = 0;
  FindPasses(Nights(3.0), {kStation, &elements}, byDay, [&lit](const SatellitePass& pass) {
    if (!pass.best || pass.intoShadow || pass.outOfShadow) return;
    ++lit;
    EXPECT_EQ(pass.best->moment.julianDateTT, pass.culmination.moment.julianDateTT);
  });
  EXPECT_GT(lit, 0);
}

// In the evening it goes into the shadow, in the morning it comes out of it.
TEST(SatellitePasses, TheShadowBeginsAndEndsAtTheSunlightsEdge) {
  const OrbitalElements elements = Station();
  int into = 0, out = 0;
  for (const double latitude : {-40.0, -20.0, 50.0}) {
    EventSearch search = Nights(3.0);
    search.place = astro_test::At(latitude, 13.4);
    astro_internal::PassTrack track(elements, *search.place, search);
    const auto lit = [&track](const PassPoint& edge, double seconds) {
      return track.LightMargin(track.DayOf(edge.moment) + seconds / astro::kSecondsPerDay) > 0.0;
    };
    for (const SatellitePass& pass : PassesOf(elements, search)) {
      if (pass.intoShadow) {
        ++into;
        EXPECT_TRUE(lit(*pass.intoShadow, -1.0) && !lit(*pass.intoShadow, 1.0));
      }
      if (pass.outOfShadow) {
        ++out;
        EXPECT_TRUE(!lit(*pass.outOfShadow, -1.0) && lit(*pass.outOfShadow, 1.0));
      }
    }
  }
  EXPECT_GT(into, 0);
  EXPECT_GT(out, 0);
}
