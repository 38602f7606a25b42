// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/meteor_showers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <string>
#include <vector>

#include "astro/rise_set.h"
#include "astro/solar_system.h"
#include "tests/astro/helpers/event_list.h"

namespace {

using astro::EventSearch;
using astro::EventSink;
using astro::FindShowerNight;
using astro::GetVisualShowers;
using astro::MeteorShower;
using astro::ShowerNight;
using astro::SkyEvent;
using astro_test::At;
using astro_test::Collect;
using astro_test::Midnight;
using astro_test::MomentOf;
using astro_test::Years;

constexpr double kHour = 1.0 / 24.0;

const MeteorShower& ShowerOf(const std::string& code) {
  for (const MeteorShower& shower : GetVisualShowers()) {
    if (shower.code == code) return shower;
  }
  ADD_FAILURE() << code;
  return GetVisualShowers()[0];
}

std::vector<SkyEvent> MaximaOf(const EventSearch& search) {
  return Collect(search, [](const EventSearch& span, const EventSink& sink) {
    return astro::FindShowerMaxima(span, GetVisualShowers(), sink);
  });
}

}  // namespace

// The calendar of the International Meteor Organization for 2023, whose times are rounded to hours: the first
// hour of the Perseids' maximum, which lasts seven.
TEST(MeteorShowers, MaximaOfOneYear) {
  const std::map<std::string, CalendarDate> published = {
      {"QUA", {2023, 1, 4, 3, 0, 0.0}},   {"LYR", {2023, 4, 23, 1, 0, 0.0}},
      {"ETA", {2023, 5, 6, 15, 0, 0.0}},  {"PER", {2023, 8, 13, 7, 0, 0.0}},
      {"LEO", {2023, 11, 18, 5, 0, 0.0}}, {"GEM", {2023, 12, 14, 19, 0, 0.0}},
      {"URS", {2023, 12, 23, 4, 0, 0.0}}};
  std::size_t compared = 0;
  for (const SkyEvent& event : MaximaOf(Years(2023, 2023))) {
    ASSERT_EQ(event.body.kind, astro::kShowerKind);
    const MeteorShower& shower = GetVisualShowers()[static_cast<std::size_t>(event.body.number)];
    EXPECT_EQ(event.value, shower.zenithalRate);
    const auto found = published.find(shower.code);
    if (found == published.end()) continue;
    EXPECT_NEAR(event.moment.julianDateTT, MomentOf(found->second).julianDateTT, 0.8 * kHour) << shower.code;
    ++compared;
  }
  EXPECT_EQ(compared, published.size());
}

// Once a year of 365.2564 days, against the fixed stars: none missing and none twice in two centuries.
TEST(MeteorShowers, EachComesOnceASiderealYear) {
  std::map<int, std::vector<double>> dates;
  for (const SkyEvent& event : MaximaOf(Years(1900, 2099)))
    dates[event.body.number].push_back(event.moment.julianDateTT);
  EXPECT_EQ(dates.size(), GetVisualShowers().size());
  for (const auto& [number, list] : dates) {
    EXPECT_GE(list.size(), 199u) << number;
    for (std::size_t i = 1; i < list.size(); ++i)
      ASSERT_NEAR(list[i] - list[i - 1], 365.2564, 0.03) << number;
  }
}

// The rate by hand from what the night says, and no look of the night at five minutes' distance is better.
TEST(MeteorShowers, RatesOfTheBestMoment) {
  const MeteorShower& perseids = ShowerOf("PER");
  const astro::SkyMoment maximum = MomentOf({2023, 8, 13, 7, 42, 0.0});
  const auto night = FindShowerNight(perseids, maximum, At(52.5, 13.4));
  ASSERT_TRUE(night);
  EXPECT_NEAR(night->rate, 100.0 * std::sin(night->radiantAltitude) * std::pow(2.2, night->limit - 6.5),
              1e-9);
  double axes[9], radiant[3];
  astro::HorizonAxes(night->best, At(52.5, 13.4), axes);
  sfp(1.0, perseids.ra, perseids.dec, radiant);
  EXPECT_NEAR(night->radiantAltitude, astro::MakeHorizonPlace(axes, radiant, 0.0).altitude, 1e-12);
  EXPECT_NEAR(night->limit, 6.4, 0.15) << "the Moon is a thin crescent";
  EXPECT_NEAR(night->moonlit, 0.10, 0.03);
  EXPECT_NEAR(night->best.julianDateTT, MomentOf({2023, 8, 13, 1, 12, 0.0}).julianDateTT, kHour)
      << "before dawn";
}

// In 2022 the Moon was full at the maximum of the Perseids, in 2023 nearly new: a third of the meteors.
TEST(MeteorShowers, MoonlightHidesMeteors) {
  const auto bright = FindShowerNight(ShowerOf("PER"), MomentOf({2022, 8, 13, 1, 0, 0.0}), At(52.5, 13.4));
  const auto dark = FindShowerNight(ShowerOf("PER"), MomentOf({2023, 8, 13, 7, 0, 0.0}), At(52.5, 13.4));
  ASSERT_TRUE(bright && dark);
  EXPECT_GT(bright->moonlit, 0.95);
  EXPECT_LT(bright->limit, 5.2);
  EXPECT_LT(bright->rate, 0.45 * dark->rate);
}

// In Sydney, 33.9 degrees south, the radiants of the Perseids and Ursids (58 and 76 degrees north) never
// rise, those of the Quadrantids and Draconids (49 and 54) for an hour or two of the day. In Lapland there is
// no night in the end of May.
TEST(MeteorShowers, NothingWhereTheRadiantStaysDownOrNightDoesNotCome) {
  EXPECT_FALSE(FindShowerNight(ShowerOf("URS"), MomentOf({2023, 12, 23, 4, 0, 0.0}), At(-33.9, 151.2)));
  EXPECT_FALSE(FindShowerNight(ShowerOf("ETA"), MomentOf({2023, 5, 25, 15, 0, 0.0}), At(70.0, 25.0)));
  EventSearch search = Years(2023, 2023);
  search.place = At(-33.9, 151.2);
  std::string without;
  for (const SkyEvent& event : MaximaOf(search)) {
    const MeteorShower& shower = GetVisualShowers()[static_cast<std::size_t>(event.body.number)];
    if (event.value == 0.0) without += shower.code + std::string(" ");
    EXPECT_LE(event.sinceBegin + event.untilEnd, 0.51);
  }
  EXPECT_EQ(without, "QUA PER DRA URS ");
}

TEST(MeteorShowers, NothingOutsideTheRange) {
  const EventSearch before = {astro::MakeMoment(100000, 0.0), astro::MakeMoment(100400, 0.0), {}};
  EXPECT_FALSE(astro::FindShowerMaxima(before, GetVisualShowers(), [](const SkyEvent&) { ADD_FAILURE(); }));
}

// The radiant of the Ursids never sets in Oslo.
TEST(MeteorShowers, NobodyKnowsANightBeyondTheSeries) {
  const astro::SkyMoment moment = astro::MakeMoment(4000000, 0.0);
  EXPECT_FALSE(FindShowerNight(ShowerOf("URS"), moment, At(59.9, 10.8)));
}
