// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/events/state_track.h"

#include <cmath>

#include "astro/planets.h"

namespace astro_internal {

const StateTrack::Node* StateTrack::GetNode(double day) {
  Node& node = m_Nodes[static_cast<int>(std::fmod(day, kNodes))];
  if (node.day == day) return &node;
  node.day = -1.0;
  if (!ComputePlanetState(m_Planet, day, node.position, node.velocity)) return nullptr;
  node.day = day;
  return &node;
}

bool StateTrack::GetState(double date, double position[3], double velocity[3]) {
  if (!(date >= kFirstPlanetDate && date <= kLastPlanetDate)) return false;
  const double day = std::floor(date), t = date - day;
  const Node* before = GetNode(day);
  const Node* after = before != nullptr ? GetNode(day + 1.0) : nullptr;
  if (after == nullptr) return false;
  for (int i = 0; i < 3; ++i) {
    const double way = after->position[i] - before->position[i];
    const double square = 3.0 * way - 2.0 * before->velocity[i] - after->velocity[i];
    const double cube = before->velocity[i] + after->velocity[i] - 2.0 * way;
    position[i] = before->position[i] + t * (before->velocity[i] + t * (square + t * cube));
    velocity[i] = before->velocity[i] + t * (2.0 * square + 3.0 * t * cube);
  }
  return true;
}

}  // namespace astro_internal
