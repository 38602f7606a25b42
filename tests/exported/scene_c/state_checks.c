/* SPDX-FileCopyrightText: the common_interfaces authors
 * SPDX-License-Identifier: MIT */
#include <math.h>
#include <stdio.h>
#include <string.h>

#include "exported/scene_c/checks.h"
#include "exported/scene_c/helpers.h"
#include "scene/scene_state_c.h"

static int is_option(SceneSky* sky, const char* name, const char* value) {
  const char* const is = scene_get_option(sky, name);
  return is && !strcmp(is, value);
}

const char* check_texts(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneArray list = {sizeof list, 0, 0, NULL};
  (void)file;
  CHECK(sky != NULL && scene_get_languages(sky, &list) == SCENE_OK && list.count >= 3);
  CHECK(!strcmp(((const SceneLanguage*)record_of(&list, 0))->code, "de"));
  CHECK(!strcmp(((const SceneLanguage*)record_of(&list, 0))->name, "Deutsch"));
  CHECK(!strcmp(scene_get_language(sky), "en") && !strcmp(scene_get_text(sky, 900325), "full moon"));
  CHECK(scene_set_language(sky, "de") == SCENE_OK && !strcmp(scene_get_language(sky), "de"));
  CHECK(!strcmp(scene_get_text(sky, 900325), "Vollmond") && !strcmp(scene_get_text(sky, 1), scene_get_text(sky, 1)));
  CHECK(!strcmp(scene_get_text(sky, -5), "") && scene_get_text(NULL, 900325) == NULL);
  CHECK(scene_get_language(NULL) == NULL && scene_get_languages(sky, NULL) == SCENE_BAD_ARGUMENT);
  scene_close(sky);
  return NULL;
}

const char* check_options(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneView view = winter_view();
  SceneArray list = {sizeof list, 0, 0, NULL};
  uint32_t i, lines, texts;
  (void)file;
  CHECK(sky != NULL && scene_set_view(sky, &view) == SCENE_OK && scene_get_options(sky, &list) == SCENE_OK);
  for (i = 0; i < list.count; ++i) { /* each is known, and none is set but the default zone */
    const SceneOption* option = record_of(&list, i);
    CHECK(scene_get_option(sky, option->name) != NULL && strlen(option->values) > 0);
  }
  CHECK(list.count >= 14 && is_option(sky, "style", "") && scene_get_option(sky, "stile") == NULL);
  CHECK(scene_compute(sky) == SCENE_OK);
  texts = count_of(sky, SCENE_TEXTS);
  lines = count_of(sky, SCENE_POLYLINES);
  CHECK(scene_set_option(sky, "style", "photo") == SCENE_OK && scene_compute(sky) == SCENE_OK);
  CHECK(count_of(sky, SCENE_TEXTS) < texts && count_of(sky, SCENE_POLYLINES) < lines && is_option(sky, "style", "photo"));
  CHECK(scene_set_option(sky, "style", "") == SCENE_OK && scene_compute(sky) == SCENE_OK);
  CHECK(count_of(sky, SCENE_TEXTS) == texts && count_of(sky, SCENE_POLYLINES) == lines);
  CHECK(scene_set_option(sky, "eyepiece", "5 1.5") == SCENE_OK && is_option(sky, "eyepiece", "5 1.5"));
  CHECK(scene_set_option(sky, "telrad", "on") == SCENE_OK && scene_set_option(sky, "sensor", "36x24@200") == SCENE_OK);
  CHECK(scene_compute(sky) == SCENE_OK && count_of(sky, SCENE_ELLIPSES) + count_of(sky, SCENE_POLYLINES) > lines);
  CHECK(scene_set_option(sky, "limit-magnitude", "4.5") == SCENE_OK && scene_set_option(sky, "bortle", "5") == SCENE_OK);
  CHECK(is_option(sky, "limit-magnitude", "") && is_option(sky, "bortle", "5") && is_option(sky, "telrad", "on"));
  CHECK(scene_set_option(sky, "orbits", "Jupiter,Mars") == SCENE_OK && is_option(sky, "orbits", "Jupiter,Mars"));
  CHECK(scene_set_option(sky, "orbits", "Jupitr") == SCENE_BAD_ARGUMENT && has_error(sky, "Jupitr"));
  CHECK(is_option(sky, "orbits", "Jupiter,Mars") && scene_set_option(sky, "orbits", "") == SCENE_OK);
  CHECK(scene_set_option(sky, "showers", "on") == SCENE_OK && scene_set_option(sky, "sky", "none") == SCENE_OK);
  CHECK(scene_set_option(sky, "frames-of", "deepsky,constellations") == SCENE_OK);
  CHECK(is_option(sky, "frames-of", "constellations,deepsky") && scene_compute(sky) == SCENE_OK);
  CHECK(scene_set_option(sky, "landscape", "none") == SCENE_OK && scene_compute(sky) == SCENE_OK);
  CHECK(scene_set_option(sky, "landscape", "60000") == SCENE_BAD_ARGUMENT && is_option(sky, "landscape", "none"));
  CHECK(scene_set_option(sky, "legend", "on") == SCENE_OK && scene_set_option(sky, "legend", "yes") == SCENE_BAD_ARGUMENT);
  CHECK(scene_set_option(sky, "zone", "Europe/Berlin") == SCENE_OK && is_option(sky, "zone", "Europe/Berlin"));
  CHECK(scene_set_option(sky, "place", "Berlin") == SCENE_OK && scene_set_view(sky, &view) == SCENE_OK);
  CHECK(is_option(sky, "place", "Berlin")); /* the same place */
  view.latitude = 50.0;
  CHECK(scene_set_view(sky, &view) == SCENE_OK && is_option(sky, "place", ""));
  CHECK(scene_set_option(sky, "bortle", "12") == SCENE_BAD_ARGUMENT && has_error(sky, "bortle"));
  CHECK(scene_set_option(sky, "style", "photo\nview m_Zoom=1") == SCENE_BAD_ARGUMENT);
  CHECK(scene_set_option(sky, NULL, "x") == SCENE_BAD_ARGUMENT && scene_set_option(sky, "style", NULL) == SCENE_BAD_ARGUMENT);
  scene_close(sky);
  return NULL;
}

const char* check_favourites(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneObject sirius, moon, none = {1, 1};
  SceneArray list = {sizeof list, 0, 0, NULL};
  char kept[200];
  (void)file;
  CHECK(sky != NULL && scene_find(sky, "Sirius", &sirius) == SCENE_OK && scene_find(sky, "Moon", &moon) == SCENE_OK);
  CHECK(!strcmp(scene_format_favourites(sky), ""));
  CHECK(scene_mark(sky, sirius, 1) == SCENE_OK && scene_mark(sky, sirius, 1) == SCENE_OK && scene_mark(sky, moon, 1) == SCENE_OK);
  CHECK(scene_get_favourites(sky, &list) == SCENE_OK && list.count == 2);
  CHECK(!strcmp(((const SceneFavourite*)record_of(&list, 1))->name, "Moon"));
  strncpy(kept, scene_format_favourites(sky), sizeof kept - 1);
  kept[sizeof kept - 1] = '\0';
  CHECK(!strcmp(kept, "Sirius\t1937006962\t2491\nMoon\t1836019566\t301\n"));
  CHECK(scene_mark(sky, sirius, 0) == SCENE_OK && scene_get_favourites(sky, &list) == SCENE_OK && list.count == 1);
  CHECK(scene_read_favourites(sky, kept) == SCENE_OK && !strcmp(scene_format_favourites(sky), kept));
  CHECK(scene_read_favourites(sky, "Mars\t1886154356\t4\r\nnonsense\n\nOld\t1\t7") == SCENE_OK);
  CHECK(scene_get_favourites(sky, &list) == SCENE_OK && list.count == 2);
  CHECK(!strcmp(((const SceneFavourite*)record_of(&list, 1))->name, "Old")); /* what the catalogs lack is kept */
  CHECK(scene_mark(sky, none, 1) == SCENE_NOT_FOUND && scene_read_favourites(sky, NULL) == SCENE_BAD_ARGUMENT);
  CHECK(scene_compute(sky) == SCENE_OK);
  scene_close(sky);
  return NULL;
}

const char* check_session(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneView view = winter_view(), read = {sizeof read, 0, 0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0};
  SceneObject sirius;
  static char kept[65536];
  uint32_t lines;
  char* end;
  (void)file;
  CHECK(sky != NULL && scene_set_view(sky, &view) == SCENE_OK && scene_find(sky, "Sirius", &sirius) == SCENE_OK);
  CHECK(!strcmp(scene_get_session_language(sky), ""));
  CHECK(scene_change_setting(sky, "grid.RADecGrid=1") == SCENE_OK && scene_set_option(sky, "bortle", "4") == SCENE_OK);
  CHECK(scene_set_option(sky, "zone", "Europe/Berlin") == SCENE_OK && scene_set_option(sky, "place", "Berlin") == SCENE_OK);
  CHECK(scene_mark(sky, sirius, 1) == SCENE_OK && scene_compute(sky) == SCENE_OK);
  lines = count_of(sky, SCENE_POLYLINES);
  CHECK(scene_format_session(sky) != NULL && strlen(scene_format_session(sky)) < sizeof kept);
  strcpy(kept, scene_format_session(sky));
  CHECK(!strncmp(kept, "skyview session 1\nlanguage en\nsize 800x500\nzone Europe/Berlin\nplace Berlin\n", 70));
  view.azimuth = 10.0;
  view.latitude = -30.0;
  view.width = 640;
  CHECK(scene_set_view(sky, &view) == SCENE_OK && scene_set_option(sky, "bortle", "") == SCENE_OK);
  CHECK(scene_change_setting(sky, "grid.RADecGrid=0") == SCENE_OK && scene_mark(sky, sirius, 0) == SCENE_OK);
  CHECK(scene_read_session(sky, kept) == SCENE_OK && scene_get_view(sky, &read) == SCENE_OK);
  CHECK(read.width == 640 && fabs(read.azimuth - 180.0) < 1e-6 && fabs(read.latitude - 52.5) < 1e-9);
  CHECK(fabs(read.julian_date - 2461056.375) < 1e-9 && is_option(sky, "bortle", "4"));
  CHECK(is_option(sky, "zone", "Europe/Berlin") && is_option(sky, "place", "Berlin"));
  CHECK(!strcmp(scene_get_session_language(sky), "en") && strstr(scene_format_favourites(sky), "Sirius") != NULL);
  read.width = 800;
  CHECK(scene_set_view(sky, &read) == SCENE_OK && scene_compute(sky) == SCENE_OK);
  CHECK(count_of(sky, SCENE_POLYLINES) == lines && !strcmp(scene_format_session(sky), kept));
  end = strstr(kept, "zone ");
  end[6] = 'X'; /* damaged: nothing changes */
  CHECK(scene_read_session(sky, kept) == SCENE_BAD_DATA && has_error(sky, "checksum"));
  CHECK(is_option(sky, "zone", "Europe/Berlin") && scene_read_session(sky, "") == SCENE_BAD_DATA);
  CHECK(scene_read_session(sky, NULL) == SCENE_BAD_ARGUMENT);
  scene_close(sky);
  return NULL;
}
