// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Draws a saved view with a painter of its own: draw_svg DATA_ROOT OUT.svg
#include <fstream>
#include <iostream>
#include <locale>

#include "common_interfaces/common_interfaces.h"
#include "scene/scene.h"
#include "svg.h"

namespace {

constexpr int kWidth = 1600, kHeight = 1000;

bool Draw(const char* data, const char* picture, std::string& error) {
  scene::SkyCatalogs catalogs;
  if (!scene::OpenDataRoot(data, "", scene::kDefaultLanguage, catalogs, error)) return false;

  CommonInterfaces::Camera camera(1);
  camera.CreateDefault();
  if (!camera.ReadSelf("views:orion.data", 1)) {
    error = "views:orion.data: holds no view 1";
    return false;
  }
  camera.SetWinRect({kWidth, kHeight, kWidth, kHeight});

  const scene::ShownKinds shown;  // everything
  const scene::SkyMarkers markers;
  scene::FrameMaker maker(camera, catalogs, shown, scene::ObjectFilters::None(), markers);
  maker.Prepare();
  maker.Compute();

  const scene::DisplayList& list = maker.GetFrame().GetDisplayList();
  std::ofstream out(picture, std::ios::binary);
  out.imbue(std::locale::classic());
  WriteSvg(list, out);
  if (!out.flush()) {
    error = std::string(picture) + ": cannot be written";
    return false;
  }
  std::cout << list.GetWidth() << " x " << list.GetHeight() << "\n"
            << "points " << list.GetPoints().size() << "\ndiscs " << list.GetDiscs().size() << "\npolylines "
            << list.GetPolylines().size() << "\nellipses " << list.GetEllipses().size() << "\npolygons "
            << list.GetPolygons().size() << "\ngradients " << list.GetGradients().size() << "\ntexts "
            << list.GetTexts().size() << "\n";
  return true;
}

}  // namespace

int main(int argumentCount, char** arguments) {
  if (argumentCount != 3) {
    std::cerr << "usage: draw_svg DATA_ROOT OUT.svg\n";
    return 2;
  }
  std::string error;
  if (Draw(arguments[1], arguments[2], error)) return 0;
  std::cerr << "draw_svg: " << error << "\n";
  return 1;
}
