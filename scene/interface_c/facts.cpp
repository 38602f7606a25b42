// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/interface_c/sky.h"
#include "scene/scene_objects_c.h"

int scene_get_facts(SceneSky*, SceneObject, SceneArray*) { return SCENE_FAILURE; }
int scene_explain(SceneSky*, SceneObject, SceneArray*) { return SCENE_FAILURE; }
