// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Everything that happens in a year: a different one each time, at another place.
#include <benchmark/benchmark.h>

#include "astro/constants.h"
#include "astro/find_events.h"

namespace {

void YearOfEvents(benchmark::State& state) {
  astro::EventChoice choice;
  choice.kinds = astro::GetFoundKinds();
  int year = 0;
  for (auto _ : state) {
    const astro::SkyMoment from = astro::Later(astro::MakeMoment(2440000, 0.0), 365.25 * year);
    const astro::EarthPlace place = {0.1 * year, astro::kRadiansPerDegree * (50 - year % 100), 0.0};
    int events = 0;
    benchmark::DoNotOptimize(astro::FindEvents({from, astro::Later(from, 365.25), place}, choice,
                                               [&events](const astro::SkyEvent&) { ++events; }));
    benchmark::DoNotOptimize(events);
    ++year;
  }
  state.SetItemsProcessed(state.iterations());
}

}  // namespace

BENCHMARK(YearOfEvents)->Unit(benchmark::kMillisecond);
