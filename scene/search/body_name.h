// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "scene/catalogs/sky_catalogs.h"

namespace scene {

// What is written beside the body, UTF-8 (GetBodyLabel); "" for one that the catalogs lack.
std::string GetBodyName(const SSO_ID& id, const SkyCatalogs& catalogs);

}  // namespace scene
