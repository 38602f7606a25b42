// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "scene/api.h"
#include "scene/catalogs/bodies.h"
#include "scene/view/earth_observer.h"

namespace scene {

// Appends the satellites of a two-line file: UTF-8, for each a line with its name, which may be missing and
// may begin with "0 ", and the two lines of its elements; lines that begin with '#' and blank lines are
// passed over; a byte-order mark and CR LF are understood. A satellite without a name is called by its
// catalogue number. A set that is damaged or that the model refuses is left out with one diagnostic line; so
// is one of a number that came before. False when the file cannot be read or holds no set that can be used:
// `error` is then one line that names the file.
SCENE_API bool LoadSatellites(const std::string& path, BodyList& bodies, std::string& error);

// Says of which satellites the places are doubtful at that moment. Elements more than a month from it say
// little: one diagnostic line for all of them, which begins with `file`, whatever name of it the reader
// knows; for a single one a line with its own name. A satellite of fresh elements that has decayed, or of
// which the model cannot tell for another reason where it is, has a line of its own.
SCENE_API void ReportLostSatellites(const std::string& file, const BodyList& bodies, const SkyMoment& moment);

}  // namespace scene
