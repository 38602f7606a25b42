// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/display/star_signs.h"

#include <cmath>

#include "scene/catalogs/star_catalog.h"

namespace scene {
namespace {

// Pixels of the standard picture.
constexpr float kBar = 3.6f, kRing = 2.2f, kWidth = 1.0f;
constexpr float kTilt = -0.45f, kFlat = 0.42f;  // of the path of a planet

void AddEllipse(const StarSign& sign, float away, float flat, float angle, DisplayList& list) {
  const float radius = sign.radius + away * list.GetUnit();
  list.Add(Layer::kDeepsky, EllipseRecord{sign.x, sign.y, radius, flat * radius, angle,
                                          kWidth * list.GetUnit(), 0.0f, sign.colour, sign.object});
}

}  // namespace

void AddStarSign(const StarSign& sign, DisplayList& list) {
  if ((sign.marks & kDoubleStar) != 0) {
    const float reach = sign.radius + kBar * list.GetUnit();
    const float right = reach * std::cos(sign.angle), down = reach * std::sin(sign.angle);
    list.AddVertex(sign.x - right, sign.y - down);
    list.AddVertex(sign.x + right, sign.y + down);
    list.AddLine(Layer::kDeepsky,
                 PolylineRecord{0, 0, 1.2f * kWidth * list.GetUnit(), 0.0f, sign.colour, 0, sign.object});
  }
  if ((sign.marks & kVariableStar) != 0) AddEllipse(sign, kRing, 1.0f, 0.0f, list);
  if ((sign.marks & kHasPlanets) != 0) AddEllipse(sign, kSignReach, kFlat, kTilt, list);
}

}  // namespace scene
