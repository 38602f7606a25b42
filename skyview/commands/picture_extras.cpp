// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/picture_extras.h"

#include "skyview/session/favourite_list.h"

namespace skyview {

bool FindMarks(const Options& options, const scene::ObjectSearch* search, const scene::SkyCatalogs& catalogs,
               std::vector<SSO_ID>& marks, std::string& error) {
  if (options.capsule) {
    for (const auto& mark : options.capsule->marks) marks.emplace_back(mark.kind, mark.number);
  } else {
    marks = ReadFavourites();
  }
  return !search || options.favouriteActions.empty() ||
         ChangeFavourites(options.favouriteActions, *search, catalogs, marks, error);
}

bool SetUpExtras(const Options& options, const std::vector<SSO_ID>& marks, scene::SkyFrame& frame,
                 std::string& error) {
  frame.SetFavourites(marks);
  if (options.showers) frame.SetShowers(scene::LoadShowers());
  const auto missing = frame.SetImageFrames(options.framesOf);
  if (!missing) return true;
  error = std::string(scene::GetImageCatalogName(*missing)) + ": not found, which --frames-of " +
          FormatImageGroups(*missing) + " wants";
  return false;
}

}  // namespace skyview
