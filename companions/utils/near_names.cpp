// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/near_names.h"

#include <algorithm>
#include <utility>

namespace {

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::string Lower(std::string text) {
  for (char& c : text) c = Lower(c);
  return text;
}

// Letters inserted, left out or replaced on the way from one text to the other (Levenshtein 1965).
std::size_t CountDifferences(const std::string& a, const std::string& b) {
  std::vector<std::size_t> row(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j) row[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i);
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t replaced = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({row[j] + 1, row[j - 1] + 1, replaced});
    }
  }
  return row.back();
}

}  // namespace

std::vector<std::string> FindNearNames(const std::string& wanted, const std::vector<std::string>& names,
                                       int most) {
  const std::string lower = Lower(wanted);
  const std::size_t allowed = std::max<std::size_t>(1, lower.size() / 3);
  std::vector<std::pair<std::size_t, const std::string*>> near;
  for (const auto& name : names) {
    const std::string other = Lower(name);
    const bool begins = lower.size() >= 2 && other.starts_with(lower);
    const std::size_t differences = begins ? 0 : CountDifferences(lower, other);
    if (differences <= allowed) near.emplace_back(differences, &name);
  }
  std::stable_sort(near.begin(), near.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  std::vector<std::string> found;
  for (const auto& [differences, name] : near) {
    if (static_cast<int>(found.size()) >= most) break;
    if (std::find(found.begin(), found.end(), *name) == found.end()) found.push_back(*name);
  }
  return found;
}
