// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The list of favourites that the user keeps in the work area. Names in it are UTF-8 here; those of other
// programs may be in the code page of the language.
#pragma once

#include <string>
#include <vector>

#include "astro/object_id.h"
#include "scene/search/object_search.h"

namespace skyview {

// The entries of "catalogs:favourites.txt". Without a work area, or without that file in it, there are none;
// nothing is created.
std::vector<SSO_ID> ReadFavourites();

// Adds the objects to the list, or removes them from it, in the order of their names, and writes it when it
// has changed. Adding what is there changes nothing. False when a name is not that of one object, an object
// to be removed is not in the list, or the file cannot be written: `error` is then one line, and the file is
// as it was.
bool AddToFavourites(const std::vector<std::string>& names, const scene::ObjectSearch& search,
                     const scene::SkyCatalogs& catalogs, std::string& error);
bool RemoveFromFavourites(const std::vector<std::string>& names, const scene::ObjectSearch& search,
                          const scene::SkyCatalogs& catalogs, std::string& error);

// The list for the user, UTF-8: a heading, and a line with name, kind and number for each entry.
std::string FormatFavourites(const std::vector<SSO_ID>& favourites);

}  // namespace skyview
