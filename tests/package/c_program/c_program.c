/* SPDX-FileCopyrightText: the common_interfaces authors
 * SPDX-License-Identifier: MIT
 *
 * The smallest program in C that computes a frame with an installed package: c_program DATA_ROOT
 */
#include <scene/scene_c.h>

#include <stdio.h>

int main(int argument_count, char** arguments) {
  SceneRoots roots = {sizeof roots, argument_count > 1 ? arguments[1] : "", NULL, "en"};
  SceneView view = {sizeof view, 800, 600, 52.5, 13.4, 2461056.375, 180.0, 35.0, 1.0};
  SceneArray points = {sizeof points, 0, 0, NULL};
  SceneSky* sky;
  int status = scene_open(&roots, &sky);
  if (status == SCENE_OK) status = scene_set_view(sky, &view);
  if (status == SCENE_OK) status = scene_compute(sky);
  if (status == SCENE_OK) status = scene_get_array(sky, SCENE_POINTS, &points);
  if (status == SCENE_OK) printf("points from C: %u\n", (unsigned)points.count);
  if (status != SCENE_OK && sky) fprintf(stderr, "c_program: %s\n", scene_error(sky));
  scene_close(sky);
  return status == SCENE_OK && points.count == 0 ? 1 : status;
}
