// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/interface_c/sky.h"
#include "scene/session/session_state.h"
#include "utils/debug.h"

namespace {

using CommonInterfaces::Camera;
using CommonInterfaces::SettingsData;

void Print(const std::vector<std::string>& lines) {
  for (const auto& line : lines) PrintDebugString("%s\n", line.c_str());
}

// The camera of the session with the window that there is. False, with a line, when it cannot be drawn: the
// camera is then of no use.
bool TakeCamera(const scene::SessionCapsule& capsule, std::vector<std::string>& lost, SceneSky& sky) {
  Camera& camera = sky.camera;
  const tPoint<int> window = camera.GetWinSize();
  if (!scene::RestoreCamera(capsule, camera, lost, sky.error)) return false;
  camera.SetWinRect({window.x, window.y, window.x, window.y});
  camera.UpdateLocUTCDeltaFromTimeZone();
  const char* const fault = sky.FindFault();
  if (fault) sky.error = std::string("the session's view ") + fault;
  return !fault;
}

void TakeMarks(const scene::SessionCapsule& capsule, SceneSky& sky) {
  sky.marks.clear();
  for (const auto& mark : capsule.marks) sky.marks.emplace_back(mark.kind, mark.number);
  sky.camera.ClearOIMarkerList();
  sky.markers = {};
  for (const auto& marker : capsule.markers) sky.markers.Add(marker, sky.camera);
}

// The settings and the camera go back to what they were where the session cannot be shown.
int TakeSession(const scene::SessionCapsule& capsule, SceneSky& sky) {
  std::vector<std::string> lost;
  SettingsData settings(sky.settings.GetID(), sky.settings.GetOwner(), "filters.data");
  if (!settings.Read(nullptr))
    return scene::Fail(sky, SCENE_BAD_DATA, "filters.data: missing from the data root, or damaged");
  scene::RestoreSettings(capsule, settings, lost);
  Camera before(sky.settings.GetOwner());
  before = sky.camera;
  if (!TakeCamera(capsule, lost, sky)) {
    sky.camera = before;
    return SCENE_BAD_DATA;
  }
  if (const int status = sky.TakeOptions(capsule); status != SCENE_OK) {
    sky.camera = before;
    return SCENE_BAD_DATA;
  }
  sky.settings = settings;
  TakeMarks(capsule, sky);
  sky.sessionLanguage = capsule.language;
  sky.ReadSettings();
  sky.maker->GetFrame().SetFavourites(sky.marks);
  if (!capsule.tle.empty()) lost.push_back(capsule.tle + ": the session's satellites are not taken");
  Print(lost);
  Print(scene::FindChangedData(capsule, sky.language));
  return SCENE_OK;
}

}  // namespace

const char* scene_format_session(SceneSky* sky) {
  const int status = scene::Call(sky, [&] {
    scene::SessionCapsule capsule;
    capsule.framesOf = sky->options.framesOf;
    capsule.showers = sky->options.showers;
    capsule.plainSky = sky->options.plainSky;
    capsule.chart = sky->options.chart;
    capsule.orbits = sky->options.orbits;
    capsule.tle = sky->options.tle;
    capsule.language = sky->language;
    const tPoint<int> window = sky->camera.GetWinSize();
    capsule.size = {window.x, window.y};
    std::string error;
    if (!scene::DescribeState(sky->settings, sky->markers, sky->marks, sky->camera, capsule, error))
      return scene::Fail(*sky, SCENE_BAD_DATA, error);
    sky->sessionText = scene::FormatSession(capsule);
    return static_cast<int>(SCENE_OK);
  });
  return status == SCENE_OK ? sky->sessionText.c_str() : nullptr;
}

int scene_read_session(SceneSky* sky, const char* text) {
  return scene::Call(sky, [&] {
    if (!text) return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the text is null");
    scene::SessionCapsule capsule;
    std::string error;
    if (!scene::ParseSession(text, capsule, error)) return scene::Fail(*sky, SCENE_BAD_DATA, error);
    return TakeSession(capsule, *sky);
  });
}

const char* scene_get_session_language(const SceneSky* sky) {
  return sky ? sky->sessionLanguage.c_str() : "";
}
