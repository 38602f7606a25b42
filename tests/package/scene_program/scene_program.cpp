// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The smallest program that computes a frame with the scene of an installed package: scene_program DATA_ROOT
#include <common_interfaces/common_interfaces.h>
#include <scene/scene.h>

#include <cstdio>
#include <string>

int main(int argumentCount, char** arguments) {
  if (argumentCount != 2) return 2;
  scene::SkyCatalogs catalogs;
  std::string error;
  if (!scene::OpenDataRoot(arguments[1], "", scene::kDefaultLanguage, catalogs, error)) {
    std::fprintf(stderr, "scene_program: %s\n", error.c_str());
    return 1;
  }
  CommonInterfaces::Camera camera(1);
  camera.CreateDefault();
  camera.SetWinRect({800, 600, 800, 600});
  if (!camera.ReadSelf("views:orion.data", 1)) return 1;

  const scene::ObserverFrame observer = scene::PrepareObserver(camera);
  scene::SkyFrame frame(catalogs);
  frame.Compute(camera, observer, scene::ShownKinds());
  const auto& list = frame.GetDisplayList();
  const std::size_t records = list.GetPoints().size() + list.GetPolylines().size() + list.GetTexts().size();
  std::printf("stars: %zu, points, lines and texts: %zu\n", frame.GetStars().size(), records);
  return !frame.GetStars().empty() && records > frame.GetStars().size() ? 0 : 1;
}
