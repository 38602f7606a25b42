/* SPDX-FileCopyrightText: the common_interfaces authors
 * SPDX-License-Identifier: MIT */
/* Views from elsewhere: `file` holds as number 1 that of a traveller, as 2 one from the ground of Mars, whose
 * horizon nobody knows. */
#include "exported/scene_c/checks.h"
#include "exported/scene_c/helpers.h"
#include "scene/scene_almanac_c.h"
#include "scene/scene_objects_c.h"

#define UNKNOWN(call) CHECK((call) == SCENE_NOT_FOUND && has_error(sky, "nobody can tell"))

const char* check_traveller(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneView view = winter_view();
  SceneDay day = {0};
  SceneNight night = {0};
  SceneSight sight = {0};
  SceneFrame frame = {0};
  SceneSpot spot = {0};
  SceneArray list = {sizeof list, 0, 0, NULL};
  SceneObject sirius;
  double altitudes[2];
  const double vector[3] = {1.0, 0.0, 0.0};
  day.size = sizeof day;
  night.size = sizeof night;
  sight.size = sizeof sight;
  frame.size = sizeof frame;
  spot.size = sizeof spot;
  CHECK(sky != NULL && scene_find(sky, "Sirius", &sirius) == SCENE_OK);
  CHECK(scene_read_view(sky, file, 1) == SCENE_OK && scene_compute(sky) == SCENE_OK);
  view.zoom = 0.0;
  CHECK(scene_get_view(sky, &view) == SCENE_BAD_ARGUMENT && has_error(sky, "no horizon") && view.zoom == 1.0);
  UNKNOWN(scene_get_day(sky, sirius, &day));
  UNKNOWN(scene_sample_altitudes(sky, sirius, 2461056.0, 2461057.0, altitudes, 2));
  UNKNOWN(scene_get_night(sky, &night));
  UNKNOWN(scene_observe(sky, sirius, &sight));
  UNKNOWN(scene_look_at(sky, sirius));
  CHECK(scene_turn(sky, vector, 1.0, 1.0) == SCENE_BAD_ARGUMENT && has_error(sky, "no horizon"));
  CHECK(scene_describe_pixel(sky, 1.0, 1.0, &spot) == SCENE_BAD_ARGUMENT && has_error(sky, "no horizon"));
  CHECK(scene_describe_frame(sky, &frame) == SCENE_OK && frame.stars > 0 && is_unknown(frame.sun_altitude));
  CHECK(scene_get_facts(sky, sirius, &list) == SCENE_OK && list.count > 0);
  /* What everybody sees: the full moon of 3 January 2026. */
  CHECK(scene_find_events(sky, 2461043.5, 2461046.5, "full-moon", &list) == SCENE_OK && list.count == 1);
  view = winter_view();
  CHECK(scene_set_view(sky, &view) == SCENE_OK && scene_compute(sky) == SCENE_OK);
  CHECK(scene_observe(sky, sirius, &sight) == SCENE_OK && scene_get_night(sky, &night) == SCENE_OK);
  scene_close(sky);
  return NULL;
}

const char* check_unknown_horizon(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneView view = winter_view();
  CHECK(sky != NULL && scene_read_view(sky, file, 2) == SCENE_BAD_DATA && has_error(sky, "not seen from the Earth"));
  CHECK(scene_compute(sky) == SCENE_BAD_DATA && has_error(sky, "the view is not seen from the Earth"));
  CHECK(scene_set_view(sky, &view) == SCENE_OK && scene_compute(sky) == SCENE_OK);
  scene_close(sky);
  return NULL;
}
