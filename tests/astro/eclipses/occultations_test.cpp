// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/occultations.h"

#include <gtest/gtest.h>

#include <map>

#include "astro/earth_orientation.h"
#include "astro/object_records.h"
#include "astro/rise_set.h"
#include "astro/solar_system.h"
#include "astro/vectors.h"
#include "tests/astro/helpers/events.h"
#include "tests/astro/helpers/known_orbits.h"
#include "tests/astro/helpers/measure.h"
#include "tests/astro/helpers/midnight.h"
#include "tests/astro/helpers/sky_place.h"
#include "tests/astro/helpers/tsv.h"

using namespace astro;
using astro_test::At;
using astro_test::Collect;
using astro_test::DaysFromUT;
using astro_test::OfKind;
using astro_test::SearchYears;

namespace {

StarRecord StarAt(double ra, double dec) {
  StarRecord star;
  star.ra = ra;
  star.dec = dec;
  return star;
}

// The stars as the table has them: J2000, at rest.
const StarRecord kStars[] = {StarAt(astro_test::FromHms(4, 35, 55.24), astro_test::FromDms(16, 30, 33.5)),
                             StarAt(astro_test::FromHms(10, 8, 22.31), astro_test::FromDms(11, 58, 2.0)),
                             StarAt(astro_test::FromHms(13, 25, 11.58), -astro_test::FromDms(11, 9, 40.8)),
                             StarAt(astro_test::FromHms(16, 29, 24.46), -astro_test::FromDms(26, 25, 55.2))};

const std::map<std::string, OccultationTarget> kTargets = {
    {"Aldebaran", {SSO_ID(FourCC("star"), 1), &kStars[0]}},
    {"Regulus", {SSO_ID(FourCC("star"), 2), &kStars[1]}},
    {"Spica", {SSO_ID(FourCC("star"), 3), &kStars[2]}},
    {"Antares", {SSO_ID(FourCC("star"), 4), &kStars[3]}},
    {"Venus", {SSO_ID(kPlanetKind, 2), nullptr}},
    {"Mars", {SSO_ID(kPlanetKind, 4), nullptr}},
    {"Jupiter", {SSO_ID(kPlanetKind, 5), nullptr}},
    {"Saturn", {SSO_ID(kPlanetKind, 6), nullptr}}};

std::vector<OccultationTarget> AllTargets() {
  std::vector<OccultationTarget> targets;
  for (const auto& [name, target] : kTargets) targets.push_back(target);
  return targets;
}

}  // namespace

// Ten years at six places, four stars and four planets; PyEphem (data/SOURCE.md). The table leaves out what
// stands lower than 1 degree.
TEST(Occultations, OfTenYearsAreWhereAnotherLibraryHasThem) {
  const auto rows = astro_test::ReadCells(ASTRO_TEST_DATA "event_occultations.tsv");
  ASSERT_GT(rows.size(), 100u);
  std::map<std::string, std::vector<SkyEvent>> ofPlace;
  astro_test::Largest difference("occultations against PyEphem", "s");
  for (const auto& row : rows) {
    auto& events = ofPlace[row[0]];
    if (events.empty()) {
      const EarthPlace place = At(std::stod(row[1]), std::stod(row[2]));
      events = Collect(FindOccultations, SearchYears(2016, 2026, place), AllTargets());
    }
    const SSO_ID body = kTargets.at(row[3]).id;
    const EventKind kind = row[4] == "begin" ? EventKind::kOccultationBegins : EventKind::kOccultationEnds;
    const auto found = std::find_if(events.begin(), events.end(), [&](const SkyEvent& event) {
      return event.kind == kind && event.other == body &&
             std::fabs(DaysFromUT(event, std::stod(row[5]))) < 0.1;
    });
    ASSERT_NE(found, events.end()) << row[0] << " " << row[3] << " " << row[5];
    difference.Note(DaysFromUT(*found, std::stod(row[5])) * kSecondsPerDay, std::stod(row[5]));
    astro_test::ExpectDegrees(found->more, std::stod(row[6]), 0.1);
    events.erase(found);
  }
  difference.Expect(15.0);
  for (const auto& [name, events] : ofPlace) {
    for (const SkyEvent& event : events) EXPECT_LT(event.more, 1.1 * kRadiansPerDegree) << name;
  }
}

// Aldebaran in front of the waxing Moon of 2017 March 4: it vanishes behind the dark eastern edge and comes
// out at the sunlit western one. (Seen from Honolulu.)
TEST(Occultations, TheWaxingMoonGoesAheadWithItsDarkEdge) {
  const EventSearch search = {astro_test::Midnight(2017, 3, 4), astro_test::Midnight(2017, 3, 6),
                              At(21.31, -157.86)};
  const auto events = Collect(FindOccultations, search, std::vector{kTargets.at("Aldebaran")});
  ASSERT_EQ(events.size(), 2u);
  EXPECT_EQ(events[0].kind, EventKind::kOccultationBegins);
  EXPECT_EQ(events[0].detail, static_cast<int>(OccultationLimb::kDark));
  EXPECT_LT(events[0].value, kPi);
  EXPECT_EQ(events[1].detail, static_cast<int>(OccultationLimb::kSunlit));
  EXPECT_GT(events[1].value, kPi);
}

TEST(Occultations, OfOneThatHasBegunOnlyTheEndIsFound) {
  EventSearch search = {astro_test::Midnight(2017, 3, 4), astro_test::Midnight(2017, 3, 6),
                        At(21.31, -157.86)};
  const auto whole = Collect(FindOccultations, search, std::vector{kTargets.at("Aldebaran")});
  ASSERT_EQ(whole.size(), 2u);
  search.from = whole[0].moment;
  search.from.fraction += 1.0 / kMinutesPerDay;
  search.from.julianDateTT += 1.0 / kMinutesPerDay;
  const auto rest = Collect(FindOccultations, search, std::vector{kTargets.at("Aldebaran")});
  ASSERT_EQ(rest.size(), 1u);
  EXPECT_EQ(rest[0].kind, EventKind::kOccultationEnds);
  EXPECT_NEAR(rest[0].moment.julianDateTT, whole[1].moment.julianDateTT, 1e-6);
}

// At its contacts a star stands on the Moon's edge as the model has both, and where the angle says.
TEST(Occultations, AngleAndHeightAreThoseThatTheModelShows) {
  const EarthPlace honolulu = At(21.31, -157.86);
  const EventSearch search = {astro_test::Midnight(2017, 3, 4), astro_test::Midnight(2017, 3, 6), honolulu};
  CQXSolSys model;
  for (const SkyEvent& event : Collect(FindOccultations, search, std::vector{kTargets.at("Aldebaran")})) {
    ObservedBody star, moon;
    SetUpModel(event.moment, honolulu, model);
    ASSERT_TRUE(model.Observe(event.other, &kStars[0], star) && model.Observe(kMoon, nullptr, moon));
    // The disc's size is that for the Moon's distance in the Earth's own frame: aberration changes sizes too.
    double velocity[3];
    EarthVelocity(event.moment.julianDateTT, velocity);
    const double distance = moon.distance * (1.0 + Dot(moon.apparent, velocity));
    const double radius = std::asin(0.2725076 * kEarthEquatorialRadius / kKilometresPerAu / distance);
    EXPECT_NEAR(VectorsAngle(star.apparent, moon.apparent), radius, 0.03 * astro_test::kArcSecond);
    const auto starPlace = astro_test::ApparentPlace(star, event.moment.julianDateTT);
    const auto moonPlace = astro_test::ApparentPlace(moon, event.moment.julianDateTT);
    const double east = std::remainder(starPlace.ra - moonPlace.ra, kTurn) * std::cos(starPlace.dec);
    astro_test::ExpectDegrees(event.value,
                              std::atan2(east, starPlace.dec - moonPlace.dec) / kRadiansPerDegree, 0.2);
    double axes[9];
    HorizonAxes(event.moment, honolulu, axes);
    EXPECT_NEAR(event.more, MakeHorizonPlace(axes, star.apparent, 0.0).altitude,
                0.15 * astro_test::kArcSecond);
  }
}

// Between a place where the star is covered and one where it passes by there is the graze: covered for a
// minute or two.
TEST(Occultations, AGrazeIsFoundHoweverShort) {
  const SkyMoment from = astro_test::Midnight(2017, 3, 4), to = astro_test::Midnight(2017, 3, 6);
  const auto at = [&](double latitude) {
    const EventSearch search = {from, to, At(latitude, -100.0)};
    return Collect(FindOccultations, search, std::vector{kTargets.at("Aldebaran")});
  };
  double inside = 20.0, outside = 60.0;
  ASSERT_EQ(at(inside).size(), 2u);
  ASSERT_EQ(at(outside).size(), 0u);
  while (outside - inside > 1e-3) {
    const double middle = 0.5 * (inside + outside);
    (at(middle).empty() ? outside : inside) = middle;
  }
  const auto graze = at(inside);
  ASSERT_EQ(graze.size(), 2u);
  EXPECT_GE(graze[0].detail, static_cast<int>(OccultationLimb::kSunlitGraze));
  EXPECT_LT((graze[1].moment.julianDateTT - graze[0].moment.julianDateTT) * kMinutesPerDay, 5.0);
}

TEST(Occultations, WithoutAPlaceNobodyCanTell) {
  EXPECT_FALSE(
      FindOccultations(SearchYears(2026, 2027), AllTargets(), [](const SkyEvent&) { ADD_FAILURE(); }));
}

// Of a target that the model does not know nothing can be said; the others are found all the same.
TEST(Occultations, AnUnknownTargetIsSaidAndTakesNothingFromTheOthers) {
  const EventSearch search = {astro_test::Midnight(2017, 3, 4), astro_test::Midnight(2017, 3, 6),
                              At(21.31, -157.86)};
  const std::vector<OccultationTarget> targets = {{SSO_ID(FourCC("star"), 99), nullptr},
                                                  kTargets.at("Aldebaran")};
  int events = 0;
  EXPECT_FALSE(FindOccultations(search, targets, [&events](const SkyEvent&) { ++events; }));
  EXPECT_EQ(events, 2);
}

TEST(Occultations, AnEmptySpanHasNone) {
  const EventSearch search = {astro_test::Midnight(2017, 3, 6), astro_test::Midnight(2017, 3, 4),
                              At(21.31, -157.86)};
  EXPECT_TRUE(Collect(FindOccultations, search, std::vector{kTargets.at("Aldebaran")}).empty());
}

// Satellites are too fast for the search, and some of these fall down within the month: whatever it takes
// them for, the star among them keeps its two moments.
TEST(Occultations, SatellitesAmongTheTargetsTakeNothingFromTheOthers) {
  std::vector<OrbitalElements> satellites;
  for (int i = 0; i < 300; ++i) {
    OrbitalElements elements = astro_test::Vanguard();
    elements.epoch = astro_test::Midnight(2017, 2, 18).julianDateTT;
    elements.e = 0.001;
    elements.n = 15.0 * kTurn / kMinutesPerDay;
    elements.i = 0.4;
    elements.M0 = 0.021 * i;
    elements.dragTerm = i % 3 == 0 ? 0.0 : 0.02 + 0.0003 * i;
    satellites.push_back(elements);
  }
  std::vector<OccultationTarget> targets = {kTargets.at("Aldebaran")};
  for (const OrbitalElements& elements : satellites) {
    targets.push_back({SSO_ID(FourCC("scft"), static_cast<int>(targets.size())), &elements});
  }
  const EventSearch search = {astro_test::Midnight(2017, 2, 18), astro_test::Midnight(2017, 3, 20),
                              At(21.31, -157.86)};
  const auto alone = Collect(FindOccultations, search, std::vector{kTargets.at("Aldebaran")});
  ASSERT_EQ(alone.size(), 2u);
  std::vector<double> moments;
  EXPECT_FALSE(FindOccultations(search, targets, [&moments](const SkyEvent& event) {
    if (event.other.kind == FourCC("star")) moments.push_back(event.moment.julianDateTT);
  }));
  EXPECT_EQ(moments, (std::vector{alone[0].moment.julianDateTT, alone[1].moment.julianDateTT}));
}
