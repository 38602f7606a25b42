// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the options ask of the catalog files: changes of the user's list of favourites, frames of images. The readers
// answer nothing for a text that is not wholly of the accepted form.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "scene/image_groups.h"

namespace skyview {

enum class FavouriteVerb { kShow, kAdd, kRemove };

// "show", "add=NAME" or "remove=NAME".
struct FavouriteAction {
  FavouriteVerb verb = FavouriteVerb::kShow;
  std::string name;  // of an object; "" for kShow
};
std::optional<FavouriteAction> ParseFavouriteAction(std::string_view text);

bool WantsFavouritesShown(const std::vector<FavouriteAction>& actions);

// "constellations,deepsky,milkyway", in any order and each at most once. FormatImageGroups writes what the reader
// takes, in that order.
std::optional<unsigned> ParseImageGroups(std::string_view text);
std::string FormatImageGroups(unsigned groups);

}  // namespace skyview
