// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Turning the view: to a direction over the horizon, or to an object wherever it stands.
#pragma once

#include <optional>

#include "common_interfaces/camera.h"
#include "scene/api.h"
#include "scene/search/object_search.h"
#include "scene/view/standing.h"

namespace scene {

// Looks there: the direction counts from the horizon from now on, and the horizon is level. Matrices follow
// with the next PrepareObserver.
SCENE_API void LookTo(const Standing& direction, CommonInterfaces::Camera& camera);

// Looks at the object (found by ObjectSearch::FindOne in these catalogs), where an observer at the camera's
// place and time sees it, light time and aberration included and refraction where it is asked for, so that it
// is drawn in the middle of the picture; below the horizon, too. Returns where it is seen. Nothing, and the
// camera as it was, for an observer away from the Earth's surface (IsNearSurface) and for an object of which
// nobody can tell where it is then. The catalogs' tables change their current record.
SCENE_API std::optional<Standing> AimAt(const FoundObject& object, SkyCatalogs& catalogs,
                                        CommonInterfaces::Camera& camera, bool refraction = false);

}  // namespace scene
