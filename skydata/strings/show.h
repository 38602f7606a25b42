// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace skydata {

// The data root beside this program, installed (../share/common_interfaces/data) or in a build tree
// (../data). Throws SourceError that names both when there is neither.
std::filesystem::path FindDataRoot();

// Every text of a language as its users see it, with sample values: one line each, identifiers, use and text
// with tabs between, in UTF-8; line feeds as \n. The table is that of the data root `data`. Replaces the
// roots, the locale and the string table of the process. Throws SourceError when the data root has no such
// language.
std::string ShowLanguage(const std::filesystem::path& data, const std::string& language);

// The same of one file; in `language` "" that of the folder it lies in.
std::string ShowFile(const std::filesystem::path& path, const std::string& language);

}  // namespace skydata
