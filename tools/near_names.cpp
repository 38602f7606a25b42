// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "tools/near_names.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace skydata {
namespace {

constexpr std::size_t kMostNames = 5;

std::string ToLower(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

// The number of letters to insert, to leave out or to change (Levenshtein 1966).
std::size_t DistanceOf(const std::string& a, const std::string& b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i);
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t change = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
      diagonal = std::exchange(row[j], std::min({row[j] + 1, row[j - 1] + 1, change}));
    }
  }
  return row.back();
}

}  // namespace

std::vector<std::string> FindNearNames(const std::string& name, const std::vector<std::string>& names) {
  const std::string wanted = ToLower(name);
  std::vector<std::pair<std::size_t, std::string>> near;
  for (const std::string& candidate : names) {
    const std::string known = ToLower(candidate);
    const std::size_t distance = DistanceOf(wanted, known), shorter = std::min(wanted.size(), known.size());
    const bool isBeginning = shorter > 0 && wanted.compare(0, shorter, known, 0, shorter) == 0;
    if (isBeginning || distance <= std::max<std::size_t>(1, wanted.size() / 3))
      near.emplace_back(distance, candidate);
  }
  std::sort(near.begin(), near.end());
  near.erase(std::unique(near.begin(), near.end()), near.end());
  std::vector<std::string> found;
  for (std::size_t i = 0; i < std::min(near.size(), kMostNames); ++i) found.push_back(near[i].second);
  return found;
}

}  // namespace skydata
