// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/object_finder.h"

#include "scene/catalogs/satellites.h"
#include "skyview/commands/start.h"
#include "skyview/session/favourites.h"
#include "skyview/session/view_state.h"

namespace skyview {
namespace {

void AddSatellites(const std::string& file, const CommonInterfaces::Camera& camera, BodyList& bodies) {
  const std::string path = ResolveInput(file);
  Require(!path.empty(), "--tle: " + file + ": not found, neither here nor in the data root");
  std::string error;
  const bool loaded = LoadSatellites(path, bodies, error);
  Require(loaded, "--tle: " + error);
  ReportLostSatellites(bodies, GetMoment(camera));
}

}  // namespace

void LoadCatalogs(const SatelliteOptions& options, const CommonInterfaces::Camera& camera,
                  SkyCatalogs& catalogs) {
  std::string error;
  Require(LoadSkyCatalogs(catalogs, error), error);
  if (options.tle) AddSatellites(*options.tle, camera, catalogs.bodies);
}

FoundObject ObjectFinder::Find(const std::string& asker, const std::string& name) {
  std::string error;
  const auto found = GetSearch().FindOne(name, error);
  Require(found.has_value(), asker + " " + error);
  return *found;
}

const ObjectSearch& ObjectFinder::GetSearch() {
  if (!m_Search) m_Search.emplace(m_Catalogs);
  return *m_Search;
}

void AddFavourites(const SettingsOptions& options, const SkyCatalogs& catalogs, ObjectFinder& finder,
                   CommonInterfaces::SettingsData& settings) {
  for (const auto& name : options.favourites) {
    const FoundObject object = finder.Find("--favourite", name);
    AddFavourite(settings, GetKind(object, catalogs), GetNumber(object, catalogs));
  }
}

}  // namespace skyview
