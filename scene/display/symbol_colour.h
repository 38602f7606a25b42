// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/display/labels.h"
#include "scene/display/palette.h"

namespace scene {

// Of the symbol of a deep-sky object, and so of its label.
inline const Colour& GetSymbolColour(LabelKind kind) {
  switch (kind) {
    case LabelKind::kGalaxy:
      return palette::kGalaxy;
    case LabelKind::kCluster:
      return palette::kCluster;
    case LabelKind::kNebula:
      return palette::kNebula;
    default:
      return palette::kOtherDeepsky;
  }
}

}  // namespace scene
