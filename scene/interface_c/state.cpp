// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/interface_c/sky.h"
#include "scene/scene_state_c.h"

int scene_mark(SceneSky*, SceneObject, int32_t) { return SCENE_FAILURE; }
int scene_get_favourites(SceneSky*, SceneArray*) { return SCENE_FAILURE; }
const char* scene_format_favourites(SceneSky*) { return nullptr; }
int scene_read_favourites(SceneSky*, const char*) { return SCENE_FAILURE; }
const char* scene_format_session(SceneSky*) { return nullptr; }
int scene_read_session(SceneSky*, const char*) { return SCENE_FAILURE; }
const char* scene_get_session_language(const SceneSky*) { return ""; }
