// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/interface_c/sky.h"

namespace {

using scene::Fail;

constexpr SceneOption kViewOptions[] = {{"place", "NAME"}, {"zone", "ZONE"}};

int SetZone(const char* zone, SceneSky& sky) {
  sky.camera.SetTimeZoneName(zone, true);
  sky.camera.UpdateLocUTCDeltaFromTimeZone();
  return SCENE_OK;
}

int SetPlaceName(const char* name, SceneSky& sky) {
  sky.camera.SetLocationName(name);
  return SCENE_OK;
}

int SetOption(std::string_view name, const char* value, SceneSky& sky) {
  if (name == "zone") return SetZone(value, sky);
  if (name == "place") return SetPlaceName(value, sky);
  scene::SessionCapsule wanted = sky.options;
  if (scene::SetSessionOption(name, value, wanted)) return sky.TakeOptions(wanted);
  return Fail(sky, SCENE_BAD_ARGUMENT,
              std::string(name) + " '" + value + "': no such option, or no value of it");
}

// False for an unknown name.
bool GetOption(std::string_view name, SceneSky& sky) {
  if (name == "zone") sky.option = sky.camera.GetDisplayTimeZoneName(true);
  if (name == "place") sky.option = sky.camera.GetLocationName();
  return name == "zone" || name == "place" || scene::GetSessionOption(sky.options, name, sky.option);
}

}  // namespace

int scene_set_option(SceneSky* sky, const char* name, const char* value) {
  return scene::Call(sky, [&] {
    if (!name || !value) return Fail(*sky, SCENE_BAD_ARGUMENT, "wants a name and a value");
    return SetOption(name, value, *sky);
  });
}

const char* scene_get_option(SceneSky* sky, const char* name) {
  const int status = scene::Call(sky, [&] {
    if (name && GetOption(name, *sky)) return static_cast<int>(SCENE_OK);
    return Fail(*sky, SCENE_BAD_ARGUMENT, "there is no option of that name");
  });
  return status == SCENE_OK ? sky->option.c_str() : nullptr;
}

int scene_get_options(SceneSky* sky, SceneArray* options) {
  return scene::Call(sky, [&] {
    if (!scene::IsKnown(options))
      return Fail(*sky, SCENE_BAD_ARGUMENT, "the array is null or its size too small");
    scene::List<SceneOption> list;
    for (const auto& option : scene::GetSessionOptions())
      list.records.push_back({option.word, option.values});
    for (const SceneOption& option : kViewOptions) list.records.push_back(option);
    scene::Give(std::move(list), sky->optionList, options);
    return static_cast<int>(SCENE_OK);
  });
}
