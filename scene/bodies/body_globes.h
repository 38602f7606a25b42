// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "scene/bodies/body_model.h"
#include "scene/display/display_list.h"
#include "scene/view/view_geometry.h"

namespace scene {

// How a body's surface lies in the picture; what GlobeRecord says beside its disc and its ring's colours.
struct Globe {
  float toBody[9];
  float flattening, limbDarkening;
  int map;  // index in the paths, -1: none
  bool ringed;
  tPoint<double> centre;  // of the disc in the picture, y up
};

// The surfaces of bodies: their maps in the data root (media/maps, docs/data.md) and Saturn's ring. Allocates
// at its construction only.
class BodyGlobes {
 public:
  explicit BodyGlobes(const BodyList& bodies);

  const std::vector<std::string>& GetMapPaths() const { return m_Paths; }

  // Of a body as it is seen at a moment (Julian date, TT). Nothing for one whose rotation nobody knows.
  std::optional<Globe> Find(int body, const BodyState& state, const ViewGeometry& geometry,
                            double julianDateTT) const;

  // From the inner to the outer edge of Saturn's ring; empty when the data root lacks its profile.
  const std::vector<Rgba>& GetRing() const { return m_Ring; }
  float GetRingInner() const { return m_RingInner; }  // Saturn's equatorial radii
  float GetRingOuter() const { return m_RingOuter; }

 private:
  void LoadRing();

  const BodyList& m_Bodies;
  std::vector<int> m_Maps;  // of each body
  std::vector<std::string> m_Paths;
  std::vector<Rgba> m_Ring;
  float m_RingInner = 0.0f, m_RingOuter = 0.0f;
};

}  // namespace scene
