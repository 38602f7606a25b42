// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "astro/sky_events.h"
#include "scene/api.h"
#include "scene/catalogs/bodies.h"
#include "scene/words/event_kinds.h"

namespace scene {

// What a search found.
struct FoundEvents {
  std::vector<astro::SkyEvent> events;  // in the order of time
  bool complete = true;                 // false: for a part of the span nobody can tell
};

// The events of these kinds in the span: of the Sun, the Moon, the planets to Neptune, the bright stars on
// their way, the showers that the eye counts (the number of one is its place in astro::GetVisualShowers),
// and passes of the satellites among `bodies` that are seen. Kinds that need a place have none without one.
SCENE_API FoundEvents FindEvents(const EventKinds& kinds, const astro::EventSearch& search,
                                 const BodyList& bodies);

}  // namespace scene
