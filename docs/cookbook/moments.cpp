// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Recipes about what happens and when.
#include <astro/astro.h>

#include <cstdio>
#include <optional>

#include "recipes.h"

namespace {

void PrintMoment(const char* what, const astro::SkyMoment& moment) {
  CalendarDate date;
  JD(moment.day, moment.fraction, date);
  std::printf("%s %04d-%02d-%02d %02d:%02d\n", what, date.year, date.month, date.day, date.hour, date.minute);
}

}  // namespace

void FindRisings(Kitchen& kitchen) {
  const astro::SkyMoment now = scene::GetMoment(kitchen.camera);
  const astro::EarthPlace place = scene::GetPlace(kitchen.camera);
  CQXSolSys model;
  const auto find =
      astro::MakeBodyFinder(model, SSO_ID(FourCC("plnt"), 6), nullptr, place, astro::RisingPart::kCentre);
  const auto saturn = astro::FindRiseTransitSet(astro::MakeSmoothFinder(find, now), now, 1.0, 1.0 / 24.0);
  if (saturn.rise) PrintMoment("rises", *saturn.rise);  // Universal Time
  if (saturn.transit) PrintMoment("culminates", *saturn.transit);
  if (saturn.set) PrintMoment("sets", *saturn.set);
}

void FindFullMoons(Kitchen& kitchen) {
  astro::EventSearch search;
  search.from = scene::GetMoment(kitchen.camera);
  search.to = scene::Later(search.from, 60.0);
  astro::EventChoice choice;
  choice.kinds = astro::MakeEventKinds({astro::EventKind::kFullMoon, astro::EventKind::kLunarEclipse});
  const bool whole = astro::FindEvents(search, choice, [](const astro::SkyEvent& event) {
    PrintMoment(event.kind == astro::EventKind::kFullMoon ? "full moon" : "lunar eclipse", event.moment);
  });
  if (!whole) std::printf("outside the range of the theories\n");
}

void ChooseForTonight(Kitchen& kitchen) {
  const astro::EarthPlace place = scene::GetPlace(kitchen.camera);
  const auto plan = scene::MakeNightPlan(scene::GetMoment(kitchen.camera), place);
  if (!plan || plan->darkness == scene::Darkness::kNone) return;
  PrintMoment("dark from", plan->dark.begin);
  PrintMoment("dark to", plan->dark.end);
  const scene::ObjectSearch search(kitchen.catalogs);
  constexpr double kBinoculars = 50.0;  // aperture, mm
  for (const scene::NightObject& object :
       scene::FindBestObjects(*plan, place, kitchen.catalogs, kBinoculars, 3)) {
    std::printf("%s, %.0f degrees high\n", search.GetName(object.object).c_str(),
                object.best.altitude / scene::kRadiansPerDegree);
  }
}

// The libraries run on their caller's threads and take no locks. What a header says every thread may call
// works beside a frame; catalogs and frames belong to one thread.
void WorkBesideTheFrame(Kitchen& kitchen) {
  struct Night : thread::Runnable {
    astro::SkyMoment moment;
    astro::EarthPlace place;
    std::optional<scene::NightPlan> plan;
    void run() override { plan = scene::MakeNightPlan(moment, place); }
  } night;
  night.moment = scene::GetMoment(kitchen.camera);
  night.place = scene::GetPlace(kitchen.camera);
  thread::Thread worker(&night);
  worker.start();

  const scene::ShownKinds shown;
  const scene::SkyMarkers markers;
  scene::FrameMaker maker(kitchen.camera, kitchen.catalogs, shown, scene::ObjectFilters::None(), markers);
  maker.Prepare();
  maker.Compute();
  worker.waitForEnd();
  std::printf("%zu stars\n", maker.GetFrame().GetStars().size());
  if (night.plan && night.plan->sun.rise) PrintMoment("sunrise", *night.plan->sun.rise);
}
