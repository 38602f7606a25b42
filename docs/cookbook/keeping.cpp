// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Recipes about settings and catalogs.
#include <cstdio>
#include <fstream>
#include <string>

#include "recipes.h"

void ReadSettings(Kitchen&) {
  CommonInterfaces::SettingsData settings(1, FourCC("FLTR"), "filters.data");
  if (!settings.Read(nullptr)) return;  // null: the defaults alone; a name: the user's values over them
  float range[2] = {};
  settings.SetCurSection(FourCC("star"));
  if (settings.GetField("VisMagnitude", range)) std::printf("stars from %.0f to %.0f\n", range[0], range[1]);
  unsigned char grid = 0;
  settings.SetCurSection(FourCC("grid"));
  if (settings.GetFieldElement(GetUniqueID("RADecGrid"), &grid, 0)) std::printf("grid %d\n", grid);
}

void FilterTheSky(Kitchen& kitchen) {
  CommonInterfaces::SettingsData settings(1, FourCC("FLTR"), "filters.data");
  settings.Read(nullptr);
  scene::ObjectFilters filters;
  scene::ShownKinds shown;
  const scene::SkyMarkers markers;
  scene::FrameMaker maker(kitchen.camera, kitchen.catalogs, shown, filters, markers);
  std::string error;
  for (const char* change : {"star.VisMagnitude=-2,2:on", "star.VisMagnitude:off", "star.Draw=0"}) {
    if (!scene::ChangeSetting(change, settings, error)) return void(std::printf("%s\n", error.c_str()));
    shown = scene::ReadShownKinds(settings);
    filters.Refresh(settings);  // what has changed, and only that
    maker.Prepare();
    maker.Compute();
    std::printf("%-26s %zu stars\n", change, maker.GetFrame().GetStars().size());
  }
}

void ReadACatalog(Kitchen& kitchen) {
  // Any file of that form: a header that names columns and their types, cells between tabs, UTF-8.
  const std::string path = ZentharPath::GetWorkPath("catalogs:novae.txt");
  std::ofstream(path, std::ios::binary) << "Title:text\tRA:f64\tDec:f64\tVisMagnitude:f32\n"
                                           "V1405 Cas\t6.1218\t1.0678\t7.7\n"
                                           "V603 Aql\t4.9427\t0.0102\t\n";  // no magnitude is known
  scene::CatalogTable table;
  if (!table.Load(path.c_str())) return void(std::printf("%s\n", table.GetError().c_str()));
  const scene::ObserverFrame observer = scene::PrepareObserver(kitchen.camera);
  for (int record = 0; record < table.GetCount(); ++record) {
    table.Select(record);
    const double ra = table.GetNumber(GetUniqueID("RA"), 0.0), dec = table.GetNumber(GetUniqueID("Dec"), 0.0);
    const auto standing =
        scene::FindStanding(scene::ApparentDirection(scene::MakeDirection(ra, dec), observer), observer);
    std::printf("%s, magnitude %.1f, altitude %.1f\n", table.GetText(GetUniqueID("Title")),
                table.GetNumber(GetUniqueID("VisMagnitude"), 99.0), standing.altitude);
  }
}
