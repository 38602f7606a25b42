// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What stands behind the handle of the C interface, and how its functions are called.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <map>
#include <optional>
#include <string>
#include <utility>

#include "common_interfaces/camera.h"
#include "common_interfaces/settings_data.h"
#include "scene/catalogs/cities.h"
#include "scene/catalogs/landscape.h"
#include "scene/catalogs/showers.h"
#include "scene/catalogs/sky_catalogs.h"
#include "scene/frame/frame_maker.h"
#include "scene/frame/sky_markers.h"
#include "scene/interface_c/list.h"
#include "scene/scene_almanac_c.h"
#include "scene/scene_c.h"
#include "scene/scene_objects_c.h"
#include "scene/scene_state_c.h"
#include "scene/search/object_search.h"
#include "scene/session/session_file.h"
#include "scene/visibility/object_filter.h"
#include "scene/visibility/shown_kinds.h"
#include "utils/contained_call.h"

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
  const std::vector<scene::City>& GetCities();
  const std::vector<scene::Shower>& GetShowers();
  // Other options in place of those there are, the frame's parts included. A status and, for a failure,
  // `error`: nothing has changed then.
  int TakeOptions(scene::SessionCapsule wanted);
  // What settings and options say, taken anew before the next frame.
  void ReadSettings();
  // Of the ground in that direction of the horizon frame, radians.
  double FindSkyline(const scene::Direction& standing) const;
  // Why the camera's sky cannot be drawn; null when it can.
  const char* FindFault() const;

  std::string error;
  bool isOpen = false;
  std::string data;  // the root
  std::string language;
  scene::SessionCapsule options;  // of which the options count, and the file of elements
  scene::Landscape landscape;     // these two as the options say
  std::vector<int> orbits;
  std::vector<SSO_ID> marks;  // favourites, with the names that they had in their list
  std::string sessionLanguage;
  CommonInterfaces::SettingsData settings;
  CommonInterfaces::Camera camera;
  scene::SkyCatalogs catalogs;
  scene::ShownKinds shown;
  scene::ObjectFilters filters;
  scene::SkyMarkers markers;
  double enlargement = 1.0;                           // of the frames
  std::optional<scene::FrameMaker> maker;             // makes room for the catalogs, so once they are loaded
  std::optional<scene::ObjectSearch> search;          // when a name is first asked for
  std::optional<std::vector<scene::City>> cities;     // likewise, as the next
  std::optional<std::vector<scene::Shower>> showers;  // in the language of the texts

  // What functions handed out last.
  std::string option, favouriteText, sessionText;
  scene::List<SceneFavourite> favourites;
  scene::List<SceneOption> optionList;
  std::string title, moonPhase, constellation;
  std::map<int32_t, std::string> texts;  // of the string table, by number
  scene::List<SceneSuggestion> suggestions;
  scene::List<SceneFact> facts;
  scene::List<SceneReason> reasons;
  scene::List<SceneEvent> events;
  scene::List<SceneCity> foundCities, nearCities;
  scene::List<SceneLanguage> languages;

 private:
  void MakeFrame();
  void SetUpFrame();
  bool FindLandscape(const scene::SessionCapsule& wanted, scene::Landscape& found);
  bool FindOrbits(const scene::SessionCapsule& wanted, std::vector<int>& found);
};

namespace scene {

// The line of a failure goes to the sky, and its status back.
inline int Fail(SceneSky& sky, int status, std::string why) {
  sky.error = std::move(why);
  return status;
}

// What `run` returns; what it throws becomes a status and a line. A line that finds no memory is an empty
// one, and one that quotes a text of several lines has blanks for their ends.
template <class Run>
int Guard(SceneSky& sky, Run run) noexcept {
  int status = SCENE_FAILURE;
  const auto tell = [&sky](const char* what) {
    sky.error.assign(what, std::min(std::strlen(what), sky.error.capacity()));
  };
  if (RunContained([&] { status = run(); }, tell) == CallEnd::kNoMemory) {
    sky.error.clear();
    return SCENE_NO_MEMORY;
  }
  std::replace(sky.error.begin(), sky.error.end(), '\n', ' ');
  return status;
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

// The first version of the structure that names a list.
inline bool IsKnown(const SceneArray* array) {
  return IsKnown(array, offsetof(SceneArray, records) + sizeof array->records);
}

// Fills what the caller knows of the structure, whose size stays.
template <class Structure>
void Give(Structure filled, Structure* place) {
  filled.size = place->size;
  std::memcpy(place, &filled, std::min<std::size_t>(sizeof filled, place->size));
}

// Hands out a list in place of the one before.
template <class Record>
void Give(List<Record> made, List<Record>& kept, SceneArray* array) {
  kept = std::move(made);
  Give(kept.Describe(), array);
}

// The object that a caller names; nothing, and its line, for one that the catalogs lack.
std::optional<FoundObject> FindNamed(const SceneObject& object, SceneSky& sky);

inline SceneObject NameObject(const FoundObject& object, const SceneSky& sky) {
  return {GetKind(object, sky.catalogs), GetNumber(object, sky.catalogs)};
}

inline double ToDate(const SkyMoment& moment) { return moment.day + moment.fraction; }
SkyMoment ToMoment(double julianDate);

constexpr double kFirstDate = -1931076.5, kLastDate = 5373850.5;  // of the years -9999 to 9999
// Not a number is none.
inline bool IsDate(double julianDate) { return julianDate >= kFirstDate && julianDate <= kLastDate; }

}  // namespace scene
