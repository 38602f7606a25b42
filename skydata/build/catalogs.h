// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The catalog tables of the data root, each made from a table below the source folder. All throw SourceError
// when the source is not as it should be. Columns: docs/formats/catalog_tables.md.
#pragma once

#include <filesystem>
#include <string>

namespace skydata {

std::string MakeStarCatalog(const std::filesystem::path& source);
std::string MakeDeepskyCatalog(const std::filesystem::path& source);
// What openngc.tsv adds to it: share-alike data, in a table of its own.
std::string MakeNgcCatalog(const std::filesystem::path& source);
std::string MakeNebulaOutlines(const std::filesystem::path& source);
std::string MakeConstellationCatalog(const std::filesystem::path& source);
std::string MakeConstellationLines(const std::filesystem::path& source);
std::string MakeConstellationBounds(const std::filesystem::path& source);
std::string MakeSaturnRing(const std::filesystem::path& source);
std::string MakeObjectNames(const std::filesystem::path& source);
std::string MakeAsterisms(const std::filesystem::path& source);
std::string MakeAsterismLines(const std::filesystem::path& source);
std::string MakeCities(const std::filesystem::path& source);
std::string MakeDoubleStars(const std::filesystem::path& source);
std::string MakeAsteroidCatalog(const std::filesystem::path& source);
std::string MakeCometCatalog(const std::filesystem::path& source);

// The names on the surface of one body, from a table of gazetteers/.
std::string MakeGazetteer(const std::filesystem::path& table);

// Two-line elements, as they stand in the source: docs/formats/two_line_elements.md.
std::string MakeSatellites(const std::filesystem::path& source);

}  // namespace skydata
