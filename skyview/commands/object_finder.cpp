// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/object_finder.h"

#include <filesystem>

#include "scene/catalogs/satellites.h"
#include "scene/search/aim.h"
#include "scene/view/base_plane.h"
#include "scene/visibility/favourites.h"
#include "skyview/commands/start.h"
#include "skyview/options/stop.h"
#include "skyview/session/view_state.h"
#include "utils/messages.h"

namespace skyview {
namespace {

void AddSatellites(const std::string& file, const CommonInterfaces::Camera& camera, scene::BodyList& bodies) {
  const std::string path = ResolveInput(file);
  Require(!path.empty(), "--tle: " + file + ": not found, neither here nor in the data root");
  std::string error;
  const bool loaded = scene::LoadSatellites(path, bodies, error);
  Require(loaded, "--tle: " + error);
  const std::string name = std::filesystem::path(path).filename().string();
  scene::ReportLostSatellites(name, bodies, scene::GetMoment(camera));
}

}  // namespace

void LoadCatalogs(const SatelliteOptions& options, const CommonInterfaces::Camera& camera,
                  scene::CatalogUse use, scene::SkyCatalogs& catalogs) {
  std::string error;
  Require(scene::LoadSkyCatalogs(catalogs, error, use), error);
  if (options.tle) AddSatellites(*options.tle, camera, catalogs.bodies);
}

scene::FoundObject ObjectFinder::Find(const std::string& asker, const std::string& name) {
  std::string error;
  const auto found = GetSearch().FindOne(name, error);
  Require(found.has_value(), asker + " " + error);
  return *found;
}

const scene::ObjectSearch& ObjectFinder::GetSearch() {
  if (!m_Search) m_Search.emplace(m_Catalogs);
  return *m_Search;
}

std::optional<scene::FoundObject> AimView(const ViewOptions& options, scene::SkyCatalogs& catalogs,
                                          ObjectFinder& finder, bool refraction,
                                          CommonInterfaces::Camera& camera, Diagnostics& diagnostics) {
  if (!options.aim) return std::nullopt;
  const std::string asked = "--look '" + options.aim->name + "': ";
  const scene::FoundObject object = finder.Find("--look", options.aim->name);
  if (!scene::IsNearSurface(camera))
    throw Stop{kBadOption, asked + "wants an observer near the Earth's surface (moving type 0 or 1)"};
  const auto there = scene::AimAt(object, catalogs, camera, refraction);
  Require(there.has_value(), asked + "nobody can tell where it is at that moment");
  if (there->altitude < 0.0)
    diagnostics.lines.push_back(asked +
                                FormatText("below the horizon, altitude %.1f\u00B0\n", there->altitude));
  return object;
}

void AddFavourites(const SettingsOptions& options, const scene::SkyCatalogs& catalogs, ObjectFinder& finder,
                   CommonInterfaces::SettingsData& settings) {
  for (const auto& name : options.favourites) {
    const scene::FoundObject object = finder.Find("--favourite", name);
    scene::AddFavourite(settings, scene::GetKind(object, catalogs), scene::GetNumber(object, catalogs));
  }
}

}  // namespace skyview
