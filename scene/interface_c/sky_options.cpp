// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the sky is shown with besides its settings.
#include <algorithm>

#include "scene/frame/image_groups.h"
#include "scene/interface_c/sky.h"
#include "scene/session/orbit_request.h"

void SceneSky::ReadSettings() {
  shown = scene::ReadShownKinds(settings);
  shown.naturalSky = !options.plainSky;
  shown.darkness = options.chart.GetDarkness();
  scene::SetChartStyle(options.chart.GetStyle(), shown);
  filters.Refresh(settings);
  camera.FillMagCorrectionsVector(&settings);
}

void SceneSky::MakeFrame() {
  maker.emplace(camera, catalogs, shown, filters, markers);
  maker->Prepare();
  SetUpFrame();
}

void SceneSky::SetUpFrame() {
  scene::SkyFrame& frame = maker->GetFrame();
  frame.SetFavourites(marks);
  frame.SetLandscape(landscape);
  frame.SetFinders(options.chart.MakeFinders());
  frame.ShowLegend(options.chart.HasLegend());
  frame.SetShowers(options.showers ? GetShowers() : std::vector<scene::Shower>());
  frame.SetImageFrames(options.framesOf);
  for (const int body : orbits) frame.ShowOrbit(body, 0.0);
}

// The default landscape can be done without.
bool SceneSky::FindLandscape(const scene::SessionCapsule& wanted, scene::Landscape& found) {
  const int choice = wanted.chart.landscape.value_or(scene::kDefaultLandscape);
  return choice == scene::kNoLandscape || scene::LoadLandscape(camera.GetObserver(), choice, found, error);
}

bool SceneSky::FindOrbits(const scene::SessionCapsule& wanted, std::vector<int>& found) {
  const auto request = scene::ParseOrbits(wanted.orbits);
  if (!request) return true;  // no orbits
  auto bodies = scene::FindOrbitBodies(*request, catalogs.bodies, GetSearch(), error);
  if (bodies) found = std::move(*bodies);
  return bodies.has_value();
}

int SceneSky::TakeOptions(scene::SessionCapsule wanted) {
  scene::Landscape ground;
  std::vector<int> paths;
  if (!FindLandscape(wanted, ground) || !FindOrbits(wanted, paths)) return SCENE_BAD_ARGUMENT;
  if (const auto missing = maker->GetFrame().SetImageFrames(wanted.framesOf)) {
    maker->GetFrame().SetImageFrames(options.framesOf);
    return scene::Fail(*this, SCENE_BAD_DATA,
                       std::string(scene::GetImageCatalogName(*missing)) + ": not found");
  }
  options = std::move(wanted);
  landscape = std::move(ground);
  const bool isSame = std::equal(paths.begin(), paths.end(), orbits.begin(), orbits.end());
  orbits = std::move(paths);
  ReadSettings();
  if (isSame) {
    SetUpFrame();
  } else {
    MakeFrame();  // an orbit cannot be switched off
  }
  return SCENE_OK;
}

double SceneSky::FindSkyline(const scene::Direction& standing) const {
  return std::max(0.0, landscape.GetSkyline(standing));
}
