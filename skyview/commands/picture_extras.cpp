// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/picture_extras.h"

#include "skyview/session/favourite_list.h"

namespace skyview {

bool FindMarks(const Options& options, const ObjectSearch* search, const SkyCatalogs& catalogs,
               std::vector<SSO_ID>& marks, std::string& error) {
  if (options.capsule) {
    for (const auto& mark : options.capsule->marks) marks.emplace_back(mark.kind, mark.number);
  } else {
    marks = ReadFavourites();
  }
  return !search || options.favouriteActions.empty() ||
         ChangeFavourites(options.favouriteActions, *search, catalogs, marks, error);
}

bool SetUpExtras(const Options& options, const std::vector<SSO_ID>& marks, SkyFrame& frame,
                 std::string& error) {
  frame.GetFavouriteMarks().SetObjects(marks);
  if (options.showers) frame.GetRadiants().SetShowers(LoadShowers());
  return frame.GetImageFrames().Load(options.framesOf, frame.GetCatalogs(), error);
}

}  // namespace skyview
