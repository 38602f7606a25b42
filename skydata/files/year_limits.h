// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace skydata {

// The bytes of a file of year limits (docs/formats/time_interval.md) after a check that the library reads two
// years of it, the first not after the last, -1 standing for no limit. Throws SourceError otherwise.
std::string CheckYearLimits(const std::filesystem::path& path);

}  // namespace skydata
