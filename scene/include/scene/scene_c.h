/* SPDX-FileCopyrightText: the common_interfaces authors
 * SPDX-License-Identifier: MIT
 *
 * The scene for C and for languages that call C: a data root, a view, the frame of it as arrays, its objects.
 *
 *   SceneSky* sky;
 *   SceneRoots roots = {sizeof roots, "data", NULL, NULL};
 *   if (scene_open(&roots, &sky) == SCENE_OK && scene_compute(sky) == SCENE_OK) {
 *     SceneArray stars = {sizeof stars};
 *     scene_get_array(sky, SCENE_POINTS, &stars);
 *   }
 *   if (sky) puts(scene_error(sky));
 *   scene_close(sky);
 *
 * Every structure begins with its size in bytes, which the caller sets: later versions add members at the
 * end, and read and write only those that the caller knows. A size that is less than that of the first
 * version is refused. Texts are UTF-8. Angles are degrees; azimuth counts from north over east. Moments are
 * Julian dates of Universal Time. Pixels count from the upper left corner, y down; (0, 0) is the corner, not
 * the middle of a pixel.
 *
 * Functions return a SceneStatus. One that does not return SCENE_OK has changed nothing, but where it says
 * so, and scene_error tells why in one line. No exception leaves a function. Roots, language and the receiver
 * of diagnostic lines belong to the process: one sky is open at a time, and one thread uses it. */
#pragma once

#include <stdint.h>

#include "scene/api.h"

#ifdef __cplusplus
extern "C" {
#endif

/* What functions return. */
enum SceneStatus {
  SCENE_OK = 0,
  SCENE_BAD_ARGUMENT = 1, /* a null pointer, a size, a value out of its range, an unknown name of a setting */
  SCENE_BAD_DATA = 2,     /* a file is missing or damaged, or cannot be written */
  SCENE_NOT_FOUND = 3,    /* no such object, or nobody can tell where it is at that moment */
  SCENE_NO_MEMORY = 4,
  SCENE_FAILURE = 5 /* anything else that the system refused */
};

typedef struct SceneSky SceneSky;

/* Where the data are, and the language. */
typedef struct SceneRoots {
  uint32_t size;
  const char* data;     /* the data root */
  const char* work;     /* the work area, whose files hide those of the data root; null: none */
  const char* language; /* "en", "de", ...; null: the default */
} SceneRoots;

/* Reads the data root. A failure leaves a sky too, which knows scene_error and scene_close alone (every other
 * call is SCENE_BAD_DATA), but where there is no memory for it, where a sky is open and for bad arguments:
 * `*sky` is then null. The view is that of the defaults, 1600 x 1000 pixels. */
SCENE_API int scene_open(const SceneRoots* roots, SceneSky** sky);
/* Null: nothing happens. */
SCENE_API void scene_close(SceneSky* sky);

/* The line of the last call with this sky that failed, "" after one that did not; valid until the next call.
 */
SCENE_API const char* scene_error(const SceneSky* sky);

/* Who receives the diagnostic lines of loaders, each with its line feed; null: standard error again. `text`
 * is valid during the call. Applies to the process; without a sky. */
SCENE_API void scene_set_log(void (*log)(const char* text, void* context), void* context);

/* All texts and names in another language of the data root, from the next frame on; the arrays of the last
 * one are gone. Where the catalogs cannot be read any more, SCENE_BAD_DATA, the names stay. */
SCENE_API int scene_set_language(SceneSky* sky, const char* language);

/* Where the picture is looked at from, when, and where to. */
typedef struct SceneView {
  uint32_t size;
  int32_t width, height;      /* pixels, each 64 to 16384 */
  double latitude, longitude; /* of the place on the Earth, north and east positive: -90 to 90, -360 to 360 */
  double julian_date;         /* of Universal Time; the year -9999 to 9999 */
  double azimuth, altitude;   /* of the middle of the picture: 0 to 360, -90 to 90 */
  double zoom;                /* 0.25 to 10000; zoom 1 shows 37 degrees from the middle to a corner */
} SceneView;

/* SCENE_BAD_ARGUMENT for a view of a traveller, whose angles count from no horizon: `view` has then all but
 * them. */
SCENE_API int scene_get_view(SceneSky* sky, SceneView* view);
/* Wherever the view was from, it is then from the Earth. */
SCENE_API int scene_set_view(SceneSky* sky, const SceneView* view);
/* The view of that number in a file of saved views: a path, or a logical name such as "views:orion.data". The
 * size of the picture stays. What the file holds stays the camera's even when it cannot be drawn, which is
 * SCENE_BAD_DATA. */
SCENE_API int scene_read_view(SceneSky* sky, const char* file, int32_t number);
/* The file is replaced whole; other views in it stay. */
SCENE_API int scene_save_view(SceneSky* sky, const char* file, int32_t number);

/* One change of a setting: "grid.RADecGrid=1", "star.Draw=0", "cnst:off" (scene/visibility/setting_change.h
 * has the grammar). */
SCENE_API int scene_change_setting(SceneSky* sky, const char* change);
/* Settings that are kept in a file, laid over the defaults; kept there, the file replaced whole. */
SCENE_API int scene_read_settings(SceneSky* sky, const char* file);
SCENE_API int scene_save_settings(SceneSky* sky, const char* file);

/* A field of the settings. */
typedef struct SceneField {
  uint32_t size;
  char section[8];  /* "star"; a zero stands behind it */
  char name[64];    /* "Draw" or "@" and the hexadecimal name id; cut off where it is longer */
  char values[128]; /* as scene_change_setting takes them; "" where they are longer */
  int32_t is_on;    /* as a filter */
  int32_t acts;     /* 0: no picture follows it */
  int32_t type;     /* SceneFieldType */
  int32_t count;    /* of values */
  int32_t reserved;
  double least, most; /* of each value; not a number where there is no such range */
  char title[96];     /* in the language of the texts; "" where they have none */
  char choices[128];  /* of a choice or a sum: its values with commas between them, "0,1,2,3"; else "" */
} SceneField;

/* What the values of a field are. */
enum SceneFieldType {
  SCENE_FIELD_SWITCH = 0, /* 0 or 1 */
  SCENE_FIELD_SUM = 1,    /* a sum of the powers of two in `choices` */
  SCENE_FIELD_WHOLE = 2,  /* a whole number */
  SCENE_FIELD_REAL = 3,
  SCENE_FIELD_CHOICE = 4, /* one of `choices` */
  SCENE_FIELD_RANGE = 5,  /* a filter with several values */
  SCENE_FIELD_OTHER = 6   /* text, favourites, anything else */
};

/* The settings, 0 to scene_get_field_count - 1, section by section; 0 fields where there is no open sky. */
SCENE_API int32_t scene_get_field_count(const SceneSky* sky);
SCENE_API int scene_get_field(SceneSky* sky, int32_t index, SceneField* field);

/* How many times larger lines, points and texts are than in a picture of that size on a desk, from the next
 * frame on: more than 1, the default, for a small picture with many pixels, as that of a phone. 0.25 to 8. */
SCENE_API int scene_set_enlargement(SceneSky* sky, double enlargement);
/* Computes the frame of the view. Its arrays are valid until the next call of this function, of
 * scene_set_language, scene_set_option or scene_read_session (scene_state_c.h). */
SCENE_API int scene_compute(SceneSky* sky);

/* The arrays of the display list: docs/formats/display_list.md has the layouts of their records. The first
 * ten are the types of records that runs name. */
enum SceneArrayKind {
  SCENE_POINTS = 0,
  SCENE_DISCS = 1,
  SCENE_SHADOWS = 2,
  SCENE_POLYLINES = 3,
  SCENE_ELLIPSES = 4,
  SCENE_POLYGONS = 5,
  SCENE_GRADIENTS = 6,
  SCENE_TEXTS = 7,
  SCENE_MESHES = 8,
  SCENE_GLOBES = 9,
  SCENE_RUNS = 100, /* in the order of painting */
  SCENE_RINGS = 101,
  SCENE_VERTICES = 102,
  SCENE_COLOURS = 103,
  SCENE_TEXT_BYTES = 104
};

/* An array of the display list. */
typedef struct SceneArray {
  uint32_t size;
  uint32_t count;       /* of records */
  uint32_t record_size; /* bytes */
  const void* records;  /* the display list's own memory; null or anything where there are none */
} SceneArray;

/* Of the frame that was computed last; before the first one every array is empty. */
SCENE_API int scene_get_array(SceneSky* sky, int32_t kind, SceneArray* array);
/* The path of the map that a globe names by its index; null for an index that has none. Valid as long as the
 * sky. */
SCENE_API const char* scene_get_map(SceneSky* sky, int32_t index);

/* Numbers of a frame. */
typedef struct SceneFrame {
  uint32_t size;
  int32_t stars, deepsky, bodies;   /* how many are drawn */
  int32_t asteroids, satellites;    /* of the bodies */
  double star_limit;                /* magnitude of the faintest stars drawn where its sky is darkest */
  double label_limit;               /* of those with names */
  double deepsky_limit;             /* of galaxies */
  double field_width, field_height; /* degrees across the middle of the picture */
  double sun_altitude;              /* without refraction; not a number for a traveller */
} SceneFrame;

/* What the frame that was computed last shows, for a caption. */
SCENE_API int scene_describe_frame(SceneSky* sky, SceneFrame* frame);

/* An object: four-character code and number, as records of the frame and lists of favourites name it. */
typedef struct SceneObject {
  int32_t kind, number;
} SceneObject;

/* The one object of that name, as scene/search/object_search.h knows names. */
SCENE_API int scene_find(SceneSky* sky, const char* name, SceneObject* object);
/* Its names, "Sirius (alpha CMa, 9 CMa, HR 2491, HIP 32349)"; null for an object that is not in the catalogs.
 * Valid until the next call. */
SCENE_API const char* scene_get_title(SceneSky* sky, SceneObject object);
/* The objects of the last frame at a pixel or at most that many pixels beside it, the uppermost first: at
 * most `capacity` of them go to `objects`, `*count` is how many there are. */
SCENE_API int scene_pick(SceneSky* sky, double x, double y, double tolerance, SceneObject* objects,
                         int32_t capacity, int32_t* count);
/* Turns the view so that the object is in the middle of the picture. */
SCENE_API int scene_look_at(SceneSky* sky, SceneObject object);

/* An object as the observer of the view sees it. Not a number: unknown, or without a meaning for the object.
 */
typedef struct SceneSight {
  uint32_t size;
  uint32_t reserved;
  double right_ascension, declination;                 /* astrometric, J2000 */
  double right_ascension_of_date, declination_of_date; /* apparent */
  double azimuth, altitude;                            /* apparent, without refraction */
  double distance;                                     /* au */
  double magnitude;                                    /* visual */
  double diameter;                                     /* apparent */
  double phase_angle;                                  /* Sun - body - observer */
  double elongation;                                   /* from the Sun */
} SceneSight;

/* How the observer of the view sees the object at its moment. */
SCENE_API int scene_observe(SceneSky* sky, SceneObject object, SceneSight* sight);

/* Turns the view so that a direction (as scene_project takes it) stands under a pixel; the horizon stays
 * level. Where no turn brings it there (near the zenith, at the edge) the view comes as near as it can. What
 * was unprojected where a drag, a wheel or two fingers began is held under them by this, after a change of
 * zoom too. */
SCENE_API int scene_turn(SceneSky* sky, const double vector[3], double x, double y);

/* The pixels of `count` directions: unit vectors of the mean equator and equinox of J2000, x y z one after
 * the other, as they stand in the frame without aberration and refraction; pixels x y. A direction opposite
 * to the middle of the picture gives no numbers. The arrays must not overlap. */
SCENE_API int scene_project(SceneSky* sky, const double* vectors, double* pixels, int32_t count);
/* The other way round. */
SCENE_API int scene_unproject(SceneSky* sky, const double* pixels, double* vectors, int32_t count);

#ifdef __cplusplus
}
#endif
