/* SPDX-FileCopyrightText: the common_interfaces authors
 * SPDX-License-Identifier: MIT */
#include <math.h>
#include <stdio.h>
#include <string.h>

#include "exported/scene_c/checks.h"
#include "exported/scene_c/helpers.h"
#include "scene/scene_objects_c.h"

/* The first fact of that kind; null when there is none. */
static const SceneFact* fact_of(SceneSky* sky, SceneObject object, int32_t kind) {
  SceneArray list = {sizeof list, 0, 0, NULL};
  uint32_t i;
  if (scene_get_facts(sky, object, &list) != SCENE_OK) return NULL;
  for (i = 0; i < list.count; ++i) {
    const SceneFact* fact = record_of(&list, i);
    if (fact->kind == kind) return fact;
  }
  return NULL;
}

static int is_fact(SceneSky* sky, SceneObject object, int32_t kind, const char* caption, const char* text) {
  const SceneFact* fact = fact_of(sky, object, kind);
  return fact && !strcmp(fact->caption, caption) && !strncmp(fact->text, text, strlen(text));
}

const char* check_facts(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneView view = winter_view();
  SceneObject sirius, moon, none = {1, 1};
  SceneArray list = {sizeof list, 0, 0, NULL};
  (void)file;
  CHECK(sky != NULL && scene_set_view(sky, &view) == SCENE_OK);
  CHECK(scene_find(sky, "Sirius", &sirius) == SCENE_OK && scene_find(sky, "Moon", &moon) == SCENE_OK);
  CHECK(is_fact(sky, sirius, SCENE_FACT_NAME, "Name", "Sirius"));
  CHECK(strstr(fact_of(sky, sirius, SCENE_FACT_OTHER_NAMES)->text, "HR 2491") != NULL);
  CHECK(is_fact(sky, sirius, SCENE_FACT_SPECTRAL_TYPE, "Spectral type", "A"));
  CHECK(is_fact(sky, sirius, SCENE_FACT_CONSTELLATION, "Constellation", "Canis Major"));
  CHECK(is_fact(sky, sirius, SCENE_FACT_MAGNITUDE, "Magnitude", "-1.4"));
  CHECK(is_fact(sky, sirius, SCENE_FACT_J2000, "Position (J2000)", "RA 6h45m"));
  CHECK(fact_of(sky, sirius, SCENE_FACT_RISE) != NULL && fact_of(sky, sirius, SCENE_FACT_SET) != NULL);
  CHECK(fact_of(sky, sirius, SCENE_FACT_WARNING) == NULL);
  CHECK(strstr(fact_of(sky, moon, SCENE_FACT_SIZE)->text, "% lit") != NULL);
  CHECK(scene_set_language(sky, "ru") == SCENE_OK);
  CHECK(is_fact(sky, sirius, SCENE_FACT_NAME, "\xD0\x9D\xD0\xB0\xD0\xB7\xD0\xB2\xD0\xB0\xD0\xBD\xD0\xB8\xD0\xB5", "\xD0"));
  CHECK(scene_get_facts(sky, none, &list) == SCENE_NOT_FOUND && has_error(sky, "not in the catalogs"));
  CHECK(scene_get_facts(sky, sirius, NULL) == SCENE_BAD_ARGUMENT);
  scene_close(sky);
  return NULL;
}

/* The first reason of that kind that has the piece in its text; null when there is none. */
static const SceneReason* reason_of(SceneSky* sky, SceneObject object, int32_t kind, const char* piece) {
  SceneArray list = {sizeof list, 0, 0, NULL};
  uint32_t i;
  if (scene_explain(sky, object, &list) != SCENE_OK) return NULL;
  for (i = 0; i < list.count; ++i) {
    const SceneReason* reason = record_of(&list, i);
    if (reason->kind == kind && strstr(reason->text, piece)) return reason;
  }
  return NULL;
}

const char* check_reasons(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneView view = winter_view();
  SceneObject betelgeuse, vega, crater;
  SceneArray list = {sizeof list, 0, 0, NULL};
  const SceneReason* reason;
  (void)file;
  CHECK(sky != NULL && scene_set_view(sky, &view) == SCENE_OK);
  CHECK(scene_find(sky, "Betelgeuse", &betelgeuse) == SCENE_OK && scene_find(sky, "Vega", &vega) == SCENE_OK);
  CHECK(scene_explain(sky, betelgeuse, &list) == SCENE_NOT_FOUND && has_error(sky, "no frame"));
  CHECK(scene_compute(sky) == SCENE_OK);
  CHECK(reason_of(sky, betelgeuse, SCENE_REASON_DRAWN, "drawn") != NULL);
  CHECK(reason_of(sky, betelgeuse, SCENE_REASON_LABEL, "Betelgeuse") != NULL);
  CHECK(reason_of(sky, betelgeuse, SCENE_REASON_ZOOM, "magnitude 0.") != NULL);
  CHECK(reason_of(sky, betelgeuse, SCENE_REASON_HIDDEN, "") == NULL);
  CHECK(reason_of(sky, vega, SCENE_REASON_HIDDEN, "outside the picture") || reason_of(sky, vega, SCENE_REASON_HIDDEN, "behind the view"));
  CHECK(scene_change_setting(sky, "star.Draw=0") == SCENE_OK && scene_compute(sky) == SCENE_OK);
  reason = reason_of(sky, betelgeuse, SCENE_REASON_HIDDEN, "switched off");
  CHECK(reason != NULL && !strcmp(reason->fix, "star.Draw=1"));
  CHECK(scene_change_setting(sky, reason->fix) == SCENE_OK && scene_compute(sky) == SCENE_OK);
  CHECK(reason_of(sky, betelgeuse, SCENE_REASON_DRAWN, "") != NULL);
  /* Three days before new Moon the Sun shines on the Moon's western half; Mare Crisium is in the eastern one. */
  CHECK(scene_find(sky, "Mare Crisium", &crater) == SCENE_OK && scene_compute(sky) == SCENE_OK);
  CHECK(reason_of(sky, crater, SCENE_REASON_HIDDEN, "it is night there") != NULL);
  CHECK(scene_explain(sky, crater, NULL) == SCENE_BAD_ARGUMENT);
  scene_close(sky);
  return NULL;
}
