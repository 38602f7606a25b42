// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Why an object is or is not in the picture.
#pragma once

#include <optional>
#include <vector>

#include "common_interfaces/settings_data.h"
#include "scene/api.h"
#include "scene/frame/sky_frame.h"
#include "scene/search/object_search.h"
#include "scene/view/standing.h"
#include "scene/visibility/class_limits.h"
#include "scene/visibility/obstacles.h"

namespace scene {

// A frame and what it was computed from, all kept by reference.
struct ShownView {
  const SkyFrame& frame;
  CommonInterfaces::Camera& camera;  // its zoom changes for a moment
  const ObserverFrame& observer;
  const ShownKinds& shown;
  const ObjectFilters& filters;
  CommonInterfaces::SettingsData& settings;  // what `shown` and `filters` were read from
};

// What became of the label of an object.
enum class LabelFate {
  kNone,      // the object is not in the frame
  kPlaced,    // it stands there
  kNameless,  // the object has no name, letter or number of its own
  kTooFaint,  // fainter than the limit of labels
  kNoRoom,    // no free place beside the object
  kOff        // the labels of its class are switched off
};

// Why an object is drawn or not, and where it is.
struct Explanation {
  int kind;  // four-character code
  ObjectTraits traits;
  unsigned obstacles;  // a combination of Obstacle; 0: all tests let it pass
  KindState state;
  std::vector<FilterRule> rejecting;  // the rules of its section's filter that it does not pass
  std::optional<float> code;          // magnitude code; constellations and satellites have none
  ClassLimits limits;
  float dim;                                           // codes by which the sky makes it look fainter
  std::optional<double> drawnFromZoom, labelFromZoom;  // of what has a code; nothing: at no zoom
  // Below, all zero with the obstacle kNoPlace.
  Standing standing;
  double fromCentre;     // degrees from the view axis
  tPoint<double> pixel;  // y down from the upper left corner
  const char* name;      // of its label; the catalogs'
  LabelFate label;

  // Of a constellation: whether its name is.
  bool IsDrawn() const { return obstacles == 0 && label != LabelFate::kNone; }
};

// The answer comes from the tests by which the frame was computed.
SCENE_API Explanation Explain(const FoundObject& object, const ShownView& view);

}  // namespace scene
