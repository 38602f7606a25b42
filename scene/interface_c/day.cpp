// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/interface_c/sky.h"
#include "scene/scene_almanac_c.h"
#include "scene/scene_objects_c.h"

int scene_get_day(SceneSky*, SceneObject, SceneDay*) { return SCENE_FAILURE; }
int scene_sample_altitudes(SceneSky*, SceneObject, double, double, double*, int32_t) { return SCENE_FAILURE; }
int scene_get_night(SceneSky*, SceneNight*) { return SCENE_FAILURE; }
