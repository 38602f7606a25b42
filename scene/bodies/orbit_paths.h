// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The orbits of bodies as lines across the sky.
#pragma once

#include <vector>

#include "common_interfaces/render_settings.h"
#include "scene/bodies/body_model.h"
#include "scene/display/display_list.h"
#include "scene/display/sky_colours.h"
#include "scene/view/observer_frame.h"
#include "scene/view/view_geometry.h"

namespace scene {

// A stretch of an orbit inside the window, pixels, y up.
struct DrawnOrbitLine {
  tPoint<double> from, to;
  float opacity;  // 0 to 1
  ObjectRef body;
};

// Each orbit is the ellipse, or the piece of a parabola or hyperbola, in which the body moves at the moment
// (OrbitInfo), about the Sun, or about the Earth for the Moon and satellites, or about its planet for another
// moon, once that is large enough in the picture. It is drawn where an observer
// sees it: points of the orbit as bodies that stand still, with the aberration of light. The path leads
// through the body but for what it moves while its light travels.
//
// Which orbits are on, and how they fade, stands in the render settings: an orbit appears over kFadeIn
// seconds of the animation clock. Nothing is allocated after the construction but when an orbit is switched
// on.
class OrbitPaths {
 public:
  static constexpr double kFadeIn = 1.0;  // seconds

  explicit OrbitPaths(const BodyModel& model);

  // Switches an orbit on, over `duration` seconds from now. False for a body that has none: the Sun.
  bool Show(int body, double duration);

  void Compute(const ViewGeometry& geometry, const ObserverFrame& observer, const EarthPlace& place,
               bool hideBelowHorizon);
  void Clear() { m_Lines.clear(); }
  void Draw(const SkyColours& sky, DisplayList& list) const;

  const std::vector<DrawnOrbitLine>& GetLines() const { return m_Lines; }
  CommonInterfaces::RenderSettings& GetSettings() { return m_Settings; }
  bool IsAnyShown() const { return !m_Settings.GetOrbits().empty(); }

 private:
  struct View;
  struct Point;
  // What an orbit leads around: position and velocity relative to the Sun at the moment, and where it is
  // shown.
  struct Centre {
    SSO_ID body;
    double state[3], velocity[3], shown[3];
    Direction turn;  // by which its moons are seen beside that
  };
  bool FindCentre(const View& view, const SkyBody& body, Centre& centre) const;
  static bool IsTooSmall(const View& view, double radius);
  void AddOrbit(View& view, const SkyBody& body, float opacity);
  void AddArc(const View& view, const Point& a, const Point& b, int depth, DrawnOrbitLine line);

  const BodyModel& m_Model;
  CommonInterfaces::RenderSettings m_Settings;
  std::vector<DrawnOrbitLine> m_Lines;
};

}  // namespace scene
