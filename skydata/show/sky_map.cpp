// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/sky_map.h"

#include <stdexcept>

#include "skydata/show/files.h"

namespace skydata {
namespace {

constexpr int kHours = 24, kDegreesPerHour = 15, kDecStep = 15;

scene::SkyMap Load(const std::string& path) {
  scene::SkyMap map;
  std::string error;
  if (!map.Load(path.c_str(), error)) throw std::runtime_error(error);
  return map;
}

}  // namespace

std::string DescribeSkyMap(const std::string& path) {
  const scene::SkyMap map = Load(path);
  const std::string side = std::to_string(map.GetSide());
  return side + " x " + side + " cells\n" + map.GetOrigin() + "\n";
}

ShownTable ShowSkyMap(const std::string& path) {
  const scene::SkyMap map = Load(path);
  ShownTable table;
  table.columns = {"RA [h]"};
  for (int dec = 90; dec >= -90; dec -= kDecStep) table.columns.push_back(std::to_string(dec));
  for (int hour = 0; hour < kHours; ++hour) {
    std::vector<ShownCell> row = {hour};
    for (int dec = 90; dec >= -90; dec -= kDecStep) {
      const scene::Direction direction = scene::MakeDirection(
          hour * kDegreesPerHour * scene::kRadiansPerDegree, dec * scene::kRadiansPerDegree);
      row.push_back(ShownCell::Real(static_cast<double>(map.Find(direction)), 1));
    }
    table.rows.push_back(std::move(row));
  }
  return table;
}

}  // namespace skydata
