// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <vector>

#include "paint/surface_map.h"
#include "scene/display/display_list.h"

namespace paint {

// Red, green, blue, 0 to 1, multiplied with the opacity.
struct GlobePixel {
  float red, green, blue, opacity;
};

// The light of a globe and its ring at any point of the picture (docs/formats/display_list.md). `map` may be
// null; everything is kept by reference.
class GlobeShader {
 public:
  GlobeShader(const scene::GlobeRecord& globe, std::span<const scene::Rgba> ring, const SurfaceMap* map);

  // x, y: from the middle of the disc, y down, in units of the equator's radius. `pixel`: the size of a pixel
  // in the same unit, for smooth edges.
  GlobePixel Shade(double x, double y, double pixel) const;
  double GetReach() const;  // nothing is farther from the middle, same unit

 private:
  struct Vector {
    double x, y, z;
  };
  struct RingLight {
    double z;  // towards the viewer
    GlobePixel pixel;
  };
  Vector ToBody(double x, double y, double z) const;
  GlobePixel ShadeBall(double x, double y, double pixel, double& z) const;
  bool ShadeRing(double x, double y, double pixel, RingLight& light) const;
  // Where the line of sight meets the plane of the ring, and how far that is towards the viewer.
  Vector FindRingPlane(double x, double y, double& towards) const;
  double RingShadow(const Vector& surface, double pixel) const;
  bool IsInShadowOfBall(const Vector& body) const;
  // The mean of the ring over that width about the radius, multiplied with its opacity.
  GlobePixel GetRing(double radius, double width) const;

  const scene::GlobeRecord& m_Globe;
  std::vector<GlobePixel> m_RingSums;  // of all entries of the profile up to this one; the first is 0
  const SurfaceMap* m_Map;
  Vector m_Sun, m_Viewer;  // on the body's axes, of length 1
  double m_Stretch;        // what makes the spheroid a ball: the equator's radius over the axis
};

}  // namespace paint
