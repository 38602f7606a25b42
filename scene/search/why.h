// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Why an object is or is not in the picture, in English.
#pragma once

#include <string>
#include <vector>

#include "common_interfaces/settings_data.h"
#include "scene/search/object_search.h"
#include "scene/frame/sky_frame.h"

namespace skyview {

// A frame and what it was computed from, all kept by reference.
struct ShownView {
  const SkyFrame& frame;
  CommonInterfaces::Camera& camera;  // its zoom changes for a moment
  const ObserverFrame& observer;
  const ShownKinds& shown;
  const ObjectFilters& filters;
  CommonInterfaces::SettingsData& settings;  // what `shown` and `filters` were read from
};

struct Explanation {
  bool drawn = false;                // of a constellation: whether its name is
  std::vector<std::string> reasons;  // why it is not drawn, all that apply; empty for what is drawn
  std::vector<std::string> facts;    // where it stands; of what is drawn also since which zoom, and its label
};

// The answer comes from the tests by which the frame was computed.
Explanation Explain(const FoundObject& object, const ShownView& view);

// The explanation as lines, each ending in "\n"; `title` names the object.
std::string FormatExplanation(const std::string& title, const Explanation& explanation);

}  // namespace skyview
