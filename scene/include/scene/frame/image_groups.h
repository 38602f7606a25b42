// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/api.h"

namespace scene {

// Groups of images, to be combined.
enum ImageGroup : unsigned { kConstellationImages = 1, kDeepskyImages = 2, kMilkyWayImages = 4 };
inline constexpr ImageGroup kImageGroups[] = {kConstellationImages, kDeepskyImages, kMilkyWayImages};

// The logical name of the catalog that lists the images of a group.
SCENE_API const char* GetImageCatalogName(ImageGroup group);

}  // namespace scene
