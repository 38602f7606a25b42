// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/sky_cap.h"

#include <algorithm>
#include <cmath>

namespace scene {

SkyCap MakeCap(std::span<const Direction> points) {
  Direction sum{};
  for (const Direction& point : points) {
    for (int i = 0; i < 3; ++i) sum.v[i] += point.v[i];
  }
  const Direction axis = Normalised(sum);
  double cosine = 1.0;
  for (const Direction& point : points) cosine = std::min(cosine, Dot(axis, point));
  cosine = std::max(cosine, 0.0);
  return {axis, std::sqrt(1.0 - cosine * cosine), cosine};
}

}  // namespace scene
