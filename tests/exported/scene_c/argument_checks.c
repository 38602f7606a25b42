/* SPDX-FileCopyrightText: the common_interfaces authors
 * SPDX-License-Identifier: MIT */
/* Each argument of each call wrong by itself: a null pointer, a structure that is too small, a number beside
 * its range. The call is refused with a line. */
#include <stddef.h>

#include "exported/scene_c/checks.h"
#include "exported/scene_c/helpers.h"
#include "scene/scene_almanac_c.h"
#include "scene/scene_objects_c.h"
#include "scene/scene_state_c.h"

#define REFUSED(call) CHECK((call) == SCENE_BAD_ARGUMENT && *scene_error(sky))

/* The real numbers of a view, one behind the other. */
enum { kNumbers = (offsetof(SceneView, zoom) - offsetof(SceneView, latitude)) / sizeof(double) + 1 };
static const char* const kNames[kNumbers] = {"latitude", "longitude", "julian_date", "azimuth", "altitude", "zoom"};
static const double kLeast[kNumbers] = {-90.0, -360.0, -1931076.5, 0.0, -90.0, 0.25};
static const double kMost[kNumbers] = {90.0, 360.0, 5373850.5, 360.0, 90.0, 10000.0};

const char* check_ranges(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneView view = winter_view();
  int i;
  (void)file;
  CHECK(sky != NULL);
  for (i = 0; i < kNumbers; ++i) {
    double* const number = &view.latitude + i;
    view = winter_view();
    *number = kLeast[i];
    CHECK(scene_set_view(sky, &view) == SCENE_OK);
    *number = kMost[i];
    CHECK(scene_set_view(sky, &view) == SCENE_OK);
    *number = kLeast[i] - 0.01;
    CHECK(scene_set_view(sky, &view) == SCENE_BAD_ARGUMENT && has_error(sky, kNames[i]));
    *number = kMost[i] + 0.01;
    CHECK(scene_set_view(sky, &view) == SCENE_BAD_ARGUMENT && has_error(sky, kNames[i]));
    *number = NAN;
    CHECK(scene_set_view(sky, &view) == SCENE_BAD_ARGUMENT && has_error(sky, kNames[i]));
  }
  for (i = 0; i < 2; ++i) {
    view = winter_view();
    (&view.width)[i] = 63;
    CHECK(scene_set_view(sky, &view) == SCENE_BAD_ARGUMENT && has_error(sky, i == 0 ? "width" : "height"));
    (&view.width)[i] = 16385;
    CHECK(scene_set_view(sky, &view) == SCENE_BAD_ARGUMENT && has_error(sky, i == 0 ? "width" : "height"));
  }
  REFUSED(scene_set_enlargement(sky, 0.249));
  REFUSED(scene_set_enlargement(sky, 8.001));
  CHECK(scene_set_enlargement(sky, 0.25) == SCENE_OK && scene_set_enlargement(sky, 8.0) == SCENE_OK);
  scene_close(sky);
  return NULL;
}

/* Views, files, pixels and frames. */
static const char* check_view_arguments(SceneSky* sky) {
  SceneView view = winter_view();
  SceneArray list = {sizeof list - 1, 0, 0, NULL};
  SceneField field = {sizeof field, "", "", "", 0, 0, 0, 0, 0, 0.0, 0.0, "", ""};
  SceneFrame frame = {0};
  SceneSpot spot = {0};
  SceneObject objects[2];
  double vector[3] = {1.0, 0.0, 0.0}, pixel[2] = {10.0, 10.0};
  int32_t count = 7;
  REFUSED(scene_get_view(sky, NULL));
  REFUSED(scene_read_view(sky, "views:orion.data", -1));
  REFUSED(scene_save_view(sky, NULL, 1));
  REFUSED(scene_save_view(sky, "view.data", -1));
  REFUSED(scene_change_setting(sky, NULL));
  REFUSED(scene_read_settings(sky, NULL));
  REFUSED(scene_save_settings(sky, NULL));
  REFUSED(scene_get_field(sky, 0, NULL));
  field.size = offsetof(SceneField, acts);
  REFUSED(scene_get_field(sky, 0, &field));
  CHECK(scene_set_view(sky, &view) == SCENE_OK && scene_compute(sky) == SCENE_OK);
  REFUSED(scene_get_array(sky, SCENE_POINTS, NULL));
  REFUSED(scene_get_array(sky, SCENE_POINTS, &list));
  list.size = sizeof list;
  REFUSED(scene_get_array(sky, -1, &list));
  REFUSED(scene_describe_frame(sky, &frame)); /* of no size */
  REFUSED(scene_describe_pixel(sky, 1.0, 1.0, &spot));
  spot.size = sizeof spot;
  REFUSED(scene_describe_pixel(sky, 1.0, NAN, &spot));
  REFUSED(scene_turn(sky, vector, NAN, 1.0));
  REFUSED(scene_turn(sky, vector, 1.0, INFINITY));
  REFUSED(scene_project(sky, NULL, pixel, 1));
  REFUSED(scene_project(sky, vector, pixel, -1));
  REFUSED(scene_unproject(sky, NULL, vector, 1));
  REFUSED(scene_unproject(sky, pixel, NULL, 1));
  REFUSED(scene_pick(sky, 1.0, 1.0, 1.0, objects, 2, NULL));
  REFUSED(scene_pick(sky, 1.0, 1.0, 1.0, objects, -1, &count));
  REFUSED(scene_pick(sky, 1.0, 1.0, 1.0, NULL, 2, &count));
  REFUSED(scene_pick(sky, 1.0, INFINITY, 1.0, objects, 2, &count));
  REFUSED(scene_pick(sky, 1.0, 1.0, -0.5, objects, 2, &count));
  REFUSED(scene_pick(sky, 1.0, 1.0, NAN, objects, 2, &count));
  CHECK(count == 7 && scene_pick(sky, 1.0, 1.0, 0.0, NULL, 0, &count) == SCENE_OK);
  return NULL;
}

/* Objects, days, events and places. */
static const char* check_object_arguments(SceneSky* sky) {
  const double date = 2461056.0;
  SceneArray list = {sizeof list, 0, 0, NULL}, small = {sizeof small - 1, 0, 0, NULL};
  SceneSight sight = {0};
  SceneDay day = {0};
  SceneNight night = {0};
  SceneObject sirius;
  double altitudes[2], hours = 0.0;
  REFUSED(scene_find(sky, "Sirius", NULL));
  REFUSED(scene_find(sky, NULL, &sirius));
  CHECK(scene_find(sky, "Sirius", &sirius) == SCENE_OK);
  REFUSED(scene_observe(sky, sirius, NULL));
  REFUSED(scene_observe(sky, sirius, &sight)); /* of no size */
  REFUSED(scene_get_day(sky, sirius, &day));
  REFUSED(scene_get_night(sky, &night));
  REFUSED(scene_get_facts(sky, sirius, &small));
  REFUSED(scene_explain(sky, sirius, &small));
  REFUSED(scene_suggest(sky, "a", 101, &list));
  REFUSED(scene_suggest(sky, "a", 3, &small));
  REFUSED(scene_sample_altitudes(sky, sirius, date, date + 1.0, NULL, 2));
  REFUSED(scene_sample_altitudes(sky, sirius, date, date + 1.0, altitudes, 100001));
  REFUSED(scene_sample_altitudes(sky, sirius, -2e6, date, altitudes, 2));
  REFUSED(scene_find_events(sky, date, date + 1.0, NULL, NULL));
  REFUSED(scene_find_events(sky, date, date + 1.0, NULL, &small));
  REFUSED(scene_find_events(sky, date, 6e6, NULL, &list));
  REFUSED(scene_find_events(sky, date, date + 1.0, "full-moon,", &list));
  REFUSED(scene_find_cities(sky, "a", 0, &list));
  REFUSED(scene_find_cities(sky, "a", 100001, &list));
  REFUSED(scene_find_cities(sky, "a", 3, NULL));
  REFUSED(scene_find_cities_near(sky, NAN, 0.0, 3, &list));
  REFUSED(scene_find_cities_near(sky, 0.0, 360.1, 3, &list));
  REFUSED(scene_find_cities_near(sky, 0.0, 0.0, 0, &list));
  REFUSED(scene_find_cities_near(sky, 0.0, 0.0, 100001, &list));
  REFUSED(scene_find_cities_near(sky, 0.0, 0.0, 3, &small));
  REFUSED(scene_get_zone_offset(sky, "Europe/Berlin", NAN, &hours));
  REFUSED(scene_get_zone_offset(sky, "Europe/Berlin", date, NULL));
  return NULL;
}

/* Options, texts and favourites. */
static const char* check_state_arguments(SceneSky* sky) {
  SceneArray small = {sizeof small - 1, 0, 0, NULL};
  REFUSED(scene_get_options(sky, NULL));
  REFUSED(scene_get_options(sky, &small));
  REFUSED(scene_get_languages(sky, &small));
  REFUSED(scene_get_favourites(sky, NULL));
  REFUSED(scene_get_favourites(sky, &small));
  CHECK(scene_get_option(sky, NULL) == NULL && *scene_error(sky));
  CHECK(scene_get_option(sky, "colour") == NULL && *scene_error(sky));
  CHECK(scene_get_map(NULL, 0) == NULL && scene_get_text(NULL, 1) == NULL && scene_get_option(NULL, "zone") == NULL);
  CHECK(scene_format_session(NULL) == NULL && scene_format_favourites(NULL) == NULL);
  CHECK(!strcmp(scene_get_session_language(NULL), ""));
  return NULL;
}

const char* check_arguments(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  const char* wrong = sky ? check_view_arguments(sky) : "no sky";
  (void)file;
  if (!wrong) wrong = check_object_arguments(sky);
  if (!wrong) wrong = check_state_arguments(sky);
  scene_close(sky);
  return wrong;
}
