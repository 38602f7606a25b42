// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "scene/catalogs/sky_catalogs.h"
#include "scene/display/display_list.h"
#include "scene/view/observer_frame.h"
#include "scene/view/sky_region.h"
#include "scene/visibility/object_tests.h"

namespace scene {

// The outlines of the nebulae of one frame: those that are large enough in the picture to have a form, whose
// object is shown by its switch, the filters and the limit of its class; a region that is no object goes with
// the nebulae. Allocates at its construction only; `catalogs` is kept by reference.
class NebulaClouds {
 public:
  explicit NebulaClouds(const SkyCatalogs& catalogs);

  void Compute(const ViewGeometry& geometry, const ObserverFrame& observer, const ObjectTests& tests,
               const ShownKinds& shown);

  // Each level a faint area with a soft edge, the brighter ones over the fainter; each names its object.
  // `strength`: what the sky leaves of them, 0 to 1.
  void Draw(double strength, DisplayList& list) const;

  // An area of the picture: rings of GetPicture.
  struct Cloud {
    int outline, level;
    int firstRing, ringCount;
    float opacity, softness;  // the softness in pixels of the standard picture
  };
  const std::vector<Cloud>& GetClouds() const { return m_Clouds; }
  const RegionPicture& GetPicture() const { return m_Picture; }
  // Whether the outline of that object is drawn in its full colour, so that it needs no symbol.
  bool IsFormed(int object) const;

 private:
  bool IsShown(const NebulaOutline& outline, const ObjectTests& tests, const ShownKinds& shown) const;
  void AddOutline(const ViewGeometry& geometry, const ObserverFrame& observer, int outline, double size);
  void AddArea(const ViewGeometry& geometry, const ObserverFrame& observer, const NebulaArea& area);

  // Makes a curve of the ring in m_Apparent where its edges are long in the picture.
  void Smooth(const ViewGeometry& geometry);

  const SkyCatalogs& m_Catalogs;
  RegionPicture m_Picture;
  std::vector<Cloud> m_Clouds;
  std::vector<Direction> m_Apparent, m_Cut;  // the points of one ring, and those with its corners cut
};

}  // namespace scene
