// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "scene/api.h"

namespace scene {

// What remains of a name (UTF-8) when it is compared with others: small letters without accents, Greek
// letters by their names, digits; no blanks and no punctuation. "α1 Cen", "Alpha-1 Cen" and "alpha1cen" have
// one key, and so have "Boötes" and "bootes". Cyrillic letters become small, ё becomes е; those of other
// scripts stay.
SCENE_API std::string MakeNameKey(std::string_view name);

// The name with a leading Greek letter written out that is shortened to three letters as catalogs do: "alp
// CMa" is "alpha CMa". Any other name as it is.
SCENE_API std::string ExpandGreekLetter(std::string_view name);

}  // namespace scene
