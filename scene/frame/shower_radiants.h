// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "scene/catalogs/showers.h"
#include "scene/display/labels.h"
#include "scene/view/observer_frame.h"
#include "scene/visibility/object_tests.h"

namespace scene {

struct DrawnRadiant {
  tPoint<double> place;
  bool peak;  // the day is that of the maximum
};

// The radiants of the meteor showers that are active on the day of one frame. Allocates in SetShowers only.
class ShowerRadiants {
 public:
  // Those from which every frame takes the active ones; none: no radiants.
  void SetShowers(std::vector<Shower> showers);
  // Takes the names of the showers from the string table again.
  void FetchTexts();

  // The labels point into the list of showers.
  void Compute(const ViewGeometry& geometry, const ObserverFrame& observer, const ObjectTests& tests,
               LabelPlacer& labels);

  // Rays that lead away from the radiant, as the tracks of the meteors do; with a disc on the day of the
  // maximum.
  void Draw(DisplayList& list) const;

  const std::vector<DrawnRadiant>& GetDrawn() const { return m_Drawn; }

  static constexpr double kRadius = 11.0;  // of the symbol, pixels of the standard picture

 private:
  std::vector<Shower> m_Showers;
  std::vector<DrawnRadiant> m_Drawn;
};

}  // namespace scene
