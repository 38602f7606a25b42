// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "scene/view/directions.h"
#include "support/temp_dir.h"

namespace host_test {

// The cells of a table below data/source, the header left out.
inline std::vector<std::vector<std::string>> ReadSource(const std::string& name) {
  std::ifstream file(std::string(CI_DATA_SOURCE) + "/" + name);
  std::vector<std::vector<std::string>> rows;
  std::string line;
  std::getline(file, line);
  while (std::getline(file, line)) {
    if (line.ends_with('\r')) line.pop_back();
    rows.emplace_back();
    std::istringstream cells(line);
    for (std::string cell; std::getline(cells, cell, '\t');) rows.back().push_back(cell);
  }
  return rows;
}

inline std::string Radians(const std::string& degrees) {
  char text[40];
  std::snprintf(text, sizeof text, "%.17g", std::stod(degrees) * scene::kRadiansPerDegree);
  return text;
}

// The names and boundaries that ship, as the tables of a data root.
inline void WriteConstellations(const test_support::TempDir& dir) {
  std::string names = "Label:text\tProperName:text\tEnglishName:text\tRA:f64\tDec:f64\n";
  for (const auto& row : ReadSource("constellations/constellations.tsv"))
    names += row[0] + "\t" + row[1] + "\t" + row[2] + "\t" + Radians(row[3]) + "\t" + Radians(row[4]) + "\n";
  dir.Write("data/catalogs/constellations.txt", names);
  std::string bounds = "Label:text\tOtherLabel:text\tRA:f64\tDec:f64\tEndRA:f64\tEndDec:f64\n";
  for (const auto& row : ReadSource("constellations/bounds.tsv")) {
    bounds += row[0] + "\t" + row[1];
    for (std::size_t i = 2; i < 6; ++i) bounds += "\t" + Radians(row[i]);
    bounds += "\n";
  }
  dir.Write("data/catalogs/constellation_bounds.txt", bounds);
}

}  // namespace host_test
