// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The kinds of events by name.
#pragma once

#include <string>
#include <vector>

#include "astro/find_events.h"
#include "scene/api.h"

namespace scene {

using astro::EventKinds;

// Whether the kind is among them.
inline bool HasKind(const EventKinds& kinds, astro::EventKind kind) {
  return kinds.test(static_cast<std::size_t>(kind));
}

// The name of a kind in options and files: "full-moon". Files keep them: frozen. Static text, as the next.
SCENE_API const char* GetKindName(astro::EventKind kind);

// In what the value of an event is told to other programs: "deg" (of radians), "km", "au", "mag", "1/h"; ""
// for a ratio, and where there is no value.
SCENE_API const char* GetUnitOfKind(astro::EventKind kind);

// Whether the event is another one, or at another time, elsewhere on the Earth.
SCENE_API bool IsAboutPlace(astro::EventKind kind);

// The kinds of that name: one, or those of a group such as "phases". None for a name that nothing has.
SCENE_API EventKinds FindKinds(const std::string& name);
// All of them but those of every day: risings, twilights, moons of Jupiter, satellites.
SCENE_API EventKinds GetRareKinds();

// The group of a kind, "phases"; those of every day, all of them, and the kinds of one.
SCENE_API const char* GetKindGroup(astro::EventKind kind);
SCENE_API bool IsDailyGroup(const std::string& group);
SCENE_API std::vector<std::string> ListKindGroups();
SCENE_API std::vector<std::string> ListKinds(const std::string& group);

// Names of kinds and groups, for messages.
SCENE_API std::vector<std::string> ListKindNames();

}  // namespace scene
