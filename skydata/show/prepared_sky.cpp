// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/prepared_sky.h"

#include <stdexcept>

#include "skydata/show/files.h"

namespace skydata {

ShownTable ShowPreparedSky(const std::string& path) {
  scene::PreparedSkySummary summary;
  std::string error;
  if (!scene::InspectPreparedSky(path.c_str(), summary, error)) throw std::runtime_error(path + ": " + error);
  ShownTable table;
  table.columns = {"part", "count"};
  for (const auto& [part, count] : summary.counts)
    table.rows.push_back({part, ShownCell::Number(std::to_string(count))});
  return table;
}

}  // namespace skydata
