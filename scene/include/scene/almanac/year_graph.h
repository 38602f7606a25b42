// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// When the Sun, the Moon and the planets rise and set over a year, night by night.
#pragma once

#include <vector>

#include "astro/sky_events.h"
#include "scene/api.h"
#include "scene/view/earth_observer.h"

namespace scene {

// A stretch of a night, in hours from its noon: 0 to 24.
struct NightHours {
  float begin, end;
};

// Down to which altitude the Sun is there, from the horizon to the end of astronomical twilight.
inline constexpr int kTwilightBands = 4;

// A moment of a night: which one, counted from the first, and the hours from its noon.
struct NightPoint {
  int night;
  float hour;
};

// When a body rises, or sets, night by night.
struct RisingLine {
  SSO_ID body;
  bool rises;                      // else it sets
  std::vector<NightPoint> points;  // in the order of time
};

// A phase of the Moon, where it stands in the graph.
struct PhaseMark {
  NightPoint point;
  astro::EventKind phase;
};

// A year of nights as lines and areas.
struct YearGraph {
  int nights = 0;
  double latitude = 0.0;  // radians
  // By night: when the Sun is below the altitude; at most a few stretches, none where it is not.
  std::vector<std::vector<NightHours>> bands[kTwilightBands];
  std::vector<RisingLine> lines;  // the Moon, then the planets from Mercury on
  std::vector<PhaseMark> phases;
};

// Of `nights` nights from the noon of that day (Julian day number) on, by clocks that are `offset` days
// from Universal Time all the time. No nights where nobody can tell where the bodies are. Allocates; every
// thread may call.
SCENE_API YearGraph MakeYearGraph(int firstDay, int nights, double offset, const EarthPlace& place);

}  // namespace scene
