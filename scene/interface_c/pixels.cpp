// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/interface_c/sky.h"
#include "scene/scene_objects_c.h"

int scene_describe_pixel(SceneSky*, double, double, SceneSpot*) { return SCENE_FAILURE; }
int scene_turn(SceneSky*, const double*, double, double) { return SCENE_FAILURE; }
int scene_describe_frame(SceneSky*, SceneFrame*) { return SCENE_FAILURE; }
