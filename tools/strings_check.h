// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace skydata {

// The bytes of a string table after a check that the library reads it as it is meant: no identifier twice, no line
// longer than the library reads, no line with a tab that is no entry. Throws SourceError otherwise.
std::string CheckStrings(const std::filesystem::path& path);

}  // namespace skydata
