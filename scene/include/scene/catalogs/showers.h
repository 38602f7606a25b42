// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "common_interfaces/meteor_showers.h"
#include "scene/api.h"
#include "scene/view/directions.h"

namespace scene {

// A meteor shower of the string table, ready for a frame.
struct Shower {
  CommonInterfaces::SHOWER record;
  Direction radiant;  // at the maximum, J2000
  std::string name;   // UTF-8
};

// The showers of the string table, in its order.
SCENE_API std::vector<Shower> LoadShowers();

}  // namespace scene
