/* SPDX-FileCopyrightText: the common_interfaces authors
 * SPDX-License-Identifier: MIT
 *
 * Objects for C: names that begin like what is being typed, what is known of an object, why it is drawn or
 * not, when it rises and sets. What scene_c.h says at its top holds here.
 *
 * Lists are a SceneArray of records that belong to the sky. Walk them by their `record_size`, for later
 * versions add members at the end of a record. A list and the texts in it are valid until the next call of
 * the function that gave it, or until the language changes. Texts are never null. */
#pragma once

#include <stdint.h>

#include "scene/scene_c.h"

#ifdef __cplusplus
extern "C" {
#endif

/* An object whose name begins like the text. */
typedef struct SceneSuggestion {
  SceneObject object;
  const char* name;  /* the one of its names that begins so: "Polaris" */
  const char* title; /* its best known name in the language of the texts: "Polarstern" */
  const char* kind;  /* in words of the language, "star"; "" where there is no word */
} SceneSuggestion;

/* Objects of which a name begins with `text`, the best first, at most `most` of them (1 to 100), each once:
 * names in all languages, letters, catalogue numbers ("M 3", "HIP 32349"). What is called exactly so comes
 * first, then what is known best. None for a text without letters and digits. The first call
 * reads lists of names and takes longer. */
SCENE_API int scene_suggest(SceneSky* sky, const char* text, int32_t most, SceneArray* suggestions);

/* What a fact is about. Callers keep the numbers: frozen. */
enum SceneFactKind {
  SCENE_FACT_NAME = 0,        /* the best known name */
  SCENE_FACT_OTHER_NAMES = 1, /* all others, with commas between them */
  SCENE_FACT_KIND = 2,        /* "spiral galaxy", "crater" */
  SCENE_FACT_CONSTELLATION = 3,
  SCENE_FACT_SPECTRAL_TYPE = 4,
  SCENE_FACT_J2000 = 5,      /* right ascension and declination */
  SCENE_FACT_OF_DATE = 6,    /* likewise */
  SCENE_FACT_DIRECTION = 7,  /* azimuth and altitude, without refraction */
  SCENE_FACT_REFRACTION = 8, /* altitude with it */
  SCENE_FACT_DISTANCE = 9,
  SCENE_FACT_MAGNITUDE = 10,
  SCENE_FACT_SIZE = 11,    /* and how much of a disc is lit */
  SCENE_FACT_BESIDES = 12, /* of a double star, of the place of a feature: any number of them */
  SCENE_FACT_RISE = 13, /* these three: on the day of the view, as scene_get_day, by the clocks of its zone */
  SCENE_FACT_TRANSIT = 14,
  SCENE_FACT_SET = 15,
  SCENE_FACT_WARNING = 16 /* the model of the planets does not hold at that moment */
};

/* One thing known of an object. */
typedef struct SceneFact {
  int32_t kind;        /* SceneFactKind */
  const char* caption; /* "Magnitude"; "" where the text says it all */
  const char* text;    /* "-1.44" */
} SceneFact;

/* What is known of an object, in the language of the texts and in the order in which people read it; what is
 * not known is not in the list. Where nobody can tell where the object is, what depends on its place is left
 * out. */
SCENE_API int scene_get_facts(SceneSky* sky, SceneObject object, SceneArray* facts);

/* What a reason is about. Callers keep the numbers: frozen. */
enum SceneReasonKind {
  SCENE_REASON_DRAWN = 0,  /* it is drawn */
  SCENE_REASON_HIDDEN = 1, /* what keeps it from being drawn: any number of them */
  SCENE_REASON_LABEL = 2,  /* what became of its name */
  SCENE_REASON_ZOOM = 3    /* from which zoom on it is drawn */
};

/* One reason why an object is drawn or not. */
typedef struct SceneReason {
  int32_t kind;     /* SceneReasonKind */
  const char* text; /* one line in the language of the texts */
  const char* fix;  /* the change of a setting that ends it, "star.Draw=1"; "" for none */
} SceneReason;

/* Why the object is drawn, or not drawn, in the frame that was computed last. */
SCENE_API int scene_explain(SceneSky* sky, SceneObject object, SceneArray* reasons);

/* An object's way over the horizon on the day of the view: from midnight to midnight by the clocks of its
 * zone; what does not happen then, the next time after it. Of a satellite the pass that is on, else the next
 * one within a day. Not a number: does not happen. */
typedef struct SceneDay {
  uint32_t size;
  int32_t stays;             /* -1 below the horizon all day, 1 above it, 0 neither */
  double rise, transit, set; /* Julian dates; a transit is where a satellite stands highest */
  double rise_azimuth;       /* of the rise */
  double transit_altitude;   /* without refraction */
  double set_azimuth;
} SceneDay;

/* Its way on the day of the view. */
SCENE_API int scene_get_day(SceneSky* sky, SceneObject object, SceneDay* day);

/* Altitudes of an object at `count` moments, evenly spread from `begin` to `end`, both among them, Julian
 * dates: without refraction; not a number where nobody can tell. */
SCENE_API int scene_sample_altitudes(SceneSky* sky, SceneObject object, double begin, double end,
                                     double* altitudes, int32_t count);

/* What lies at a pixel where no object is drawn. */
typedef struct SceneSpot {
  uint32_t size;
  int32_t is_ground;                   /* 1 where the ground hides the sky */
  double right_ascension, declination; /* J2000 */
  double azimuth, altitude;            /* as it is seen, with refraction where the frame has it */
  const char* constellation; /* in the language of the texts, "" where unknown; valid until the next call */
} SceneSpot;

/* The sky at that pixel of the picture; (0, 0) is its upper left corner. */
SCENE_API int scene_describe_pixel(SceneSky* sky, double x, double y, SceneSpot* spot);

#ifdef __cplusplus
}
#endif
