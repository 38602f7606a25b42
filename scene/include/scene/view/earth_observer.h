// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/horizon_frame.h"
#include "astro/solar_system.h"
#include "common_interfaces/camera.h"
#include "scene/api.h"
#include "scene/view/directions.h"

namespace scene {

using astro::EarthPlace;
using astro::GetPlaceVector;
using astro::HorizonAxes;
using astro::Later;
using astro::MakeMoment;
using astro::SetUpModel;
using astro::SkyMoment;

// When and where the camera stands.
SCENE_API SkyMoment GetMoment(const CommonInterfaces::Camera& camera);
SCENE_API EarthPlace GetPlace(const CommonInterfaces::Camera& camera);

inline Direction MakeDirection(const double v[3]) { return {{v[0], v[1], v[2]}}; }

}  // namespace scene
