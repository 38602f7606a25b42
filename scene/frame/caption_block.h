// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "scene/display/labels.h"
#include "scene/frame/caption.h"
#include "scene/view/view_geometry.h"

namespace scene {

// The caption of a frame.
class CaptionBlock {
 public:
  void SetLines(std::vector<std::string> lines) { m_Lines = std::move(lines); }
  int GetLineCount() const { return static_cast<int>(m_Lines.size()); }

  double GetHeight(double unit) const { return GetLineCount() * kCaptionLineStep * unit; }  // pixels

  // Puts the lines into the corner, whatever is there, and keeps other labels off the ground under them, in
  // the whole width. The labels point into the block.
  void Place(const ViewGeometry& geometry, LabelPlacer& labels) const;
  // Darkens the foot of the picture so that the caption can be read whatever lies behind it.
  void DrawGround(DisplayList& list) const;

 private:
  std::vector<std::string> m_Lines;
};

}  // namespace scene
