// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/reports/where.h"

#include "scene/view/base_plane.h"
#include "scene/words/besides.h"
#include "scene/words/object_facts.h"

namespace skyview {

bool DescribeWhere(const scene::FoundObject& object, const std::string& title, scene::SkyCatalogs& catalogs,
                   const CommonInterfaces::Camera& camera, std::string& text, std::string& error) {
  if (!scene::IsNearSurface(camera)) {
    error = "wants an observer near the Earth's surface (moving type 0 or 1)";
    return false;
  }
  const auto facts = scene::ListSightFacts(object, catalogs, camera);
  if (facts.empty()) {
    error = "'" + title + "': nobody can tell where it is at that moment";
    return false;
  }
  const std::string type = scene::DescribeType(object, catalogs);
  text = title + (type.empty() ? "" : " - " + type) + "\n";
  for (const auto& fact : facts) text += fact.line + "\n";
  return true;
}

}  // namespace skyview
