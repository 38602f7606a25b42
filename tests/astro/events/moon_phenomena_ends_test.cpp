// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Where phenomena of moons end: with the theories, and with what is seen.
#include <gtest/gtest.h>

#include <limits>

#include "astro/moon_phenomena.h"
#include "astro/moons.h"
#include "astro/planets.h"
#include "astro/solar_system.h"
#include "companions/astro/events/moon_lines.h"
#include "tests/astro/helpers/sky_place.h"

namespace {

using astro::FindMoonEvents;
using astro::FindMoonSituation;
using astro::MoonEvent;
using astro::MoonSituation;
using astro_test::Planet;

SSO_ID MoonOf(int number) { return SSO_ID(FourCC("moon"), number); }

}  // namespace

TEST(MoonPhenomenaEnds, OfWhatIsNotSeenNothingIsSaid) {
  CQXSolSys model;
  model.SetMoment(2457046.7, 68.0);
  ObservedBody jupiter, io;
  const ObservedBody nowhere;
  ASSERT_TRUE(model.Observe(Planet(5), nullptr, jupiter) && model.Observe(MoonOf(501), nullptr, io));
  const auto says = [](const MoonSituation& situation) {
    return situation.isInTransit || situation.isOcculted || situation.isEclipsed || situation.castsShadow;
  };
  EXPECT_FALSE(says(FindMoonSituation(Planet(5), jupiter, nowhere, 2457046.7)));
  EXPECT_FALSE(says(FindMoonSituation(Planet(5), nowhere, io, 2457046.7)));
  EXPECT_FALSE(says(FindMoonSituation(SSO_ID(FourCC("star"), 5), jupiter, io, 2457046.7)));
  EXPECT_FALSE(astro::FindMoonShadow(Planet(5), jupiter, nowhere, 1e-5, 2457046.7));
  EXPECT_FALSE(astro::FindMoonShadow(Planet(5), nowhere, io, 1e-5, 2457046.7));
}

// The Earth is known on the first day of the series; the light of Saturn left before it.
TEST(MoonPhenomenaEnds, LinesEndWithTheSeries) {
  astro_internal::MoonLines lines(Planet(6), MoonOf(606));
  astro_internal::MoonLine line;
  for (const double date : {kFirstPlanetDate - 1.0, kFirstPlanetDate, kLastPlanetDate + 1.0}) {
    EXPECT_FALSE(lines.GetLine(date, astro_internal::Viewer::kEarth, line)) << date;
  }
  EXPECT_TRUE(lines.GetLine(kFirstPlanetDate + 1.0, astro_internal::Viewer::kEarth, line));
}

// The theory of Jupiter's moons is one of the years about 1131 to 2763.
TEST(MoonPhenomenaEnds, ASpanThatATheoryCoversInPartIsNotWhole) {
  const auto any = [](const astro::SkyEvent&) {};
  double known = 2460000.5, unknown = kLastPlanetDate, position[3];
  while (unknown - known > 1e-3) {
    const double middle = 0.5 * (known + unknown);
    const bool isKnown = astro::ComputeMoonOfPlanet(MoonOf(501), middle, position, nullptr);
    (isKnown ? known : unknown) = middle;
  }
  const auto search = [&](double from, double to) {
    return astro::FindMoonPhenomena({astro::MakeMomentTT(from), astro::MakeMomentTT(to), {}}, Planet(5), any);
  };
  EXPECT_TRUE(search(known - 20.0, known - 1.0));
  EXPECT_FALSE(search(known - 20.0, known + 1.0));
  // An event that the end cuts is none: each that is found is known from begin to end.
  for (double end = known - 3.0; end < known + 1.0; end += 0.5) {
    for (const MoonEvent& event : FindMoonEvents(5, end, end + 5.0)) EXPECT_LT(event.end, known + 1e-3);
  }
}

// Of moons whose theories reach as far as the planets.
TEST(MoonPhenomenaEnds, AtTheEndsOfTheSeriesWhatIsCutIsNone) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const int planet : {4, 6, 7}) {
    const auto first = FindMoonEvents(planet, -infinity, kFirstPlanetDate + 9.0);
    const auto last = FindMoonEvents(planet, kLastPlanetDate - 9.0, infinity);
    EXPECT_TRUE(planet == 7 || (first.size() > 3u && last.size() > 3u)) << planet;
    for (const MoonEvent& event : first) EXPECT_GE(event.begin, kFirstPlanetDate);
    for (const MoonEvent& event : last) EXPECT_LE(event.end, kLastPlanetDate);
  }
}

TEST(MoonPhenomenaEnds, OnlyPlanetsWithMoonsAreSearchedWithinTheirSeries) {
  const auto none = [](const astro::SkyEvent&) { ADD_FAILURE(); };
  const astro::SkyMoment from = astro::MakeMoment(2460000, 0.0), to = astro::MakeMoment(2460010, 0.0);
  EXPECT_FALSE(astro::FindMoonPhenomena({from, to, {}}, Planet(10), none));
  EXPECT_FALSE(astro::FindMoonPhenomena({from, to, {}}, SSO_ID(FourCC("moon"), 5), none));
  EXPECT_TRUE(astro::FindMoonPhenomena({to, from, {}}, Planet(5), none)) << "an empty span";
  const astro::EventSearch edge = {
      astro::MakeMomentTT(kFirstPlanetDate + 99.0), astro::MakeMomentTT(kFirstPlanetDate + 101.0), {}};
  EXPECT_FALSE(astro::FindMoonPhenomena(edge, Planet(6), [](const astro::SkyEvent&) {}));
}
