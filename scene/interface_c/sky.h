// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What stands behind the handle of the C interface, and how its functions are called.
#pragma once

#include <algorithm>
#include <cstring>
#include <exception>
#include <new>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

#include "common_interfaces/camera.h"
#include "common_interfaces/settings_data.h"
#include "scene/frame_maker.h"
#include "scene/object_filter.h"
#include "scene/object_search.h"
#include "scene/scene_c.h"
#include "scene/shown_kinds.h"
#include "scene/sky_catalogs.h"
#include "scene/sky_markers.h"

// Parts refer to each other: not moved.
struct SceneSky {
  SceneSky();
  SceneSky(const SceneSky&) = delete;
  SceneSky& operator=(const SceneSky&) = delete;

  // Reads catalogs and defaults, sets up the frame. A status and, for a failure, `error`.
  int Open(const SceneRoots& roots);
  // The catalogs anew, in the language of the texts, and an empty frame of them. As Open; what there was
  // stays.
  int TakeCatalogs();
  const scene::ObjectSearch& GetSearch();
  // What the settings say, taken anew before the next frame.
  void ReadSettings();
  // Why the camera's sky cannot be drawn; null when it can.
  const char* FindFault() const;

  std::string error;
  bool isOpen = false;
  std::string data;  // the root
  CommonInterfaces::SettingsData settings;
  CommonInterfaces::Camera camera;
  scene::SkyCatalogs catalogs;
  scene::ShownKinds shown;
  scene::ObjectFilters filters;
  scene::SkyMarkers markers;
  double enlargement = 1.0;                   // of the frames
  std::optional<scene::FrameMaker> maker;     // makes room for the catalogs, so once they are loaded
  std::optional<scene::ObjectSearch> search;  // when a name is first asked for
  std::string title;                          // that scene_get_title handed out

 private:
  void MakeFrame();
};

namespace scene {

// The line of a failure goes to the sky, and its status back.
inline int Fail(SceneSky& sky, int status, std::string why) {
  sky.error = std::move(why);
  return status;
}

// What `run` returns; what it throws becomes a status and a line. A line that finds no memory is an empty
// one.
template <class Run>
int Guard(SceneSky& sky, Run run) noexcept {
  try {
    return run();
  } catch (const std::bad_alloc&) {
    sky.error.clear();
    return SCENE_NO_MEMORY;
  } catch (const std::length_error&) {
    sky.error.clear();
    return SCENE_NO_MEMORY;
  } catch (const std::exception& failure) {
    const std::size_t room = sky.error.capacity();
    sky.error.assign(failure.what(), std::min(std::strlen(failure.what()), room));
    return SCENE_FAILURE;
  }
}

// A call with an open sky: clears the line of the call before, and refuses a sky that is none.
template <class Run>
int Call(SceneSky* sky, Run run) noexcept {
  if (!sky) return SCENE_BAD_ARGUMENT;
  if (!sky->isOpen) return SCENE_BAD_DATA;  // its line is that of scene_open
  sky->error.clear();
  return Guard(*sky, run);
}

// Whether a structure has at least the members of the first version, whose last one ends at `end`.
template <class Structure>
bool IsKnown(const Structure* structure, std::size_t end) {
  return structure && structure->size >= end;
}

// Fills what the caller knows of the structure, whose size stays.
template <class Structure>
void Give(Structure filled, Structure* place) {
  filled.size = place->size;
  std::memcpy(place, &filled, std::min<std::size_t>(sizeof filled, place->size));
}

}  // namespace scene
