// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "common_interfaces/camera.h"
#include "scene/api.h"
#include "scene/search/object_search.h"

namespace scene {

// What an object is, in the current language, UTF-8: "Planet", "crater"; "" where there is no word for it.
SCENE_API std::string DescribeType(const FoundObject& object, const SkyCatalogs& catalogs);

// What is known of an object besides its place in the sky, lines of UTF-8, "" when there is nothing: of a
// feature of a surface its place on the body, its extent, the Sun's height there and whether it is turned to
// the observer near the Earth's surface; of a star the pairs that it makes with others.
SCENE_API std::string DescribeBesides(const FoundObject& object, SkyCatalogs& catalogs,
                                      const CommonInterfaces::Camera& camera);

}  // namespace scene
