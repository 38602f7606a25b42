// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/interface_c/sky.h"
#include "scene/scene_almanac_c.h"

int scene_find_events(SceneSky*, double, double, const char*, SceneArray*) { return SCENE_FAILURE; }
