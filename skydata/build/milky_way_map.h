// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace skydata {

// The brightness of the Milky Way all over the sky, docs/formats/sky_map.md, from the outlines of its levels
// in milkyway/outlines.tsv: at its outline a level of brightness begins gently, the outer ones over several
// degrees, and what is narrow stays dark or bright; and that of the Magellanic Clouds. Throws SourceError
// when the source is not as it should be.
std::string MakeMilkyWayMap(const std::filesystem::path& source);

}  // namespace skydata
