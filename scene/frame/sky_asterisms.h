// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "scene/frame/sky_figures.h"

namespace scene {

// The asterisms of one frame: their lines and names. Reads them from `catalogs`, which is kept by reference,
// in the first frame that shows them; allocates only then.
class SkyAsterisms {
 public:
  explicit SkyAsterisms(const SkyCatalogs& catalogs) : m_Catalogs(catalogs) {}

  void Compute(const ViewGeometry& geometry, const ObserverFrame& observer, const ObjectTests& tests,
               bool shown);
  // Names of what Compute found: the best known asterisms first, each near the middle of its stars.
  void PlaceNames(const ViewGeometry& geometry, const ObserverFrame& observer, const ObjectTests& tests,
                  LabelPlacer& labels) const;

  // `strength`: what the sky leaves of the lines, 0 to 1.
  void Draw(double strength, DisplayList& list) const;

  const std::vector<FigureLine>& GetLines() const { return m_Lines; }  // inside the window

 private:
  const SkyCatalogs& m_Catalogs;
  bool m_Shown = false;
  std::vector<FigureLine> m_Lines;
};

}  // namespace scene
