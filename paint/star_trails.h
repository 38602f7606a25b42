// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "scene/display/display_list.h"

namespace paint {

// One picture of many, as a camera takes it that stays open: what shines leaves a trail from frame to frame,
// and of all frames each pixel keeps its brightest light, on paper its darkest ink. The ground is that of the
// last frame; lines, names and symbols are left out.
class StarTrails {
 public:
  // Frames of that size, pixels.
  StarTrails(int width, int height);
  ~StarTrails();
  StarTrails(const StarTrails&) = delete;
  StarTrails& operator=(const StarTrails&) = delete;

  // False when the drawing library fails: `error` says why.
  bool Add(const scene::DisplayList& list, std::string& error);
  // Writes the picture as a PNG file, as WritePicture does.
  bool Write(const std::string& path, std::string& error);

 private:
  struct State;
  std::unique_ptr<State> m_State;
};

}  // namespace paint
