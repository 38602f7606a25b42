/* SPDX-FileCopyrightText: the common_interfaces authors
 * SPDX-License-Identifier: MIT
 *
 * Checks of the C interface, written in C: each returns what does not hold, or null. `data` is a data root,
 * `file` a path that may be written. */
#pragma once

#ifdef __cplusplus
extern "C" {
#endif

const char* check_refusals(const char* data, const char* file);
const char* check_missing_root(const char* data, const char* file);
const char* check_enlargement(const char* data, const char* file);
const char* check_frame(const char* data, const char* file);
const char* check_view(const char* data, const char* file);
const char* check_saved_view(const char* data, const char* file);
const char* check_settings(const char* data, const char* file);
const char* check_objects(const char* data, const char* file);
const char* check_projection(const char* data, const char* file);
const char* check_language(const char* data, const char* file);
const char* check_sizes(const char* data, const char* file);
const char* check_suggestions(const char* data, const char* file);
const char* check_facts(const char* data, const char* file);
const char* check_reasons(const char* data, const char* file);
const char* check_day(const char* data, const char* file);
const char* check_night(const char* data, const char* file);
const char* check_events(const char* data, const char* file);
const char* check_places(const char* data, const char* file);
const char* check_turn(const char* data, const char* file);
const char* check_spot(const char* data, const char* file);
const char* check_frame_facts(const char* data, const char* file);
const char* check_map(const char* data, const char* file);
const char* check_texts(const char* data, const char* file);
const char* check_options(const char* data, const char* file);
const char* check_favourites(const char* data, const char* file);
const char* check_session(const char* data, const char* file);
const char* check_ranges(const char* data, const char* file);
const char* check_arguments(const char* data, const char* file);
const char* check_traveller(const char* data, const char* file);
const char* check_unknown_horizon(const char* data, const char* file);

#ifdef __cplusplus
}
#endif
