/* SPDX-FileCopyrightText: the common_interfaces authors
 * SPDX-License-Identifier: MIT */
/* What the checks of the C interface share. */
#pragma once

#include <math.h>
#include <string.h>

#include "scene/scene_c.h"

#define TEXT_OF(x) #x
#define PLACE_OF(x) TEXT_OF(x)
#define CHECK(condition) \
  if (!(condition)) return "line " PLACE_OF(__LINE__) ": " #condition

static inline SceneSky* open_sky(const char* data) {
  SceneRoots roots = {sizeof roots, NULL, NULL, NULL};
  SceneSky* sky = NULL;
  roots.data = data;
  return scene_open(&roots, &sky) == SCENE_OK ? sky : NULL;
}

/* Orion in the south over Berlin, 15 January 2026, 21:00 Universal Time. */
static inline SceneView winter_view(void) {
  SceneView view = {sizeof view, 800, 500, 52.5, 13.4, 2461056.375, 180.0, 35.0, 1.0};
  return view;
}

static inline uint32_t count_of(SceneSky* sky, int kind) {
  SceneArray array = {sizeof array, 0, 0, NULL};
  return scene_get_array(sky, kind, &array) == SCENE_OK ? array.count : 0xFFFFFFFFu;
}

static inline int is_unknown(double value) { return value != value; }

static inline int has_error(SceneSky* sky, const char* piece) {
  return strstr(scene_error(sky), piece) != NULL;
}

/* The i-th record of a list. */
static inline const void* record_of(const SceneArray* list, uint32_t i) {
  return (const char*)list->records + (size_t)i * list->record_size;
}
