// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Passes of satellites that go round about as fast as the Earth turns: they last for days, or do not end.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "astro/satellite_passes.h"
#include "companions/astro/events/pass_track.h"
#include "tests/astro/helpers/known_orbits.h"
#include "tests/astro/helpers/midnight.h"

namespace {

using astro::EventSearch;
using astro::FindPasses;
using astro::SatellitePass;
using astro::SatelliteTarget;

constexpr double kSiderealDay = 1436.068;  // minutes
const SSO_ID kId(FourCC("scft"), 1);

// Nearly a circle above the equator, from 2006 September 20 on.
OrbitalElements FarOut(double minutes) {
  OrbitalElements elements = astro_test::Vanguard();
  elements.epoch = 2453998.5;
  elements.n = astro::kTurn / minutes;
  elements.e = 0.0005;
  elements.i = 0.1 * astro::kRadiansPerDegree;
  elements.dragTerm = elements.meanMotionDot = elements.meanMotionDotDot = 0.0;
  return elements;
}

EventSearch Days(int first, int count, double longitude) {
  const astro::SkyMoment from = astro::MakeMoment(2453999 + first, 0.0);
  return {from, astro::Later(from, count), astro_test::At(5.0, longitude)};
}

}  // namespace

// It drifts by half a degree a day and sways a little: each day it culminates, and never sets.
TEST(LongPasses, WhatDoesNotSetHasNone) {
  const OrbitalElements elements = FarOut(kSiderealDay - 2.0);
  int above = 0;
  for (double longitude = -180.0; longitude < 180.0; longitude += 30.0) {
    const EventSearch search = Days(0, 10, longitude);
    astro_internal::PassTrack track(elements, *search.place, search);
    const double day = track.DayOf(search.from);
    if (!(track.Altitude(day - 3.0) > 0.3 && track.Altitude(day + 13.0) > 0.3)) continue;
    ++above;
    EXPECT_TRUE(
        FindPasses(search, {kId, &elements}, {}, [&](const SatellitePass&) { ADD_FAILURE() << longitude; }));
  }
  EXPECT_GE(above, 2);
}

// Up for three days and a half, about the equinox, and in the shadow once a revolution.
TEST(LongPasses, OfSeveralShadowsTheFirstCounts) {
  const OrbitalElements elements = FarOut(1273.0);
  constexpr double kLook = 0.01;  // days; the shadow lasts an hour
  int several = 0;
  for (double longitude = -180.0; longitude < 180.0; longitude += 60.0) {
    const EventSearch search = Days(0, 8, longitude);
    astro_internal::PassTrack track(elements, *search.place, search);
    FindPasses(search, {kId, &elements}, {}, [&](const SatellitePass& pass) {
      const double rise = track.DayOf(pass.rise.moment), set = track.DayOf(pass.set.moment);
      std::vector<double> into;
      for (double day = rise; day < set; day += kLook) {
        if (track.LightMargin(day) >= 0.0 && track.LightMargin(day + kLook) < 0.0) into.push_back(day);
      }
      if (into.size() < 3u || !pass.intoShadow) return;
      ++several;
      // Its looks at so long a pass may miss one.
      const double found = track.DayOf(pass.intoShadow->moment);
      EXPECT_LT(found, into[1] + 2.0 * kLook);
    });
  }
  EXPECT_GE(several, 3);
}

// 200 years after the epoch nobody can tell any more: what is up then has no end.
TEST(LongPasses, OneThatOutlastsTheModelIsNone) {
  const OrbitalElements elements = FarOut(720.0);
  const SatelliteTarget target = {kId, &elements};
  int passes = 0;
  for (double longitude = -180.0; longitude < 180.0; longitude += 15.0) {
    const EventSearch search = Days(73048, 4, longitude);
    astro_internal::PassTrack track(elements, *search.place, search);
    EXPECT_FALSE(FindPasses(search, target, {}, [&](const SatellitePass& pass) {
      ++passes;
      EXPECT_TRUE(std::isfinite(track.Altitude(track.DayOf(pass.set.moment) + 1e-6)));
      EXPECT_LE(track.DayOf(pass.set.moment), 73050.0);
    }));
  }
  EXPECT_GT(passes, 5);
}
