// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// No event is missed and none comes twice: the finders against looks that are ten times as dense as theirs
// and know nothing of turning points. Four years as a test; ASTRO_SCAN_YEARS=1900-2099 scans two centuries.
#include <gtest/gtest.h>

#include "astro/eclipse.h"
#include "astro/lunar_eclipses.h"
#include "astro/moon_events.h"
#include "astro/object_records.h"
#include "astro/occultations.h"
#include "astro/planets.h"
#include "astro/rise_events.h"
#include "astro/seasons.h"
#include "astro/solar_eclipses.h"
#include "astro/sun_events.h"
#include "astro/vectors.h"
#include "companions/astro/eclipses/besselian.h"
#include "companions/astro/events/body_track.h"
#include "companions/astro/events/ecliptic_places.h"
#include "companions/astro/events/event_grid.h"
#include "tests/astro/helpers/events.h"
#include "tests/astro/helpers/midnight.h"
#include "tests/astro/helpers/scan_years.h"

using namespace astro;
using astro_internal::PlaceState;
using astro_test::At;
using astro_test::Collect;
using astro_test::OfKind;

namespace {

EventSearch Span(const std::optional<EarthPlace>& place = std::nullopt) {
  const auto [first, last] = astro_test::GetScanYears({1998, 2001});
  return astro_test::SearchYears(first, last + 1, place);
}

struct Changes {
  std::vector<double> up, down;
};

// The dates (TT) at which a function changes its sign, by looks every `step` days. A jump of an angle is no
// change.
template <class Function>
Changes Looks(Function function, const EventSearch& search, double step) {
  Changes changes;
  const double from = search.from.julianDateTT, to = search.to.julianDateTT;
  double before = function(from);
  for (double k = 1.0; from + (k - 1.0) * step < to; k += 1.0) {
    const double date = std::min(from + k * step, to), now = function(date);
    if ((before < 0.0) != (now < 0.0) && std::fabs(now - before) < kPi) {
      (now >= 0.0 ? changes.up : changes.down).push_back(date - step + step * before / (before - now));
    }
    before = now;
  }
  return changes;
}

// Each look that saw something has its event within a step. Few events, those that begin and end between two
// looks, no look saw.
void ExpectSame(const std::vector<SkyEvent>& events, const std::vector<double>& looks, double step,
                const char* what) {
  std::size_t next = 0, unseen = 0;
  for (const SkyEvent& event : events) {
    const double date = event.moment.julianDateTT;
    if (next < looks.size() && std::fabs(looks[next] - date) < step) {
      ++next;
    } else {
      ++unseen;
    }
  }
  EXPECT_EQ(next, looks.size()) << what;
  std::printf("[ scan     ] %s: %zu events, %zu looks saw one, %zu between two looks\n", what, events.size(),
              looks.size(), unseen);
  EXPECT_LE(unseen, events.size() / 100) << what;
  EXPECT_EQ(unseen + looks.size(), events.size()) << what;
}

void ExpectRisings(const SSO_ID& body, const EarthPlace& place, const char* what) {
  constexpr double kLook = 1.0 / 80.0;  // days
  const EventSearch search = Span(place);
  const auto events = Collect(FindRisings, search, body, nullptr, RisingPart::kCentre);
  astro_internal::PlaceTrack track(body, nullptr, place);
  const auto height = [&track](double date) {
    PlaceState state;
    EXPECT_TRUE(track.Get(date, state));
    return state.altitude - GetRiseAltitude(0.0);
  };
  const auto hourAngle = [&track](double date) {
    PlaceState state;
    EXPECT_TRUE(track.Get(date, state));
    return HourAngleOf(state);
  };
  const Changes changes = Looks(height, search, kLook);
  ExpectSame(OfKind(events, EventKind::kRise), changes.up, kLook, what);
  ExpectSame(OfKind(events, EventKind::kSet), changes.down, kLook, what);
  ExpectSame(OfKind(events, EventKind::kTransit), Looks(hourAngle, search, kLook).up, kLook, what);
}

}  // namespace

TEST(EventScan, SeasonsAndPhases) {
  const EventSearch search = Span();
  astro_internal::EclipticPlaces places;
  const auto season = [&](double date) {
    return astro_internal::Wrap(4.0 * places.Get(kSun, date).longitude);
  };
  ExpectSame(Collect(FindSeasons, search), Looks(season, search, 4.0).up, 4.0, "seasons");
  const auto phase = [&](double date) { return astro_internal::Wrap(4.0 * places.Elongation(date)); };
  ExpectSame(Collect(FindMoonPhases, search), Looks(phase, search, 0.25).up, 0.25, "phases");
}

TEST(EventScan, ApsidesAndNodes) {
  const EventSearch search = Span();
  const auto grows = [](double date) {
    double before[3], after[3];
    EXPECT_TRUE(ComputeMoonState(date - 0.01, before, nullptr) &&
                ComputeMoonState(date + 0.01, after, nullptr));
    return Vmod(after, 3) - Vmod(before, 3);
  };
  const auto apsides = Collect(FindMoonApsides, search);
  const Changes distance = Looks(grows, search, 0.4);
  ExpectSame(OfKind(apsides, EventKind::kPerigee), distance.up, 0.4, "perigees");
  ExpectSame(OfKind(apsides, EventKind::kApogee), distance.down, 0.4, "apogees");
  astro_internal::EclipticPlaces places;
  const auto latitude = [&](double date) { return places.Get(kMoon, date).latitude; };
  const auto nodes = Collect(FindMoonNodes, search);
  const Changes crossings = Looks(latitude, search, 0.4);
  ExpectSame(OfKind(nodes, EventKind::kAscendingNode), crossings.up, 0.4, "ascending nodes");
  ExpectSame(OfKind(nodes, EventKind::kDescendingNode), crossings.down, 0.4, "descending nodes");
}

TEST(EventScan, Twilights) {
  constexpr double kLook = 1.0 / 80.0;  // days
  const EarthPlace place = At(56.0, 10.0);
  const EventSearch search = Span(place);
  const auto events = Collect(FindSunEvents, search);
  astro_internal::PlaceTrack track(kSun, nullptr, place);
  const struct {
    EventKind dawn, dusk;
    double altitude;
  } kinds[] = {{EventKind::kAstronomicalDawn, EventKind::kAstronomicalDusk, kAstronomicalTwilight},
               {EventKind::kNauticalDawn, EventKind::kNauticalDusk, kNauticalTwilight},
               {EventKind::kCivilDawn, EventKind::kCivilDusk, kCivilTwilight}};
  for (const auto& kind : kinds) {
    const auto height = [&](double date) {
      PlaceState state;
      EXPECT_TRUE(track.Get(date, state));
      return state.altitude - kind.altitude;
    };
    const Changes changes = Looks(height, search, kLook);
    ExpectSame(OfKind(events, kind.dawn), changes.up, kLook, "dawns, 56 north");
    ExpectSame(OfKind(events, kind.dusk), changes.down, kLook, "dusks, 56 north");
  }
}

TEST(EventScan, RisingsNearThePolarCircleAndTheEquator) {
  ExpectRisings(kSun, At(66.4, 25.7), "Sun, 66.4 north");
  ExpectRisings(kMoon, At(66.4, 25.7), "Moon, 66.4 north");
  ExpectRisings(kMoon, At(-1.3, 36.8), "Moon, 1.3 south");
  ExpectRisings(SSO_ID(kPlanetKind, 4), At(66.4, 25.7), "Mars, 66.4 north");
}

// Every moment of the span at which the Moon stands closest to the Sun or to the point opposite to it, by
// looks every six hours; which of them are eclipses.
TEST(EventScan, Eclipses) {
  const EventSearch search = Span();
  astro_internal::ShadowTrack shadow;
  astro_internal::BodyTrack sun(kSun, nullptr), moon(kMoon, nullptr);
  const auto along = [&](double date) {  // the cosine of the angle between them
    astro_internal::BodyState sunState, moonState;
    EXPECT_TRUE(sun.Get(date, sunState) && moon.Get(date, moonState));
    return Dot(sunState.apparent, moonState.apparent) / Vmod(sunState.apparent, 3) /
           Vmod(moonState.apparent, 3);
  };
  const auto grows = [&](double date) { return along(date + 0.001) - along(date - 0.001); };
  const Changes turns = Looks(grows, search, 0.25);
  std::vector<double> solar, lunar;
  for (const double date : turns.down) {
    const auto elements = shadow.Get(date);
    const auto place = ShadowAt(elements, FindAxisOnEarth(elements).place);
    if (place.apart < place.penumbra) solar.push_back(date);
  }
  for (const double date : turns.up) {
    astro_internal::BodyState sunState, moonState;
    EXPECT_TRUE(sun.Get(date, sunState) && moon.Get(date, moonState));
    if (FindLunarEclipse(sunState.apparent, moonState.apparent).kind != LunarEclipse::kNone)
      lunar.push_back(date);
  }
  ExpectSame(Collect(FindSolarEclipses, search), solar, 0.25, "solar eclipses");
  ExpectSame(Collect(FindLunarEclipses, search), lunar, 0.25, "lunar eclipses");
}

// Mercury and Venus, which the Moon passes in all ways, and Aldebaran.
TEST(EventScan, Occultations) {
  constexpr double kLook = 0.002;  // days
  const EarthPlace place = At(35.0, 139.0);
  const EventSearch search = Span(place);
  StarRecord aldebaran;
  aldebaran.ra = 68.980 * kRadiansPerDegree;
  aldebaran.dec = 16.509 * kRadiansPerDegree;
  const std::vector<OccultationTarget> targets = {{SSO_ID(kPlanetKind, 1), nullptr},
                                                  {SSO_ID(kPlanetKind, 2), nullptr},
                                                  {SSO_ID(FourCC("star"), 1), &aldebaran}};
  const auto events = Collect(FindOccultations, search, targets);
  for (const OccultationTarget& target : targets) {
    astro_internal::PlaceTrack moon(kMoon, nullptr, place), body(target.id, target.data, place);
    const auto outside = [&](double date) {
      PlaceState moonState, bodyState;
      EXPECT_TRUE(moon.Get(date, moonState) && body.Get(date, bodyState));
      // A contact below the horizon is none; the look after it may see the Moon still before the body.
      if (bodyState.altitude < GetRiseAltitude(0.0)) return 1.0;
      const double radius = astro_internal::kMoonPenumbraRadius * kEarthEquatorialRadius / kKilometresPerAu;
      return VectorsAngle(moonState.fromPlace, bodyState.fromPlace) - std::asin(radius / moonState.distance);
    };
    std::vector<SkyEvent> ofBody;
    for (const SkyEvent& event : OfKind(events, EventKind::kOccultationBegins)) {
      if (event.other == target.id) ofBody.push_back(event);
    }
    // What rises behind the Moon is not an event, but the looks see it.
    std::vector<double> begins;
    for (const double date : Looks(outside, search, kLook).down) {
      PlaceState state;
      EXPECT_TRUE(body.Get(date, state));
      if (state.altitude > GetRiseAltitude(0.0) + 0.02) begins.push_back(date);
    }
    std::erase_if(ofBody, [](const SkyEvent& event) { return event.more <= GetRiseAltitude(0.0) + 0.02; });
    ExpectSame(ofBody, begins, kLook, "occultations, 35 north");
  }
}
