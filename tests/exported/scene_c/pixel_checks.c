/* SPDX-FileCopyrightText: the common_interfaces authors
 * SPDX-License-Identifier: MIT */
#include <math.h>
#include <stdio.h>
#include <string.h>

#include "exported/scene_c/checks.h"
#include "exported/scene_c/helpers.h"
#include "scene/scene_objects_c.h"
#include "scene/scene_state_c.h"

/* How far the direction is from the pixel in the view as it is now. */
static double miss(SceneSky* sky, const double vector[3], double x, double y) {
  double pixel[2];
  if (scene_project(sky, vector, pixel, 1) != SCENE_OK) return 1e9;
  return hypot(pixel[0] - x, pixel[1] - y);
}

const char* check_turn(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneView view = winter_view();
  double held[2] = {500.0, 200.0}, vector[3], none[3] = {NAN, 0.0, 0.0};
  (void)file;
  CHECK(sky != NULL && scene_set_view(sky, &view) == SCENE_OK && scene_unproject(sky, held, vector, 1) == SCENE_OK);
  CHECK(scene_turn(sky, vector, 300.0, 350.0) == SCENE_OK && miss(sky, vector, 300.0, 350.0) < 1e-6);
  CHECK(scene_get_view(sky, &view) == SCENE_OK && view.altitude > 35.0);
  CHECK(scene_turn(sky, vector, 500.0, 200.0) == SCENE_OK && scene_get_view(sky, &view) == SCENE_OK);
  CHECK(fabs(view.azimuth - 180.0) < 1e-6 && fabs(view.altitude - 35.0) < 1e-6); /* back where it was */
  view.zoom = 4.0;
  CHECK(scene_set_view(sky, &view) == SCENE_OK && scene_turn(sky, vector, 500.0, 200.0) == SCENE_OK);
  CHECK(miss(sky, vector, 500.0, 200.0) < 1e-6); /* a wheel towards the cursor */
  view.zoom = 1.0;
  view.altitude = 80.0;
  CHECK(scene_set_view(sky, &view) == SCENE_OK && scene_unproject(sky, held, vector, 1) == SCENE_OK);
  CHECK(scene_turn(sky, vector, 500.0, 490.0) == SCENE_OK && scene_get_view(sky, &view) == SCENE_OK);
  CHECK(view.altitude <= 90.0 && view.altitude >= 80.0); /* the horizon stays level and below */
  CHECK(scene_turn(sky, none, 1.0, 1.0) == SCENE_BAD_ARGUMENT && scene_turn(sky, NULL, 1.0, 1.0) == SCENE_BAD_ARGUMENT);
  scene_close(sky);
  return NULL;
}

const char* check_spot(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneView view = winter_view();
  SceneSpot spot;
  SceneObject betelgeuse;
  SceneSight sight;
  (void)file;
  memset(&spot, 0, sizeof spot);
  spot.size = sizeof spot;
  memset(&sight, 0, sizeof sight);
  sight.size = sizeof sight;
  CHECK(sky != NULL && scene_set_view(sky, &view) == SCENE_OK);
  CHECK(scene_find(sky, "Betelgeuse", &betelgeuse) == SCENE_OK && scene_look_at(sky, betelgeuse) == SCENE_OK);
  CHECK(scene_observe(sky, betelgeuse, &sight) == SCENE_OK && scene_describe_pixel(sky, 400.0, 250.0, &spot) == SCENE_OK);
  CHECK(!strcmp(spot.constellation, "Orion") && spot.is_ground == 0);
  /* Aberration moves a star by up to 20.5 seconds of arc; the picture lies higher by the refraction. */
  CHECK(fabs(spot.right_ascension - sight.right_ascension) < 0.01 && fabs(spot.declination - sight.declination) < 0.01);
  CHECK(fabs(spot.azimuth - sight.azimuth) < 0.001 && spot.altitude > sight.altitude && spot.altitude < sight.altitude + 0.1);
  view.altitude = -30.0;
  CHECK(scene_set_view(sky, &view) == SCENE_OK && scene_describe_pixel(sky, 400.0, 250.0, &spot) == SCENE_OK);
  CHECK(spot.is_ground == 1 && fabs(spot.altitude + 30.0) < 1e-6 && fabs(spot.azimuth - 180.0) < 1e-6);
  CHECK(scene_describe_pixel(sky, NAN, 0.0, &spot) == SCENE_BAD_ARGUMENT);
  CHECK(scene_describe_pixel(sky, 0.0, 0.0, NULL) == SCENE_BAD_ARGUMENT);
  scene_close(sky);
  return NULL;
}

const char* check_frame_facts(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneView view = winter_view();
  SceneFrame frame;
  int32_t stars;
  (void)file;
  memset(&frame, 0, sizeof frame);
  frame.size = sizeof frame;
  CHECK(sky != NULL && scene_set_view(sky, &view) == SCENE_OK);
  CHECK(scene_describe_frame(sky, &frame) == SCENE_NOT_FOUND && has_error(sky, "no frame"));
  CHECK(scene_compute(sky) == SCENE_OK && scene_describe_frame(sky, &frame) == SCENE_OK);
  stars = frame.stars;
  CHECK(stars > 300 && frame.star_limit > 5.0 && frame.star_limit < 8.0 && frame.label_limit < frame.star_limit);
  CHECK(frame.bodies >= 1 && frame.sun_altitude < -18.0); /* Jupiter; the night */
  /* 37 degrees from the middle to a corner of 800 x 500: of tan(37 / 2) 800 parts in 943.4. */
  CHECK(fabs(frame.field_width - 4.0 * atan(tan(18.5 / 57.29577951308232) * 800.0 / hypot(800.0, 500.0)) * 57.29577951308232) < 1e-6);
  CHECK(frame.field_height < frame.field_width);
  CHECK(scene_set_option(sky, "bortle", "8") == SCENE_OK && scene_compute(sky) == SCENE_OK);
  CHECK(scene_describe_frame(sky, &frame) == SCENE_OK && frame.stars < stars);
  CHECK(scene_describe_frame(sky, NULL) == SCENE_BAD_ARGUMENT);
  scene_close(sky);
  return NULL;
}

/* Jupiter's disc in a view of some minutes of arc is a globe with a map. */
const char* check_map(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneView view = winter_view();
  SceneObject jupiter;
  const char* map;
  FILE* opened;
  (void)file;
  view.zoom = 1000.0;
  CHECK(sky != NULL && scene_set_view(sky, &view) == SCENE_OK);
  CHECK(scene_find(sky, "Jupiter", &jupiter) == SCENE_OK && scene_look_at(sky, jupiter) == SCENE_OK);
  CHECK(scene_compute(sky) == SCENE_OK && count_of(sky, SCENE_GLOBES) >= 1);
  CHECK((map = scene_get_map(sky, 0)) != NULL && strlen(map) > 4);
  CHECK((opened = fopen(map, "rb")) != NULL && fclose(opened) == 0);
  CHECK(scene_get_map(sky, 1000) == NULL);
  scene_close(sky);
  return NULL;
}
