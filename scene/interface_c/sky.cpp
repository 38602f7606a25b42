// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/interface_c/sky.h"

#include <cmath>
#include <cstddef>

#include "astro/object_id.h"
#include "scene/catalogs/data_root.h"
#include "scene/catalogs/language.h"
#include "scene/view/base_plane.h"
#include "scene/visibility/zoom_range.h"
#include "utils/debug.h"
#include "utils/text.h"

namespace {

constexpr unsigned kOwner = 1;  // of the camera and of the settings
constexpr int kWidth = 1600, kHeight = 1000;

SceneSky* g_Open = nullptr;  // roots and language belong to the process

}  // namespace

SceneSky::SceneSky() : settings(kOwner, FourCC("FLTR"), "filters.data"), camera(kOwner) {}

int SceneSky::Open(const SceneRoots& roots) {
  data = roots.data;
  language = roots.language ? roots.language : scene::kDefaultLanguage;
  if (!scene::OpenDataRoot(data, roots.work ? roots.work : "", language, catalogs, error))
    return SCENE_BAD_DATA;
  if (!settings.Read(nullptr))
    return scene::Fail(*this, SCENE_BAD_DATA, "filters.data: missing from the data root, or damaged");
  camera.CreateDefault();
  camera.SetWinRect({kWidth, kHeight, kWidth, kHeight});
  ReadSettings();
  MakeFrame();
  isOpen = true;
  if (TakeOptions(options) != SCENE_OK) PrintDebugString("%s\n", error.c_str());  // the ground is plain
  error.clear();
  return SCENE_OK;
}

// A frame refers to the catalogs that it was made for.
int SceneSky::TakeCatalogs() {
  scene::SkyCatalogs loaded;
  if (!scene::LoadSkyCatalogs(loaded, error)) return SCENE_BAD_DATA;
  search.reset();
  showers.reset();
  texts.clear();
  maker.reset();
  catalogs = std::move(loaded);
  MakeFrame();
  return SCENE_OK;
}

const scene::ObjectSearch& SceneSky::GetSearch() {
  if (!search) search.emplace(catalogs);
  return *search;
}

const std::vector<scene::City>& SceneSky::GetCities() {
  if (!cities) cities = scene::LoadCities();
  return *cities;
}

const std::vector<scene::Shower>& SceneSky::GetShowers() {
  if (!showers) showers = scene::LoadShowers();
  return *showers;
}

const char* SceneSky::FindFault() const {
  if (const char* const fault = scene::FindObserverFault(camera)) return fault;
  if (!(camera.GetZoom() >= scene::kMinZoom && camera.GetZoom() <= scene::kMaxZoom))
    return "has a zoom outside 0.25 to 10000";
  return nullptr;
}

std::optional<scene::FoundObject> scene::FindNamed(const SceneObject& object, SceneSky& sky) {
  const auto found = FindObject({object.kind, object.number}, sky.catalogs);
  if (!found) {
    const std::string kind =
        IsNameableKind(object.kind) ? GetCodeText(object.kind) : std::to_string(object.kind);
    sky.error = kind + " " + std::to_string(object.number) + ": not in the catalogs";
  }
  return found;
}

scene::SkyMoment scene::ToMoment(double julianDate) {
  const double day = std::floor(julianDate + 0.5);
  return MakeMoment(static_cast<int>(day), julianDate - day);
}

int scene_open(const SceneRoots* roots, SceneSky** sky) {
  if (!sky) return SCENE_BAD_ARGUMENT;
  *sky = nullptr;
  if (!scene::IsKnown(roots, offsetof(SceneRoots, language) + sizeof roots->language))
    return SCENE_BAD_ARGUMENT;
  if (!roots->data || g_Open) return SCENE_BAD_ARGUMENT;
  bool isRoot = false;
  std::string error;
  const auto make = [&] {
    // Settings and camera look for their files when they are made.
    isRoot = scene::SetSkyRoots(roots->data, roots->work ? roots->work : "", error);
    *sky = g_Open = new SceneSky;
  };
  const CallEnd end = RunContained(make, [](const char*) {});
  if (end != CallEnd::kReturned) return end == CallEnd::kNoMemory ? SCENE_NO_MEMORY : SCENE_FAILURE;
  if (!isRoot) return scene::Fail(**sky, SCENE_BAD_DATA, std::move(error));
  return scene::Guard(**sky, [&] { return (*sky)->Open(*roots); });
}

void scene_close(SceneSky* sky) {
  if (!sky) return;
  g_Open = nullptr;
  delete sky;
}

const char* scene_error(const SceneSky* sky) { return sky ? sky->error.c_str() : ""; }

void scene_set_log(void (*log)(const char* text, void* context), void* context) {
  SetDebugSink(log, context);
}

int scene_set_language(SceneSky* sky, const char* language) {
  return scene::Call(sky, [&] {
    if (!language) return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the language is null");
    std::string error;
    const auto fetchNothing = [] {};  // what keeps texts is made anew
    if (!scene::SwitchLanguage(sky->data, language, fetchNothing, error))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, std::string(language) + ": " + error);
    sky->language = language;
    return sky->TakeCatalogs();
  });
}
