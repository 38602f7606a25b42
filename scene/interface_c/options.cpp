// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/interface_c/sky.h"
#include "scene/scene_state_c.h"

int scene_set_option(SceneSky*, const char*, const char*) { return SCENE_FAILURE; }
const char* scene_get_option(SceneSky*, const char*) { return nullptr; }
int scene_get_options(SceneSky*, SceneArray*) { return SCENE_FAILURE; }
