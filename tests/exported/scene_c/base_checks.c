/* SPDX-FileCopyrightText: the common_interfaces authors
 * SPDX-License-Identifier: MIT */
#include "exported/scene_c/checks.h"

#include <math.h>
#include <stddef.h>
#include <string.h>

#include "exported/scene_c/helpers.h"

const char* check_refusals(const char* data, const char* file) {
  SceneRoots roots = {sizeof roots, NULL, NULL, NULL};
  SceneSky *sky = NULL, *second = NULL;
  SceneView view = winter_view();
  double pixel[2], vector[3] = {1.0, 0.0, 0.0};
  int32_t count = 0;
  (void)file;
  CHECK(scene_open(&roots, NULL) == SCENE_BAD_ARGUMENT);
  CHECK(scene_open(NULL, &sky) == SCENE_BAD_ARGUMENT && sky == NULL);
  CHECK(scene_open(&roots, &sky) == SCENE_BAD_ARGUMENT && sky == NULL); /* no data root */
  CHECK(scene_compute(NULL) == SCENE_BAD_ARGUMENT);
  CHECK(scene_get_field_count(NULL) == 0 && strcmp(scene_error(NULL), "") == 0);
  scene_close(NULL);
  CHECK((sky = open_sky(data)) != NULL);
  roots.data = data;
  CHECK(scene_open(&roots, &second) == SCENE_BAD_ARGUMENT && second == NULL); /* one at a time */
  CHECK(scene_set_view(sky, NULL) == SCENE_BAD_ARGUMENT);
  view.zoom = 0.0;
  CHECK(scene_set_view(sky, &view) == SCENE_BAD_ARGUMENT && has_error(sky, "zoom"));
  view = winter_view();
  view.latitude = NAN;
  CHECK(scene_set_view(sky, &view) == SCENE_BAD_ARGUMENT && has_error(sky, "latitude"));
  CHECK(scene_read_view(sky, NULL, 1) == SCENE_BAD_ARGUMENT);
  CHECK(scene_read_view(sky, "views:missing.data", 1) == SCENE_BAD_DATA);
  CHECK(scene_read_view(sky, "views:orion.data", 77) == SCENE_BAD_DATA && has_error(sky, "no such view"));
  CHECK(scene_project(sky, vector, NULL, 1) == SCENE_BAD_ARGUMENT);
  CHECK(scene_unproject(sky, pixel, vector, -1) == SCENE_BAD_ARGUMENT);
  CHECK(scene_pick(sky, NAN, 0.0, 1.0, NULL, 0, &count) == SCENE_BAD_ARGUMENT);
  CHECK(scene_find(sky, NULL, NULL) == SCENE_BAD_ARGUMENT);
  CHECK(scene_get_map(sky, -1) == NULL && scene_get_map(sky, 100000) == NULL);
  CHECK(scene_compute(sky) == SCENE_OK && strcmp(scene_error(sky), "") == 0);
  scene_close(sky);
  return NULL;
}

const char* check_missing_root(const char* data, const char* file) {
  SceneRoots roots = {sizeof roots, NULL, NULL, NULL};
  SceneSky* sky = NULL;
  roots.data = file; /* is no folder */
  CHECK(scene_open(&roots, &sky) == SCENE_BAD_DATA && sky != NULL);
  CHECK(has_error(sky, "no data root"));
  CHECK(scene_compute(sky) == SCENE_BAD_DATA && has_error(sky, "no data root"));
  CHECK(scene_get_field_count(sky) == 0 && scene_get_map(sky, 0) == NULL);
  scene_close(sky);
  roots.data = data;
  roots.language = "xx";
  CHECK(scene_open(&roots, &sky) == SCENE_BAD_DATA && has_error(sky, "xx"));
  scene_close(sky);
  CHECK((sky = open_sky(data)) != NULL); /* the failed ones are gone */
  scene_close(sky);
  return NULL;
}

/* The fonts of a frame at 1 and at 2: the same ones, twice as large. */
static float largest_font(SceneSky* sky) {
  SceneArray texts = {sizeof texts, 0, 0, NULL};
  float largest = 0.0f;
  uint32_t i;
  if (scene_compute(sky) != SCENE_OK || scene_get_array(sky, SCENE_TEXTS, &texts) != SCENE_OK) return 0.0f;
  for (i = 0; i < texts.count; ++i) {
    const float size = ((const float*)texts.records)[10 * i + 3];
    if (size > largest) largest = size;
  }
  return largest;
}

const char* check_enlargement(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  const SceneView view = winter_view();
  float plain, large;
  (void)file;
  CHECK(sky != NULL && scene_set_view(sky, &view) == SCENE_OK);
  plain = largest_font(sky);
  CHECK(scene_set_enlargement(sky, 2.0) == SCENE_OK);
  large = largest_font(sky);
  CHECK(plain > 1.0f && fabs((double)large - 2.0 * (double)plain) < 1e-3);
  CHECK(scene_set_enlargement(sky, 0.0) == SCENE_BAD_ARGUMENT && has_error(sky, "enlargement"));
  CHECK(scene_set_enlargement(sky, NAN) == SCENE_BAD_ARGUMENT);
  CHECK(largest_font(sky) == large);
  scene_close(sky);
  return NULL;
}

const char* check_frame(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneView view = winter_view();
  SceneArray runs = {sizeof runs, 0, 0, NULL}, points = runs, again = runs;
  uint32_t i, sum = 0;
  (void)file;
  CHECK(sky != NULL);
  CHECK(count_of(sky, SCENE_POINTS) == 0); /* before the first frame */
  CHECK(scene_set_view(sky, &view) == SCENE_OK && scene_compute(sky) == SCENE_OK);
  CHECK(scene_get_array(sky, SCENE_RUNS, &runs) == SCENE_OK && runs.record_size == 16);
  CHECK(scene_get_array(sky, SCENE_POINTS, &points) == SCENE_OK && points.record_size == 44);
  for (i = 0; i < runs.count; ++i) { /* type, layer, first, count */
    const int32_t* run = (const int32_t*)runs.records + 4 * i;
    if (run[0] == SCENE_POINTS) sum += (uint32_t)run[3];
  }
  CHECK(points.count > 300 && sum == points.count);
  CHECK(count_of(sky, SCENE_TEXTS) > 10 && count_of(sky, SCENE_TEXT_BYTES) > 100);
  CHECK(scene_get_array(sky, SCENE_POINTS, &again) == SCENE_OK && again.records == points.records);
  CHECK(scene_get_array(sky, 10, &again) == SCENE_BAD_ARGUMENT);
  scene_close(sky);
  return NULL;
}

const char* check_view(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneView view = winter_view(), read = {sizeof read, 0, 0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0};
  (void)file;
  CHECK(sky != NULL);
  CHECK(scene_get_view(sky, &read) == SCENE_OK && read.width == 1600 && read.height == 1000);
  CHECK(scene_set_view(sky, &view) == SCENE_OK && scene_get_view(sky, &read) == SCENE_OK);
  CHECK(read.size == sizeof read && read.width == 800 && read.height == 500 && read.zoom == 1.0);
  CHECK(fabs(read.latitude - 52.5) < 1e-12 && fabs(read.longitude - 13.4) < 1e-12);
  CHECK(read.julian_date == 2461056.375);
  CHECK(fabs(read.azimuth - 180.0) < 1e-9 && fabs(read.altitude - 35.0) < 1e-9);
  view.azimuth = 400.0; /* refused: nothing has changed */
  view.zoom = 3.0;
  CHECK(scene_set_view(sky, &view) == SCENE_BAD_ARGUMENT);
  CHECK(scene_get_view(sky, &read) == SCENE_OK && read.zoom == 1.0);
  scene_close(sky);
  return NULL;
}

const char* check_saved_view(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneView view = winter_view(), read = {sizeof read, 0, 0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0};
  CHECK(sky != NULL);
  CHECK(scene_read_view(sky, "views:orion.data", 1) == SCENE_OK);
  CHECK(scene_get_view(sky, &read) == SCENE_OK && read.width == 1600);
  CHECK(scene_set_view(sky, &view) == SCENE_OK && scene_save_view(sky, file, 5) == SCENE_OK);
  CHECK(scene_read_view(sky, "views:orion.data", 1) == SCENE_OK && scene_read_view(sky, file, 5) == SCENE_OK);
  CHECK(scene_get_view(sky, &read) == SCENE_OK && read.width == 800); /* the window's size stays */
  CHECK(fabs(read.azimuth - 180.0) < 1e-6 && fabs(read.altitude - 35.0) < 1e-6);
  CHECK(scene_save_view(sky, data, 5) == SCENE_BAD_DATA); /* a folder */
  scene_close(sky);
  return NULL;
}

/* The field of that section and name; its `size` is 0 when there is none. */
static SceneField find_field(SceneSky* sky, const char* section, const char* name) {
  SceneField field;
  int32_t i;
  for (i = 0; i < scene_get_field_count(sky); ++i) {
    memset(&field, 0, sizeof field);
    field.size = sizeof field;
    if (scene_get_field(sky, i, &field) == SCENE_OK && !strcmp(field.section, section) && !strcmp(field.name, name))
      return field;
  }
  field.size = 0;
  return field;
}

const char* check_settings(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneView view = winter_view();
  SceneField field;
  uint32_t lines;
  CHECK(sky != NULL && scene_set_view(sky, &view) == SCENE_OK && scene_compute(sky) == SCENE_OK);
  lines = count_of(sky, SCENE_POLYLINES);
  CHECK(scene_change_setting(sky, "grid.RADecGrid=1") == SCENE_OK && scene_compute(sky) == SCENE_OK);
  CHECK(count_of(sky, SCENE_POLYLINES) > lines);
  field = find_field(sky, "grid", "RADecGrid");
  CHECK(field.size == sizeof field && !strcmp(field.values, "1") && field.acts == 1);
  CHECK(scene_save_settings(sky, file) == SCENE_OK);
  CHECK(scene_change_setting(sky, "grid.RADecGrid=0") == SCENE_OK && scene_compute(sky) == SCENE_OK);
  CHECK(count_of(sky, SCENE_POLYLINES) == lines);
  CHECK(scene_read_settings(sky, file) == SCENE_OK && scene_compute(sky) == SCENE_OK);
  CHECK(count_of(sky, SCENE_POLYLINES) > lines);
  CHECK(scene_change_setting(sky, "grid.RADecGrit=1") == SCENE_BAD_ARGUMENT && has_error(sky, "RADecGrid"));
  CHECK(scene_change_setting(sky, "nonsense") == SCENE_BAD_ARGUMENT && has_error(sky, "SECTION"));
  CHECK(scene_change_setting(sky, "two\nlines") == SCENE_BAD_ARGUMENT && !strchr(scene_error(sky), '\n'));
  CHECK(scene_read_settings(sky, "views:orion.data") == SCENE_BAD_DATA && has_error(sky, "holds no settings"));
  CHECK(scene_get_field(sky, -1, &field) == SCENE_BAD_ARGUMENT);
  CHECK(scene_get_field(sky, scene_get_field_count(sky), &field) == SCENE_BAD_ARGUMENT);
  scene_close(sky);
  return NULL;
}

/* Sirius: 6h 45m 8.917s, -16 degrees 42' 58.02" (Hipparcos, epoch J2000); 26 years of proper motion later. */
const char* check_objects(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneView view = winter_view();
  SceneObject sirius = {0, 0}, none = {1, 1}, hits[2];
  SceneSight sight;
  int32_t count = 0;
  (void)file;
  memset(&sight, 0, sizeof sight);
  sight.size = sizeof sight;
  CHECK(sky != NULL && scene_set_view(sky, &view) == SCENE_OK);
  CHECK(scene_find(sky, "Sirius", &sirius) == SCENE_OK && sirius.number == 2491);
  CHECK(strstr(scene_get_title(sky, sirius), "HR 2491") != NULL);
  CHECK(scene_find(sky, "Siriuss", &none) == SCENE_NOT_FOUND && has_error(sky, "Sirius"));
  CHECK(scene_get_title(sky, none) == NULL && scene_observe(sky, none, &sight) == SCENE_NOT_FOUND);
  CHECK(scene_observe(sky, sirius, &sight) == SCENE_OK);
  CHECK(fabs(sight.right_ascension - (101.287155 - 26.04 * 0.54601 / 3600.0 / cos(16.716 / 57.29578))) < 3e-4);
  CHECK(fabs(sight.declination - (-16.716116 - 26.04 * 1.22307 / 3600.0)) < 3e-4);
  CHECK(sight.magnitude < -1.4 && sight.magnitude > -1.5);
  CHECK(is_unknown(sight.phase_angle) && is_unknown(sight.diameter));
  CHECK(sight.altitude > 15.0 && sight.altitude < 25.0 && sight.azimuth > 140.0 && sight.azimuth < 180.0);
  CHECK(scene_look_at(sky, sirius) == SCENE_OK && scene_compute(sky) == SCENE_OK);
  CHECK(scene_pick(sky, 400.0, 250.0, 3.0, hits, 2, &count) == SCENE_OK && count >= 1);
  CHECK(hits[0].kind == sirius.kind && hits[0].number == 2491);
  CHECK(scene_pick(sky, 400.0, 250.0, 3.0, NULL, 0, &count) == SCENE_OK && count >= 1);
  scene_close(sky);
  return NULL;
}

const char* check_projection(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneView view = winter_view();
  double pixels[6] = {400.0, 250.0, 10.0, 490.0, 799.5, 0.5}, vectors[9], back[6];
  int i;
  (void)file;
  CHECK(sky != NULL && scene_set_view(sky, &view) == SCENE_OK);
  CHECK(scene_unproject(sky, pixels, vectors, 3) == SCENE_OK && scene_project(sky, vectors, back, 3) == SCENE_OK);
  for (i = 0; i < 6; ++i) CHECK(fabs(back[i] - pixels[i]) < 1e-9);
  for (i = 0; i < 3; ++i) {
    const double* v = vectors + 3 * i;
    CHECK(fabs(v[0] * v[0] + v[1] * v[1] + v[2] * v[2] - 1.0) < 1e-12);
  }
  /* From the middle to a corner: 37 degrees at zoom 1. */
  pixels[2] = 0.0;
  pixels[3] = 0.0;
  CHECK(scene_unproject(sky, pixels, vectors, 2) == SCENE_OK);
  CHECK(fabs(acos(vectors[0] * vectors[3] + vectors[1] * vectors[4] + vectors[2] * vectors[5]) * 57.29577951308232 -
             37.0) < 1e-6);
  CHECK(scene_project(sky, vectors, back, 0) == SCENE_OK);
  scene_close(sky);
  return NULL;
}

const char* check_language(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneObject moon = {0, 0}, star = {0, 0};
  (void)file;
  CHECK(sky != NULL && scene_compute(sky) == SCENE_OK);
  CHECK(scene_set_language(sky, "de") == SCENE_OK && scene_find(sky, "Mond", &moon) == SCENE_OK);
  CHECK(scene_find(sky, "Betelgeuse", &star) == SCENE_OK);
  CHECK(strncmp(scene_get_title(sky, star), "Beteigeuze", 10) == 0);
  CHECK(scene_set_language(sky, "xx") == SCENE_BAD_ARGUMENT && has_error(sky, "de"));
  CHECK(scene_set_language(sky, NULL) == SCENE_BAD_ARGUMENT);
  CHECK(scene_set_language(sky, "en") == SCENE_OK && scene_find(sky, "Moon", &moon) == SCENE_OK);
  CHECK(strncmp(scene_get_title(sky, star), "Betelgeuse", 10) == 0 && scene_compute(sky) == SCENE_OK);
  scene_close(sky);
  return NULL;
}

/* A caller of a later version, which knows more members, and one that knows less than the first. */
const char* check_sizes(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  struct {
    SceneView view;
    double later;
  } large = {{sizeof large, 0, 0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0}, 7.0};
  SceneView small = winter_view();
  (void)file;
  CHECK(sky != NULL);
  CHECK(scene_get_view(sky, &large.view) == SCENE_OK);
  CHECK(large.later == 7.0 && large.view.size == sizeof large && large.view.zoom > 0.0);
  small.size = offsetof(SceneView, zoom);
  CHECK(scene_set_view(sky, &small) == SCENE_BAD_ARGUMENT);
  CHECK(scene_get_view(sky, &small) == SCENE_BAD_ARGUMENT);
  scene_close(sky);
  return NULL;
}
