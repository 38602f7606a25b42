// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The kinds of events by name.
#pragma once

#include <string>
#include <vector>

#include "astro/find_events.h"

namespace skyview {

using astro::EventKinds;

inline bool Contains(const EventKinds& kinds, astro::EventKind kind) {
  return kinds.test(static_cast<std::size_t>(kind));
}

// The name of a kind in options and files: "full-moon". Files keep them: frozen.
const char* GetKindName(astro::EventKind kind);

// In what the value of an event is told to other programs: "deg" (of radians), "km", "au", "mag", "1/h"; ""
// for a ratio, and where there is no value.
const char* GetUnitOfKind(astro::EventKind kind);

// Whether the event is another one, or at another time, elsewhere on the Earth.
bool IsAboutPlace(astro::EventKind kind);

// The kinds of that name: one, or those of a group such as "phases". None for a name that nothing has.
EventKinds FindKinds(const std::string& name);
// All of them but those of every day: risings, twilights, moons of Jupiter, satellites.
EventKinds GetRareKinds();

// Names of kinds and groups, for messages.
std::vector<std::string> ListKindNames();
// A line for each group with its kinds.
std::string DescribeKinds();

}  // namespace skyview
