// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

#include "skydata/strings/source.h"

namespace skydata {

// The string table that the library reads, of a source in UTF-8: the same lines in the code page of the
// language, with "?" in comments and notes for what the page lacks. Throws SourceError for the first thing
// that CheckStrings calls an error.
std::string MakeStringTable(const std::filesystem::path& path);

// The same of a table that was read already, whatever its encoding.
std::string MakeStringTable(const StringsSource& source);

}  // namespace skydata
