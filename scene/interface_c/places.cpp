// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/interface_c/sky.h"
#include "scene/scene_almanac_c.h"

int scene_find_cities(SceneSky*, const char*, int32_t, SceneArray*) { return SCENE_FAILURE; }
int scene_find_cities_near(SceneSky*, double, double, int32_t, SceneArray*) { return SCENE_FAILURE; }
int scene_get_zone_offset(SceneSky*, const char*, double, double*) { return SCENE_FAILURE; }
