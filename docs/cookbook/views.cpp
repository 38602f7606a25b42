// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Recipes about the camera.
#include <cmath>
#include <cstdio>
#include <string>

#include "recipes.h"

void Aim(Kitchen& kitchen) {
  const scene::ObjectSearch search(kitchen.catalogs);
  std::string error;
  const auto object = search.FindOne("Betelgeuse", error);
  if (!object) return void(std::printf("%s\n", error.c_str()));  // similar names, or the candidates
  const auto standing = scene::AimAt(*object, kitchen.catalogs, kitchen.camera);
  if (!standing) return;  // nobody can tell where it is then
  kitchen.camera.SetZoom(10.0);
  std::printf("%s\nazimuth %.2f, altitude %.2f\n", search.GetTitle(*object).c_str(), standing->azimuth,
              standing->altitude);
}

void FindWhereAPixelLooks(Kitchen& kitchen) {
  scene::PrepareObserver(kitchen.camera);  // matrices for place and time
  double longitude, latitude, ra, dec;
  kitchen.camera.Pix2RA_Dec({868, 366}, longitude,
                            latitude);  // y from the top; the angles that views count in
  kitchen.camera.RADec_RADec2K(longitude, latitude, &ra, &dec);
  std::printf("RA %.2f, Dec %.2f\n", ra / scene::kRadiansPerDegree, dec / scene::kRadiansPerDegree);
}

void FollowAPlanet(Kitchen& kitchen) {
  const scene::ObjectSearch search(kitchen.catalogs);
  std::string error;
  const auto jupiter = search.FindOne("Jupiter", error);
  CommonInterfaces::_Date date;
  kitchen.camera.GetUniversalTime(date);
  for (int hour = 0; jupiter && hour < 4; ++hour) {
    const auto standing = scene::AimAt(*jupiter, kitchen.catalogs, kitchen.camera);  // once a frame
    if (standing) std::printf("azimuth %6.2f, altitude %5.2f\n", standing->azimuth, standing->altitude);
    date.fraction += 1.0 / 24.0;
    kitchen.camera.SetUniversalTime(date);
  }
}

void KeepTheView(Kitchen& kitchen) {
  kitchen.camera.SetZoom(3.0);
  if (!kitchen.camera.SaveSelfAll("last_view.data", 1)) return;  // a line has said why; the old file is whole

  CommonInterfaces::Camera restarted(1);
  restarted.CreateDefault();
  if (!restarted.ReadSelf("last_view.data", 1)) restarted.ReadSelf("views:orion.data", 1);  // the first start
  restarted.SetWinRect({1600, 1000, 1600, 1000});
  std::printf("zoom %.1f, latitude %.1f\n", restarted.GetZoom(),
              restarted.GetLocation().lat / scene::kRadiansPerDegree);
}

void RunTwoCameras(Kitchen& kitchen) {
  CommonInterfaces::Camera finder(2);
  finder = kitchen.camera;  // everything but the settings object
  finder.SetWinRect({400, 400, 400, 400});
  finder.SetZoom(8.0);
  const scene::ShownKinds shown;
  const scene::SkyMarkers markers;
  const auto& all = scene::ObjectFilters::None();
  // One set of catalogs serves both; everything is used from one thread.
  scene::FrameMaker large(kitchen.camera, kitchen.catalogs, shown, all, markers);
  scene::FrameMaker small(finder, kitchen.catalogs, shown, all, markers);
  for (scene::FrameMaker* maker : {&large, &small}) {
    maker->Prepare();
    maker->Compute();
    const scene::SkyFrame& frame = maker->GetFrame();
    std::printf("%d x %d: %zu stars\n", frame.GetWidth(), frame.GetHeight(), frame.GetStars().size());
  }
}
