// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "astro/object_id.h"
#include "scene/object_search.h"
#include "skyview/options/options.h"
#include "scene/sky_frame.h"

namespace skyview {

// The objects that the picture marks: those of the session, else the user's favourites. Then does what --favourites
// asks for. `search` may be null when that names no object. False: `error` is one line.
bool FindMarks(const Options& options, const scene::ObjectSearch* search, const scene::SkyCatalogs& catalogs,
               std::vector<SSO_ID>& marks, std::string& error);

// Gives the frame what it shows besides the catalogs' objects: marks, outlines of images, radiants. False when a
// catalog is missing: `error` is then one line that names the file.
bool SetUpExtras(const Options& options, const std::vector<SSO_ID>& marks, scene::SkyFrame& frame,
                 std::string& error);

}  // namespace skyview
