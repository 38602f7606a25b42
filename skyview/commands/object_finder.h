// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "common_interfaces/camera.h"
#include "common_interfaces/settings_data.h"
#include "scene/search/object_search.h"
#include "skyview/options/sky_group.h"
#include "skyview/session/diagnostics.h"

namespace skyview {

// The catalogs and the satellites of --tle; those that are lost at the view's moment become diagnostic lines.
// Throws Stop.
void LoadCatalogs(const SatelliteOptions& options, const CommonInterfaces::Camera& camera,
                  scene::CatalogUse use, scene::SkyCatalogs& catalogs);

// Finds the objects that the command line names. Names are read from the catalogs when the first one is asked
// for. `catalogs` is kept by reference.
class ObjectFinder {
 public:
  explicit ObjectFinder(scene::SkyCatalogs& catalogs) : m_Catalogs(catalogs) {}

  // Throws Stop for what is not the name of one object: "ASKER 'NAME': no such object".
  scene::FoundObject Find(const std::string& asker, const std::string& name);
  const scene::ObjectSearch& GetSearch();

 private:
  scene::SkyCatalogs& m_Catalogs;
  std::optional<scene::ObjectSearch> m_Search;
};

// Turns the view to where the object of --look is seen, with or without refraction, when it names one, and
// returns that; one below the horizon becomes a diagnostic line. Throws Stop.
std::optional<scene::FoundObject> AimView(const ViewOptions& options, scene::SkyCatalogs& catalogs,
                                          ObjectFinder& finder, bool refraction,
                                          CommonInterfaces::Camera& camera, Diagnostics& diagnostics);

// Adds the objects of --favourite to the filters. Throws Stop.
void AddFavourites(const SettingsOptions& options, const scene::SkyCatalogs& catalogs, ObjectFinder& finder,
                   CommonInterfaces::SettingsData& settings);

}  // namespace skyview
