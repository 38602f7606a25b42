// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/object_finder.h"

#include "scene/favourites.h"
#include "scene/satellites.h"
#include "skyview/commands/start.h"
#include "skyview/session/view_state.h"

namespace skyview {
namespace {

void AddSatellites(const std::string& file, const CommonInterfaces::Camera& camera, scene::BodyList& bodies) {
  const std::string path = ResolveInput(file);
  Require(!path.empty(), "--tle: " + file + ": not found, neither here nor in the data root");
  std::string error;
  const bool loaded = scene::LoadSatellites(path, bodies, error);
  Require(loaded, "--tle: " + error);
  scene::ReportLostSatellites(bodies, scene::GetMoment(camera));
}

}  // namespace

void LoadCatalogs(const SatelliteOptions& options, const CommonInterfaces::Camera& camera,
                  scene::SkyCatalogs& catalogs) {
  std::string error;
  Require(scene::LoadSkyCatalogs(catalogs, error), error);
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

void AddFavourites(const SettingsOptions& options, const scene::SkyCatalogs& catalogs, ObjectFinder& finder,
                   CommonInterfaces::SettingsData& settings) {
  for (const auto& name : options.favourites) {
    const scene::FoundObject object = finder.Find("--favourite", name);
    scene::AddFavourite(settings, scene::GetKind(object, catalogs), scene::GetNumber(object, catalogs));
  }
}

}  // namespace skyview
