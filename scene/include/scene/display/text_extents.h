// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/api.h"

namespace scene {

// How much room a text takes: what a frame asks of its painter. This class estimates, so that a frame needs
// no font; a painter that knows its fonts derives from it. Must not allocate when it is used by a frame. Any
// thread.
class SCENE_API TextExtents {
 public:
  TextExtents() = default;
  TextExtents(const TextExtents&) = delete;
  TextExtents& operator=(const TextExtents&) = delete;
  virtual ~TextExtents();

  // Pixels from the beginning of a zero-terminated UTF-8 text to its end, in a font of that size. `style`: of
  // TextStyle. Here 0.62 of the size a character, as in common sans-serif fonts.
  virtual double GetWidth(const char* utf8, double size, unsigned style) const;
};

}  // namespace scene
