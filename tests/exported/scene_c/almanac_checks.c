/* SPDX-FileCopyrightText: the common_interfaces authors
 * SPDX-License-Identifier: MIT */
#include <math.h>
#include <stdio.h>
#include <string.h>

#include "exported/scene_c/checks.h"
#include "exported/scene_c/helpers.h"
#include "scene/scene_almanac_c.h"
#include "scene/scene_objects_c.h"

/* Sirius over Berlin: its declination of date is -16.75 degrees, so it culminates 90 - 52.5 - 16.75 degrees
 * high. */
const char* check_day(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneView view = winter_view();
  SceneObject sirius, polaris, crux;
  SceneDay day = {sizeof day, 0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0};
  SceneSight sight;
  double altitudes[25];
  int i, highest = 0;
  (void)file;
  memset(&sight, 0, sizeof sight);
  sight.size = sizeof sight;
  CHECK(sky != NULL && scene_set_view(sky, &view) == SCENE_OK);
  CHECK(scene_find(sky, "Sirius", &sirius) == SCENE_OK && scene_find(sky, "Polaris", &polaris) == SCENE_OK);
  CHECK(scene_find(sky, "Acrux", &crux) == SCENE_OK);
  CHECK(scene_get_day(sky, sirius, &day) == SCENE_OK && day.stays == 0);
  CHECK(day.rise < day.transit || day.set < day.transit);
  CHECK(day.transit_altitude > 20.5 && day.transit_altitude < 21.0);
  CHECK(day.rise_azimuth > 100.0 && day.rise_azimuth < 130.0 && fabs(day.rise_azimuth + day.set_azimuth - 360.0) < 0.5);
  view.julian_date = day.transit;
  CHECK(scene_set_view(sky, &view) == SCENE_OK && scene_observe(sky, sirius, &sight) == SCENE_OK);
  CHECK(fabs(sight.azimuth - 180.0) < 0.01 && fabs(sight.altitude - day.transit_altitude) < 0.01);
  CHECK(scene_sample_altitudes(sky, sirius, day.transit - 0.5, day.transit + 0.5, altitudes, 25) == SCENE_OK);
  for (i = 1; i < 25; ++i) highest = altitudes[i] > altitudes[highest] ? i : highest;
  CHECK(highest == 12 && fabs(altitudes[12] - day.transit_altitude) < 1e-3);
  CHECK(scene_get_day(sky, polaris, &day) == SCENE_OK && day.stays == 1 && is_unknown(day.rise));
  CHECK(scene_get_day(sky, crux, &day) == SCENE_OK && day.stays == -1);
  CHECK(scene_sample_altitudes(sky, sirius, 0.0, NAN, altitudes, 25) == SCENE_BAD_ARGUMENT);
  CHECK(scene_sample_altitudes(sky, sirius, 0.0, 1.0, altitudes, 1) == SCENE_BAD_ARGUMENT);
  CHECK(scene_get_day(sky, sirius, NULL) == SCENE_BAD_ARGUMENT);
  scene_close(sky);
  return NULL;
}

/* Hours after the noon of 15 January 2026, Universal Time, from the Sun's place of low accuracy (Meeus 1998,
 * Astronomical Algorithms, chapter 25) and its altitudes of -50 minutes of arc and -6, -12, -18 degrees: good
 * to some seconds. */
static int is_hour(double date, double hour) { return fabs((date - 2461056.0) * 24.0 - hour) < 0.003; }

const char* check_night(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneView view = winter_view();
  SceneNight night;
  (void)file;
  memset(&night, 0, sizeof night);
  night.size = sizeof night;
  CHECK(sky != NULL && scene_set_view(sky, &view) == SCENE_OK);
  CHECK(scene_get_night(sky, &night) == SCENE_OK && night.darkness == SCENE_DARKNESS_ASTRONOMICAL);
  CHECK(is_hour(night.sunset, 3.3706) && is_hour(night.sunrise, 19.1481));
  CHECK(is_hour(night.civil_dusk, 4.0315) && is_hour(night.civil_dawn, 18.4898));
  CHECK(is_hour(night.nautical_dusk, 4.7469) && is_hour(night.nautical_dawn, 17.7764));
  CHECK(is_hour(night.astronomical_dusk, 5.4289) && is_hour(night.astronomical_dawn, 17.0960));
  CHECK(night.begin < night.sunset && night.astronomical_dusk < night.middle && night.middle < night.end);
  CHECK(night.moon_lit > 0.03 && night.moon_lit < 0.12 && night.moon_waxes == 0);
  CHECK(!strcmp(night.moon_phase, "waning crescent") && night.moon_phase_angle > 140.0);
  view.latitude = 70.0;
  view.julian_date = 2461213.0; /* 21 June 2026 */
  CHECK(scene_set_view(sky, &view) == SCENE_OK && scene_get_night(sky, &night) == SCENE_OK);
  CHECK(night.darkness == SCENE_DARKNESS_NONE && is_unknown(night.sunset) && is_unknown(night.civil_dusk));
  CHECK(scene_get_night(sky, NULL) == SCENE_BAD_ARGUMENT);
  scene_close(sky);
  return NULL;
}

/* Phases of the Moon in January 2026 (almanacs): full 3rd 10:03, last quarter 10th 15:48, new 18th 19:52,
 * first quarter 26th 04:47 UT. */
const char* check_events(const char* data, const char* file) {
  static const double dates[] = {2461043.9188, 2461051.1583, 2461059.3278, 2461066.6993};
  static const char* const kinds[] = {"full-moon", "last-quarter", "new-moon", "first-quarter"};
  SceneSky* sky = open_sky(data);
  SceneView view = winter_view();
  SceneArray list = {sizeof list, 0, 0, NULL};
  uint32_t i;
  (void)file;
  CHECK(sky != NULL && scene_set_view(sky, &view) == SCENE_OK);
  CHECK(scene_find_events(sky, 2461041.5, 2461072.5, "phases", &list) == SCENE_OK && list.count == 4);
  for (i = 0; i < 4; ++i) {
    const SceneEvent* event = record_of(&list, i);
    CHECK(!strcmp(event->kind, kinds[i]) && !strcmp(event->group, "phases") && event->is_of_place == 0);
    CHECK(fabs(event->julian_date - dates[i]) < 0.002 && event->begin == event->julian_date);
  }
  CHECK(scene_find_events(sky, 2461041.5, 2461072.5, "full-moon,planets", &list) == SCENE_OK && list.count > 1);
  CHECK(scene_set_language(sky, "de") == SCENE_OK);
  CHECK(scene_find_events(sky, 2461041.5, 2461045.5, "full-moon", &list) == SCENE_OK && list.count == 1);
  CHECK(!strcmp(((const SceneEvent*)record_of(&list, 0))->text, "Vollmond"));
  CHECK(scene_find_events(sky, 2461041.5, 2461072.5, "full-mon", &list) == SCENE_BAD_ARGUMENT && has_error(sky, "full-mon"));
  CHECK(scene_find_events(sky, 2461041.5, 2461541.5, NULL, &list) == SCENE_BAD_ARGUMENT && has_error(sky, "400"));
  CHECK(scene_find_events(sky, NAN, 2461541.5, NULL, &list) == SCENE_BAD_ARGUMENT);
  scene_close(sky);
  return NULL;
}

const char* check_places(const char* data, const char* file) {
  SceneSky* sky = open_sky(data);
  SceneArray list = {sizeof list, 0, 0, NULL};
  const SceneCity* city;
  double hours = 0.0;
  uint32_t all;
  (void)file;
  CHECK(sky != NULL && scene_find_cities(sky, "syd", 5, &list) == SCENE_OK && list.count >= 1);
  city = record_of(&list, 0);
  CHECK(!strcmp(city->name, "Sydney") && !strcmp(city->country, "AU") && !strcmp(city->zone, "Australia/Sydney"));
  CHECK(fabs(city->latitude + 33.87) < 0.05 && fabs(city->longitude - 151.21) < 0.05 && city->population > 3000000);
  CHECK(scene_find_cities(sky, "", 100000, &list) == SCENE_OK && list.count > 1000);
  all = list.count;
  CHECK(((const SceneCity*)record_of(&list, 0))->population >= ((const SceneCity*)record_of(&list, all - 1))->population);
  CHECK(scene_find_cities(sky, "xyzzy", 5, &list) == SCENE_OK && list.count == 0);
  CHECK(scene_find_cities_near(sky, 48.15, 11.6, 3, &list) == SCENE_OK && list.count == 3);
  city = record_of(&list, 0);
  CHECK(!strcmp(city->zone, "Europe/Berlin") && fabs(city->latitude - 48.14) < 0.1 && fabs(city->longitude - 11.58) < 0.1);
  CHECK(scene_find_cities_near(sky, 91.0, 0.0, 3, &list) == SCENE_BAD_ARGUMENT);
  CHECK(scene_find_cities(sky, NULL, 3, &list) == SCENE_BAD_ARGUMENT);
  CHECK(scene_get_zone_offset(sky, "Europe/Berlin", 2461056.0, &hours) == SCENE_OK && fabs(hours - 1.0) < 1e-9);
  CHECK(scene_get_zone_offset(sky, "Europe/Berlin", 2461213.0, &hours) == SCENE_OK && fabs(hours - 2.0) < 1e-9);
  CHECK(scene_get_zone_offset(sky, "Europe/Berlyn", 2461056.0, &hours) == SCENE_NOT_FOUND && has_error(sky, "Berlyn"));
  CHECK(scene_get_zone_offset(sky, NULL, 2461056.0, &hours) == SCENE_BAD_ARGUMENT);
  scene_close(sky);
  return NULL;
}
