// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/showers.h"

#include "scene/catalogs/texts.h"

namespace scene {

std::vector<Shower> LoadShowers() {
  std::vector<CommonInterfaces::SHOWER> records;
  CommonInterfaces::ReadMeteorShowers(&records);
  std::vector<Shower> showers;
  for (const auto& record : records) {
    showers.push_back({record, MakeDirection(record.ra, record.dec), ToUtf8(record.name)});
  }
  return showers;
}

}  // namespace scene
