// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace astro_test {

// The rows below the header line of a tab separated table, as texts.
inline std::vector<std::vector<std::string>> ReadCells(const std::string& path) {
  std::vector<std::vector<std::string>> rows;
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path;
  std::string line;
  std::getline(file, line);
  while (std::getline(file, line)) {
    std::vector<std::string> row;
    std::istringstream cells(line);
    for (std::string cell; std::getline(cells, cell, '\t');) row.push_back(cell);
    rows.push_back(row);
  }
  return rows;
}

// The rows of numbers below the header line of a tab separated table. A cell that is not a number fails the
// test.
inline std::vector<std::vector<double>> ReadTable(const std::string& path) {
  std::vector<std::vector<double>> rows;
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path;
  std::string line;
  std::getline(file, line);
  while (std::getline(file, line)) {
    std::vector<double> row;
    std::istringstream cells(line);
    for (std::string cell; std::getline(cells, cell, '\t');) {
      char* end = nullptr;
      row.push_back(std::strtod(cell.c_str(), &end));
      EXPECT_NE(end, cell.c_str()) << path << ": " << line;
    }
    rows.push_back(row);
  }
  return rows;
}

}  // namespace astro_test
