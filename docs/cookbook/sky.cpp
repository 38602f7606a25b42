// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Recipes about what is seen.
#include <cmath>
#include <cstdio>
#include <string>

#include "recipes.h"

void ListWhatIsVisible(Kitchen& kitchen) {
  const scene::ShownKinds shown;
  const scene::SkyMarkers markers;
  scene::FrameMaker maker(kitchen.camera, kitchen.catalogs, shown, scene::ObjectFilters::None(), markers);
  maker.Prepare();
  maker.Compute();
  const scene::SkyFrame& frame = maker.GetFrame();
  std::printf("%zu stars, %zu deep-sky objects\n", frame.GetStars().size(), frame.GetDeepsky().size());
  const scene::BodyList& bodies = kitchen.catalogs.bodies;
  for (int body = 0; body < static_cast<int>(bodies.size()); ++body) {
    if (!frame.IsBodyDrawn(body)) continue;
    const scene::BodyState& state = frame.GetBodies().GetStates()[static_cast<std::size_t>(body)];
    std::printf("%s, magnitude %.1f\n", scene::GetBodyLabel(bodies[static_cast<std::size_t>(body)]).c_str(),
                state.seen.magnitude);
  }
}

void SayWhyNot(Kitchen& kitchen) {
  CommonInterfaces::SettingsData settings(1, FourCC("FLTR"), "filters.data");
  settings.Read(nullptr);
  const scene::ShownKinds shown = scene::ReadShownKinds(settings);
  scene::ObjectFilters filters;
  filters.Refresh(settings);
  const scene::SkyMarkers markers;
  scene::FrameMaker maker(kitchen.camera, kitchen.catalogs, shown, filters, markers);
  maker.Prepare();
  maker.Compute();
  std::string error;
  const auto object = scene::ObjectSearch(kitchen.catalogs).FindOne("Vega", error);
  if (!object) return;
  const scene::Explanation why = scene::Explain(
      *object, {maker.GetFrame(), kitchen.camera, maker.GetObserver(), shown, filters, settings});
  if (why.obstacles & scene::kBelowHorizon)
    std::printf("below the horizon, at %.1f degrees\n", why.standing.altitude);
  if (why.obstacles & scene::kTooFaint) std::printf("too faint\n");
  if (why.obstacles & scene::kOutside) std::printf("outside, %.0f degrees from the centre\n", why.fromCentre);
}

void LiftByTheAir(Kitchen& kitchen) {
  scene::ShownKinds shown;
  const scene::SkyMarkers markers;
  for (const bool air : {false, true}) {
    shown.refraction = air;  // read anew at each Prepare; on by default
    scene::FrameMaker maker(kitchen.camera, kitchen.catalogs, shown, scene::ObjectFilters::None(), markers);
    maker.Prepare();
    const scene::Direction tenDegreesHigh = scene::MakeDirection(0.0, 10.0 * scene::kRadiansPerDegree);
    const scene::Direction seen =
        maker.GetObserver().refraction ? scene::Lifted(tenDegreesHigh) : tenDegreesHigh;
    std::printf("10 degrees are seen at %.3f\n", std::asin(seen.v[2]) / scene::kRadiansPerDegree);
  }
}

void FindWhatWasClicked(Kitchen& kitchen) {
  const scene::ShownKinds shown;
  const scene::SkyMarkers markers;
  scene::FrameMaker maker(kitchen.camera, kitchen.catalogs, shown, scene::ObjectFilters::None(), markers);
  maker.Prepare();
  maker.Compute();
  const scene::DisplayList& onScreen = maker.GetFrame().GetDisplayList();
  const scene::ObjectSearch search(kitchen.catalogs);
  for (const scene::Hit& hit :
       scene::PickObjects(onScreen, 740.0, 91.0, 4.0)) {  // what lies on top comes first
    const auto object = scene::FindObject(hit.object, kitchen.catalogs);
    if (object) std::printf("%s, %.1f pixels away\n", search.GetTitle(*object).c_str(), hit.distance);
  }
}

void MarkAPlace(Kitchen& kitchen) {
  scene::SkyMarkers markers;
  scene::SkyMark mark;
  mark.ra = 83.82;  // degrees, J2000
  mark.dec = -5.39;
  markers.Add(mark, kitchen.camera);
  const scene::ShownKinds shown;
  scene::FrameMaker maker(kitchen.camera, kitchen.catalogs, shown, scene::ObjectFilters::None(), markers);
  maker.Prepare();  // places the camera's markers
  for (const CommonInterfaces::MARKER_INFO& marker : *kitchen.camera.GetOIMarkerList()) {
    std::printf("marker %d at %d, %d\n", marker.id, marker.x, marker.y);
  }
}
