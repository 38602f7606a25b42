// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace skydata_test {

// A small data root and what is said about it; form: tests/skydata/lint/damaged/README.md.
struct DamagedCase {
  std::string name;
  std::vector<std::pair<std::string, std::string>> files;  // path, bytes
  std::string wanted;                                      // lines
};

inline std::string Unescape(const std::string& text) {
  std::string bytes;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '\\') {
      bytes += text[at];
      continue;
    }
    const char c = text.at(++at);
    if (c == 'x') {
      bytes += static_cast<char>(std::stoi(text.substr(at + 1, 2), nullptr, 16));
      at += 2;
    } else {
      bytes += c == 't' ? '\t' : c == 'r' ? '\r' : c;
    }
  }
  return bytes;
}

inline std::string ParseBytes(const std::string& text) {
  std::istringstream words(text);
  std::string bytes;
  for (std::string word; words >> word;) bytes += static_cast<char>(std::stoi(word, nullptr, 16));
  return bytes;
}

inline std::string Repeat(const std::string& text) {
  const auto blank = text.find(' ');
  std::string bytes;
  for (int i = 0; i < std::stoi(text.substr(0, blank)); ++i) bytes += Unescape(text.substr(blank + 1));
  return bytes;
}

// The bytes that a line of a case adds to its file.
inline std::string BytesOf(const std::string& line) {
  const std::string rest = line.substr(1);
  switch (line[0]) {
    case '|':
      return Unescape(rest) + '\n';
    case '/':
      return Unescape(rest);
    case 'x':
      return ParseBytes(rest);
    case '*':
      return Repeat(rest);
    default:
      throw std::invalid_argument(line);
  }
}

inline std::vector<DamagedCase> ReadCases(const std::filesystem::path& path) {
  std::vector<DamagedCase> cases;
  bool isWanted = false;
  std::ifstream in(path, std::ios::binary);
  for (std::string line; std::getline(in, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.empty() || line[0] == '#') continue;
    if (line.starts_with("case ")) {
      cases.push_back({line.substr(5), {}, {}});
      isWanted = false;
    } else if (line.starts_with("file ")) {
      cases.back().files.emplace_back(line.substr(5), "");
    } else if (line == "want") {
      isWanted = true;
    } else if (isWanted) {
      cases.back().wanted += (line[0] == ':' ? cases.back().files.back().first : "") + line + '\n';
    } else {
      cases.back().files.back().second += BytesOf(line);
    }
  }
  return cases;
}

// Those of every file of the folder, by its name.
inline std::vector<DamagedCase> ReadAllCases(const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() == ".txt") paths.push_back(entry.path());
  }
  std::sort(paths.begin(), paths.end());
  std::vector<DamagedCase> all;
  for (const auto& path : paths) {
    for (DamagedCase& one : ReadCases(path)) all.push_back(std::move(one));
  }
  return all;
}

}  // namespace skydata_test
