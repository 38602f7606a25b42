// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace skydata {

// What is known of a bright star besides.
struct StarMarks {
  std::optional<double> pairAngle;  // of the fainter star of a double, degrees from north over east
  std::string variable;             // name as a variable star, "" for none
  bool planets = false;
};

// By HR number, from doubles/doubles.tsv, stars/variables.tsv and stars/planet_hosts.tsv; a table that is
// not there marks no star. Of several pairs of a star the one with the brightest companion, the first of
// equals. Throws SourceError for a damaged table.
std::map<int, StarMarks> ReadStarMarks(const std::filesystem::path& source);

}  // namespace skydata
