// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/object_id.h"

namespace astro_internal {

// The way of a planet about the Sun for whoever asks often within some weeks: whole days are computed and
// kept, between them a cubic goes through position and velocity at both ends. For the Earth, whose way the
// Moon bends most, that is good to 0.1 km.
class StateTrack {
 public:
  explicit StateTrack(const SSO_ID& planet) : m_Planet(planet) {}

  // Position (au) and velocity (au/day) at a Julian date (TT), J2000 axes. False outside the range.
  bool GetState(double date, double position[3], double velocity[3]);

 private:
  static constexpr int kNodes = 32;
  struct Node {
    double day = -1.0;  // Julian date
    double position[3] = {}, velocity[3] = {};
  };

  const Node* GetNode(double day);

  SSO_ID m_Planet;
  Node m_Nodes[kNodes];
};

}  // namespace astro_internal
