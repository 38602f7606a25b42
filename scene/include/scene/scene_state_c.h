/* SPDX-FileCopyrightText: the common_interfaces authors
 * SPDX-License-Identifier: MIT
 *
 * What a view is shown with, for C: languages and texts, options that are no settings, favourites, sessions.
 * What scene_c.h says at its top holds here, and what scene_objects_c.h says about lists. */
#pragma once

#include <stdint.h>

#include "scene/scene_c.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A text of the string table, for captions: "" for a number that it does not have; formats are not filled in.
 * Valid until the language changes; null without an open sky. */
SCENE_API const char* scene_get_text(SceneSky* sky, int32_t number);

/* A language that the data root has texts in. */
typedef struct SceneLanguage {
  const char* code; /* "de", as scene_set_language takes it */
  const char* name; /* in itself, "Deutsch"; the code where the data root does not say */
} SceneLanguage;

/* The languages of the data root, ascending by code. */
SCENE_API int scene_get_languages(SceneSky* sky, SceneArray* languages);
/* The code of the language of the texts; valid until it changes. Null without an open sky. */
SCENE_API const char* scene_get_language(SceneSky* sky);

/* Options by name; "" takes one back. Values are those of skyview's options of the same name and of a
 * session's lines (docs/formats/session.md):
 *
 *   style             screen, print, night, photo
 *   landscape         the number of a landscape of the data root, or none; "": the default one
 *   legend            on, off; "": on in print
 *   bortle            1 to 9: how dark the sky of the site is
 *   limit-magnitude   0 to 6.5: the same by the faintest stars; takes `bortle` back, and the other way round
 *   eyepiece          true field in degrees; several with blanks between them
 *   sensor            WIDTHxHEIGHT@FOCUS[@ANGLE], mm and degrees; several with blanks between them
 *   telrad            on
 *   sky               none: black, without day, twilight and moonlight
 *   frames-of         constellations, deepsky, milkyway, with commas between them: outlines of images
 *   showers           on: radiants of meteor showers
 *   orbits            planets, or names with commas between them
 *   place             the name of the place of the view, which another latitude or longitude takes back
 *   zone              of the IANA database: whose clocks the texts show; one that has no file is kept, and
 *                     its clocks show Universal Time
 *
 * SCENE_BAD_ARGUMENT for an unknown name and for a value that is none. */
SCENE_API int scene_set_option(SceneSky* sky, const char* name, const char* value);
/* As scene_set_option takes it, "" where it is not set; null for an unknown name. Valid until the next
 * call. */
SCENE_API const char* scene_get_option(SceneSky* sky, const char* name);

/* An option and what it takes. */
typedef struct SceneOption {
  const char* name;
  const char* values; /* what it takes, "screen|print|night|photo" */
} SceneOption;

/* All options. */
SCENE_API int scene_get_options(SceneSky* sky, SceneArray* options);

/* Marks an object as a favourite, or takes the mark away: a ring in the frames that follow. */
SCENE_API int scene_mark(SceneSky* sky, SceneObject object, int32_t is_marked);

/* An object that is marked. */
typedef struct SceneFavourite {
  SceneObject object;
  const char* name; /* in the language of the texts; of what the catalogs lack, as the list has it */
} SceneFavourite;

/* The objects that are marked, in the order of the list. */
SCENE_API int scene_get_favourites(SceneSky* sky, SceneArray* favourites);
/* The list as the text of a favourites file (docs/formats), and such a text in place of the list. A line that
 * is none is left out with one diagnostic line. The text is valid until the next call; null for a failure. */
SCENE_API const char* scene_format_favourites(SceneSky* sky);
SCENE_API int scene_read_favourites(SceneSky* sky, const char* text);

/* All that the picture is drawn from as the text of a session, which skyview opens too; null, with a line,
 * where that fails. Valid until the next call. */
SCENE_API const char* scene_format_session(SceneSky* sky);
/* The view, settings, options and marks of a session in place of those there are; language and size of the
 * picture stay (scene_get_session_language). What no longer fits, and data files that are others than when it
 * was saved, are told in one diagnostic line each (scene_set_log). SCENE_BAD_DATA for a text that is wholly
 * or partly none. */
SCENE_API int scene_read_session(SceneSky* sky, const char* text);
/* The language of the session read last, "" before the first. */
SCENE_API const char* scene_get_session_language(const SceneSky* sky);

#ifdef __cplusplus
}
#endif
