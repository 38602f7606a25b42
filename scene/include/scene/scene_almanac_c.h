/* SPDX-FileCopyrightText: the common_interfaces authors
 * SPDX-License-Identifier: MIT
 *
 * The almanac for C: the night of a view, what happens in the sky, cities and their clocks. What scene_c.h
 * says at its top holds here, and what scene_objects_c.h says about lists. */
#pragma once

#include <stdint.h>

#include "scene/scene_c.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The altitudes of the Sun that make a night darker. */
enum SceneDarkness {
  SCENE_DARKNESS_NONE = 0, /* the Sun does not set */
  SCENE_DARKNESS_SUNSET = 1,
  SCENE_DARKNESS_CIVIL = 2, /* the Sun is 6 degrees below the horizon, and so on */
  SCENE_DARKNESS_NAUTICAL = 3,
  SCENE_DARKNESS_ASTRONOMICAL = 4
};

/* The night at the place of the view, from noon to noon. All moments are Julian dates; not a number: does not
 * happen in it. */
typedef struct SceneNight {
  uint32_t size;
  int32_t darkness;       /* SceneDarkness: the deepest that the night has */
  double begin, end;      /* of the whole: the Sun's transits before and after it */
  double middle;          /* the Sun's lowest point */
  double sunset, sunrise; /* of the upper limb */
  double civil_dusk, civil_dawn;
  double nautical_dusk, nautical_dawn;
  double astronomical_dusk, astronomical_dawn;
  double moonrise, moonset; /* the first of each from the beginning of the night */
  double moon_phase_angle;  /* at the middle of the night: 0 full, 180 new */
  double moon_lit;          /* 0 to 1 */
  int32_t moon_waxes;       /* 1 before the full Moon */
  int32_t reserved;
  const char* moon_phase; /* "waxing crescent"; valid until the next call */
} SceneNight;

/* The night that is on at the moment of the view, or the next one. scene_sample_altitudes has the curves of
 * Sun and Moon for a bar (scene_objects_c.h). */
SCENE_API int scene_get_night(SceneSky* sky, SceneNight* night);

/* Something that happens in the sky, once or for a while. */
typedef struct SceneEvent {
  double julian_date;
  double begin, end;   /* Julian dates, of what lasts; else the moment itself */
  double value;        /* degrees, km, au or what the kind has (astro/sky_events.h) */
  SceneObject body;    /* which scene_observe takes; number 0 and kind 0 for none */
  SceneObject other;   /* the second body: likewise */
  const char* kind;    /* "full-moon"; frozen */
  const char* group;   /* "phases"; frozen */
  const char* text;    /* "Venus at greatest elongation west, 46.8°" */
  int32_t is_of_place; /* 1: at another time, or not at all, elsewhere on the Earth */
  int32_t reserved;
} SceneEvent;

/* What happens from `begin` to before `end`, Julian dates, at most 400 days apart, in the order of time.
 * `kinds`: names of kinds or groups with commas between them ("eclipses,phases,opposition"); null: all but
 * those of every day. A year of rare kinds takes some seconds: ask in spans of a week or a month where
 * somebody waits. SCENE_BAD_DATA where nobody can tell for a part of the span: `events` has then the
 * others. */
SCENE_API int scene_find_events(SceneSky* sky, double begin, double end, const char* kinds,
                                SceneArray* events);

/* A city of the catalog of cities. */
typedef struct SceneCity {
  double latitude, longitude; /* as those of a view */
  double height;              /* metres above the sea; 0: unknown */
  int32_t population;
  int32_t reserved;
  const char* name;         /* the one of its names that was looked for, else its own */
  const char* country;      /* "AU" */
  const char* country_name; /* "Australia" */
  const char* zone;         /* of the IANA database, "Australia/Sydney" */
} SceneCity;

/* Cities of which a name begins with `text`, those with the most inhabitants first, at most `most` (1 to
 * 100000); behind a comma the country may stand. "" has all. */
SCENE_API int scene_find_cities(SceneSky* sky, const char* text, int32_t most, SceneArray* cities);
/* The cities nearest to a place, the nearest first, at most `most` (1 to 100000). */
SCENE_API int scene_find_cities_near(SceneSky* sky, double latitude, double longitude, int32_t most,
                                     SceneArray* cities);

/* Local time minus Universal Time, in hours, in a zone of the IANA database at a moment. SCENE_NOT_FOUND for
 * a zone that neither the data root nor the system has: a browser knows the zones itself. */
SCENE_API int scene_get_zone_offset(SceneSky* sky, const char* zone, double julian_date, double* hours);

#ifdef __cplusplus
}
#endif
