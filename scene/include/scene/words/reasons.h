// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Why an object is or is not in the picture, in the language of the texts, UTF-8.
#pragma once

#include <string>
#include <vector>

#include "scene/api.h"
#include "scene/search/why.h"

namespace scene {

// One of the things that keep an object from being drawn.
struct Reason {
  unsigned obstacle;                 // of Obstacle; 0 where there was no room for it
  std::string text;                  // "its kind is switched off: star.Draw is 0"
  std::string fix;                   // the change of a setting that ends it, "star.Draw=1"; "" for none
  const FilterRule* rule = nullptr;  // that rejects it; the explanation's
};

// All that apply; none for what is drawn. `zoom` is that of the view that was explained, `horizon` whether it
// has one (ObserverFrame).
SCENE_API std::vector<Reason> ListReasons(const Explanation& explanation, double zoom, bool horizon);

// That it is drawn, "drawn".
SCENE_API std::string GetDrawnText();

// From which zoom on an object that has a magnitude is drawn: "magnitude 1.25: shown from zoom 0.5 on".
SCENE_API std::string DescribeZoomOfDrawing(const Explanation& explanation);

// What became of the name of an object that is drawn, "label: Betelgeuse".
SCENE_API std::string DescribeLabel(const Explanation& explanation);

}  // namespace scene
