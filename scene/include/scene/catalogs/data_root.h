// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "scene/api.h"
#include "scene/catalogs/sky_catalogs.h"

namespace scene {

// The data root beside the program: ../share/common_interfaces/data of an installed one, ../data of one in a
// build tree. `programFolder`: GetProgramFolder of utils. False when neither is a data root: `root` is then
// unchanged and `error` one line that names both.
SCENE_API bool FindDataRoot(const std::string& programFolder, std::string& root, std::string& error);

// Points the logical paths at the two roots ("": none). False when `data` is no data root, that is, holds no
// qxstrings.txt: `error` is then one line that names the file.
SCENE_API bool SetSkyRoots(const std::string& data, const std::string& work, std::string& error);

// All that a program needs before its first frame: points the logical paths at the roots (SetSkyRoots),
// switches the language (language.h) and loads the catalogs (sky_catalogs.h). False when one of them fails:
// `error` is then one line that names the file or the language.
SCENE_API bool OpenDataRoot(const std::string& data, const std::string& work, const std::string& language,
                            SkyCatalogs& catalogs, std::string& error);

}  // namespace scene
