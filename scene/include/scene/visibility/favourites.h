// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Favourites: fields of bytes, one for each object, in the section of its kind. While a section has some that
// are switched on, only they are shown of its kind. The number of an object is that of its catalog: the HR
// number of a star, the number of a deep-sky object, for a constellation the name id of its abbreviation.
#pragma once

#include <optional>
#include <string>

#include "common_interfaces/settings_data.h"
#include "common_interfaces/settings_field.h"
#include "scene/api.h"

namespace scene {

// Adds the object to the favourites of its kind, or switches on the favourite that is there already. The
// field is called "Favourite" and the number, for example "Favourite2491".
SCENE_API void AddFavourite(CommonInterfaces::SettingsData& settings, int kind, int number);

// The number of the object that the field is a favourite of; nothing for any other field.
SCENE_API std::optional<int> GetFavouriteNumber(const CommonInterfaces::SettingField& field);

// Takes the favourites that the container's own block of that file holds. Reading the file alone leaves them
// out: of an own block only the fields count that the defaults have as well. What cannot be read ends the
// search; what came before it is taken. A favourite that the container has already, by its name, stays as it
// is. Returns how many were taken.
SCENE_API int TakeFavourites(const std::string& path, CommonInterfaces::SettingsData& settings);

}  // namespace scene
