// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "scene/catalogs/landscape.h"
#include "scene/display/labels.h"
#include "scene/view/sky_region.h"
#include "scene/visibility/sky_light.h"

namespace scene {

// The landscape of one frame: each layer in the light of the sky, darker towards the viewer. Allocates when
// it gets its landscape and with the first frame.
class LandscapePicture {
 public:
  void SetLandscape(Landscape landscape);

  // Empties the picture, then fills it in if it is wanted.
  void Compute(const ViewGeometry& geometry, bool wanted);
  // What it shows and hides, empty where none is painted. Valid as long as this.
  const Landscape& GetPainted() const;
  // Takes away the labels of objects that stand behind it.
  void HideLabels(const ViewGeometry& geometry, LabelPlacer& labels) const;
  bool IsEmpty() const { return !m_Wanted; }
  void Draw(const SkyLight& light, DisplayList& list) const;

 private:
  // What lies below a skyline, or that far below it.
  struct Band {
    std::vector<Direction> ring;
    std::vector<SkyCap> caps;
    RegionPicture picture;
  };

  Landscape m_Landscape;
  std::vector<Band> m_Bands;  // kBands of each layer, the highest first
  bool m_Wanted = false;
};

}  // namespace scene
