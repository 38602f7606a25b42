// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/catalogs/showers.h"
#include "scene/view/directions.h"

namespace host_test {

// The shower of August, its maximum on the 12th.
inline scene::Shower MakePerseids() {
  scene::Shower shower;
  shower.name = "Perseids";
  shower.record.beginDay = 17;
  shower.record.beginMonth = 7;
  shower.record.maximumDay = 12;
  shower.record.maximumMonth = 8;
  shower.record.endDay = 24;
  shower.record.endMonth = 8;
  shower.radiant = scene::MakeDirection(48.0 * scene::kRadiansPerDegree, 58.0 * scene::kRadiansPerDegree);
  return shower;
}

}  // namespace host_test
