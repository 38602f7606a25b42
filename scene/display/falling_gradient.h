// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/display/display_list.h"

namespace scene {

// Covers the whole width of the picture from `top` down to its lower edge: the first colour at the top, the
// second at `middle` of the way, the third below.
inline void AddFallingGradient(Layer layer, float top, float middle, const Rgba& first, const Rgba& second,
                               const Rgba& third, DisplayList& list) {
  const float right = static_cast<float>(list.GetWidth()), bottom = static_cast<float>(list.GetHeight());
  list.Add(layer, GradientRecord{{0.0f, right, right, 0.0f},
                                 {top, top, bottom, bottom},
                                 0.0f,
                                 top,
                                 0.0f,
                                 bottom,
                                 middle,
                                 first,
                                 second,
                                 third,
                                 {}});
}

}  // namespace scene
