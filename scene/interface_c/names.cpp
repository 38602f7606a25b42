// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/interface_c/sky.h"
#include "scene/scene_objects_c.h"

int scene_suggest(SceneSky*, const char*, int32_t, SceneArray*) { return SCENE_FAILURE; }
