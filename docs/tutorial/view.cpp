// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Restores a saved view and lists the ten brightest stars in it: tutorial_view DATA_ROOT
#include <common_interfaces/common_interfaces.h>
#include <scene/scene.h>

#include <cmath>
#include <cstdio>
#include <string>

namespace {

void PrintStars(const scene::SkyFrame& frame) {
  const scene::StarCatalog& catalog = frame.GetCatalogs().stars;
  int listed = 0;
  for (const scene::DrawnStar& star : frame.GetStars()) {  // the brightest first
    if (star.star < 0 || ++listed > 10) continue;          // -1: a star of a tile catalog, without a name
    const CommonInterfaces::ScreenPlace& place = star.output->m_Place;
    std::printf("%-12s %5.2f  %4ld %4ld\n", catalog.GetLabel(star.star),
                scene::MagnitudeOfCode(catalog.GetCode(star.star)), std::lround(place.x),
                std::lround(static_cast<float>(frame.GetHeight()) - place.y));
  }
}

bool ListStars(const char* data, std::string& error) {
  scene::SkyCatalogs catalogs;
  if (!scene::OpenDataRoot(data, "", "en", catalogs, error)) return false;
  CommonInterfaces::Camera camera(1);
  camera.CreateDefault();                       // the shipped defaults
  camera.ReadSelf("views:orion.data", 1);       // a saved view over them; false: nothing has changed
  camera.SetWinRect({1600, 1000, 1600, 1000});  // behind the view: makes the scale of window and zoom

  const scene::ShownKinds shown;    // everything
  const scene::SkyMarkers markers;  // none
  scene::FrameMaker maker(camera, catalogs, shown, scene::ObjectFilters::None(), markers);
  maker.Prepare();  // place and time to matrices
  maker.Compute();  // what stands where
  PrintStars(maker.GetFrame());
  return true;
}

}  // namespace

int main(int argumentCount, char** arguments) {
  if (argumentCount != 2) {
    std::fprintf(stderr, "usage: tutorial_view DATA_ROOT\n");
    return 2;
  }
  std::string error;
  if (ListStars(arguments[1], error)) return 0;
  std::fprintf(stderr, "tutorial_view: %s\n", error.c_str());
  return 1;
}
