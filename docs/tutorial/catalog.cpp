// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Shows stars that were imported and marks of a table of its own: tutorial_catalog DATA_ROOT WORK
#include <common_interfaces/common_interfaces.h>
#include <scene/scene.h>
#include <utils/utils.h>

#include <cmath>
#include <cstdio>
#include <string>

namespace {

constexpr int kWidth = 1600, kHeight = 1000;

// The stars of the catalogs that have no names, by the numbers that the import gave them.
void PrintImported(const scene::SkyFrame& frame) {
  for (const scene::DrawnStar& star : frame.GetStars()) {
    if (star.star >= 0 || star.number < 100000000) continue;
    const CommonInterfaces::ScreenPlace& place = star.output->m_Place;
    std::printf("%-16s %4ld %4ld\n", scene::GetTileStarName(star.number).c_str(), std::lround(place.x),
                std::lround(kHeight - place.y));
  }
}

// A table of the work area, which the scene knows nothing of.
bool PrintTable(const scene::ObserverFrame& observer, const CommonInterfaces::Camera& camera,
                std::string& error) {
  const std::string path = ZentharPath::GetPath("catalogs:targets.txt");
  scene::CatalogTable table;
  if (!table.Load(path.c_str())) {
    error = table.GetError();
    return false;
  }
  for (int record = 0; record < table.GetCount(); ++record) {
    table.Select(record);
    const scene::Direction there = scene::MakeDirection(table.GetNumber(GetUniqueID("RA"), 0.0),
                                                        table.GetNumber(GetUniqueID("Dec"), 0.0));
    tPoint<double> pixel;  // y upwards
    camera.RA_Dec2K2PixD(scene::ApparentDirection(there, observer).v, &pixel);
    std::printf("%-16s %4ld %4ld\n", table.GetText(GetUniqueID("Title")), std::lround(pixel.x),
                std::lround(kHeight - pixel.y));
  }
  return true;
}

bool Run(const char* data, const char* work, std::string& error) {
  scene::SkyCatalogs catalogs;
  if (!scene::OpenDataRoot(data, work, "en", catalogs, error)) return false;
  CommonInterfaces::Camera camera(1);
  camera.CreateDefault();
  camera.ReadSelf("views:pleiades.data", 1);
  camera.SetWinRect({kWidth, kHeight, kWidth, kHeight});

  const scene::ShownKinds shown;
  const scene::SkyMarkers markers;
  scene::FrameMaker maker(camera, catalogs, shown, scene::ObjectFilters::None(), markers);
  maker.Prepare();
  maker.Compute();
  PrintImported(maker.GetFrame());
  return PrintTable(maker.GetObserver(), camera, error);
}

}  // namespace

int main(int argumentCount, char** arguments) {
  if (argumentCount != 3) {
    std::fprintf(stderr, "usage: tutorial_catalog DATA_ROOT WORK\n");
    return 2;
  }
  std::string error;
  if (Run(arguments[1], arguments[2], error)) return 0;
  std::fprintf(stderr, "tutorial_catalog: %s\n", error.c_str());
  return 1;
}
