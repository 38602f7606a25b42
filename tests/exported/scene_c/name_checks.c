/* SPDX-FileCopyrightText: the common_interfaces authors
 * SPDX-License-Identifier: MIT */
#include <math.h>
#include <stdio.h>
#include <string.h>

#include "exported/scene_c/checks.h"
#include "exported/scene_c/helpers.h"
#include "scene/scene_objects_c.h"

/* The name of the i-th suggestion for a text; "" where there is none. */
static const char* suggestion(SceneSky* sky, const char* text, uint32_t i) {
  SceneArray list = {sizeof list, 0, 0, NULL};
  if (scene_suggest(sky, text, 10, &list) != SCENE_OK || i >= list.count) return "";
  return ((const SceneSuggestion*)record_of(&list, i))->name;
}

const char* check_suggestions(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneArray list = {sizeof list, 0, 0, NULL};
  const SceneSuggestion* first;
  (void)file;
  CHECK(sky != NULL);
  CHECK(!strcmp(suggestion(sky, "jup", 0), "Jupiter"));
  CHECK(!strcmp(suggestion(sky, "polar", 0), "Polaris"));
  CHECK(!strcmp(suggestion(sky, "M 3", 0), "M 3"));
  CHECK(!strcmp(suggestion(sky, "messier 31", 0), "M 31"));
  CHECK(!strcmp(suggestion(sky, "HIP 32349", 0), "HIP 32349"));
  CHECK(!strncmp(suggestion(sky, "HIP 3", 0), "HIP 3", 5) && !strncmp(suggestion(sky, "HIP 3", 9), "HIP 3", 5));
  CHECK(!strcmp(suggestion(sky, "sun", 0), "Sun") && !strcmp(suggestion(sky, "moo", 0), "Moon"));
  CHECK(strstr(suggestion(sky, "alp CMa", 0), "CMa") != NULL);
  CHECK(!strncmp(suggestion(sky, "copernic", 0), "Copernicus", 10)); /* of the Moon's surface */
  CHECK(!strcmp(suggestion(sky, "zzzz", 0), "") && !strcmp(suggestion(sky, " - ", 0), ""));
  CHECK(scene_suggest(sky, "beteig", 3, &list) == SCENE_OK && list.count >= 1);
  first = record_of(&list, 0);
  CHECK(list.record_size == sizeof *first && !strcmp(first->title, "Betelgeuse") && strlen(first->kind) > 0);
  CHECK(scene_suggest(sky, "a", 3, &list) == SCENE_OK && list.count == 3);
  CHECK(scene_set_language(sky, "de") == SCENE_OK);
  CHECK(!strncmp(suggestion(sky, "gros", 0), "Gro\xC3\x9F", 5));
  CHECK(!strcmp(suggestion(sky, "jup", 0), "Jupiter"));
  CHECK(scene_suggest(sky, "betelg", 3, &list) == SCENE_OK && list.count >= 1);
  CHECK(!strcmp(((const SceneSuggestion*)record_of(&list, 0))->title, "Beteigeuze"));
  CHECK(scene_suggest(sky, NULL, 3, &list) == SCENE_BAD_ARGUMENT);
  CHECK(scene_suggest(sky, "a", 0, &list) == SCENE_BAD_ARGUMENT && has_error(sky, "100"));
  CHECK(scene_suggest(sky, "a", 3, NULL) == SCENE_BAD_ARGUMENT);
  CHECK(scene_suggest(NULL, "a", 3, &list) == SCENE_BAD_ARGUMENT);
  scene_close(sky);
  return NULL;
}
