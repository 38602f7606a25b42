// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "scene/api.h"

namespace scene {

// Whose texts lie at the top of a data root.
inline constexpr const char* kDefaultLanguage = "en";

// The languages that a data root has: the folders below "languages" that hold a string table, ascending.
SCENE_API std::vector<std::string> FindLanguages(const std::string& dataRoot);

// These and the default one, which needs no folder of its own, ascending.
SCENE_API std::vector<std::string> ListLanguages(const std::string& dataRoot);

// Changes the language of everything that is shown, at the start and at run time: system locale, root of the
// language's files, string table. `fetchTexts` is called when the new texts are there and before the old ones
// go; in it everybody who keeps a text takes it anew. A string table in the work area hides those of all
// languages.
//
// The default language needs no folder of its own: the texts at the top of the data root are then taken.
// False for any other that the data root does not have: `error` is then a piece of a line that names those it
// has, and nothing has changed. The roots must be set (SetSkyRoots). One thread, and no other reads texts in
// the meantime.
SCENE_API bool SwitchLanguage(const std::string& dataRoot, const std::string& language,
                              const std::function<void()>& fetchTexts, std::string& error);

}  // namespace scene
