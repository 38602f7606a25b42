// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cstddef>
#include <vector>

#include "scene/interface_c/sky.h"

namespace {

template <class Record>
SceneArray Describe(const std::vector<Record>& records) {
  return {0, static_cast<uint32_t>(records.size()), sizeof(Record), records.data()};
}

std::optional<SceneArray> FindArray(const scene::DisplayList& list, int32_t kind) {
  switch (kind) {
    case SCENE_POINTS:
      return Describe(list.GetPoints());
    case SCENE_DISCS:
      return Describe(list.GetDiscs());
    case SCENE_SHADOWS:
      return Describe(list.GetShadows());
    case SCENE_POLYLINES:
      return Describe(list.GetPolylines());
    case SCENE_ELLIPSES:
      return Describe(list.GetEllipses());
    case SCENE_POLYGONS:
      return Describe(list.GetPolygons());
    case SCENE_GRADIENTS:
      return Describe(list.GetGradients());
    case SCENE_TEXTS:
      return Describe(list.GetTexts());
    case SCENE_MESHES:
      return Describe(list.GetMeshes());
    case SCENE_GLOBES:
      return Describe(list.GetGlobes());
    case SCENE_RUNS:
      return Describe(list.GetRuns());
    case SCENE_RINGS:
      return Describe(list.GetRings());
    case SCENE_VERTICES:
      return Describe(list.GetVertices());
    case SCENE_COLOURS:
      return Describe(list.GetColours());
    case SCENE_TEXT_BYTES:
      return Describe(list.GetTextBytes());
    default:
      return std::nullopt;
  }
}

}  // namespace

int scene_compute(SceneSky* sky) {
  return scene::Call(sky, [&] {
    if (const char* const fault = sky->FindFault())
      return scene::Fail(*sky, SCENE_BAD_DATA, std::string("the view ") + fault);
    sky->maker->Prepare();
    sky->maker->Compute();
    return static_cast<int>(SCENE_OK);
  });
}

int scene_get_array(SceneSky* sky, int32_t kind, SceneArray* array) {
  return scene::Call(sky, [&] {
    if (!scene::IsKnown(array))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the array is null or its size too small");
    const auto found = FindArray(sky->maker->GetFrame().GetDisplayList(), kind);
    if (!found) return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "there is no such array");
    scene::Give(*found, array);
    return static_cast<int>(SCENE_OK);
  });
}

const char* scene_get_map(SceneSky* sky, int32_t index) {
  if (!sky || !sky->isOpen) return nullptr;
  const auto& maps = sky->maker->GetFrame().GetDisplayList().GetMaps();
  return index >= 0 && static_cast<std::size_t>(index) < maps.size()
             ? maps[static_cast<std::size_t>(index)].c_str()
             : nullptr;
}
