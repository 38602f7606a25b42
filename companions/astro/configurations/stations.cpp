// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>

#include "astro/planet_events.h"
#include "companions/astro/configurations/planet_and_sun.h"

namespace astro {

namespace {

using namespace astro_internal;

// What the right ascension changes in a tenth of a day. Mercury's rate is even over that time to a second of
// the moment at which it is zero.
double RightAscensionRate(PlanetAndSun& pair, double date) {
  constexpr double kHalfInterval = 0.05;
  return std::remainder(pair.OnEquator(kThePlanet, date + kHalfInterval).lon -
                            pair.OnEquator(kThePlanet, date - kHalfInterval).lon,
                        kTurn);
}

}  // namespace

bool FindStations(const EventSearch& search, const SSO_ID& planet, const EventSink& sink) {
  return SearchPlanet(search, planet, [&](PlanetAndSun& pair, double from, double to) {
    const auto rate = [&pair](double date) { return RightAscensionRate(pair, date); };
    FindDates(from, to, StepFor(planet), rate, [&](double date, bool rises) {
      SkyEvent event =
          MakePlanetEvent(rises ? EventKind::kStationDirect : EventKind::kStationRetrograde, date, planet);
      const double rightAscension = pair.OnEquator(kThePlanet, date).lon;
      event.value = rightAscension < 0.0 ? rightAscension + kTurn : rightAscension;
      sink(event);
    });
  });
}

}  // namespace astro
