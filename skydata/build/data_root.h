// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace skydata {

// Makes the data root OUT from the source folder: string tables (that of `language` also at the top),
// settings files, saved views, catalogs with the origin of each. Everything is made in memory first: when a
// source is wrong, SourceError is thrown and no file of OUT has changed. Then the files are replaced, each
// whole. Files of other names in OUT stay. Returns how many files were written.
int BuildDataRoot(const std::filesystem::path& source, const std::filesystem::path& out,
                  const std::string& language);

}  // namespace skydata
