// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/interface_c/sky.h"
#include "scene/scene_state_c.h"

const char* scene_get_text(SceneSky*, int32_t) { return nullptr; }
int scene_get_languages(SceneSky*, SceneArray*) { return SCENE_FAILURE; }
const char* scene_get_language(SceneSky*) { return nullptr; }
