// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "tools/strings_check.h"

#include <cstdio>
#include <map>
#include <optional>

#include "tools/files.h"
#include "tools/source_error.h"

namespace skydata {
namespace {

constexpr std::size_t kMaxLine = 4095;

// The identifier of a line as the library reads it (docs/formats/strings.md); none: the line is a comment.
std::optional<unsigned> FindIdentifier(const std::string& line) {
  const auto begin = line.find_first_not_of('\t');
  if (begin == std::string::npos) return std::nullopt;
  const auto end = line.find('\t', begin);
  if (end == std::string::npos || line.find_first_not_of('\t', end) == std::string::npos) return std::nullopt;
  const std::string field = line.substr(begin, end - begin);
  unsigned number = 0;
  if (std::sscanf(field.c_str(), "%u", &number) == 1) return number;
  if (field.size() < 4) return std::nullopt;
  unsigned code = 0;
  for (int i = 0; i < 4; ++i)
    code = code << 8 | static_cast<unsigned char>(field[static_cast<std::size_t>(i)]);
  return code;
}

}  // namespace

std::string CheckStrings(const std::filesystem::path& path) {
  std::map<unsigned, int> lines;
  for (const TextLine& line : ReadLines(path)) {
    if (line.text.size() > kMaxLine)
      throw SourceError(path.string(), line.number, "is longer than 4095 bytes");
    const auto identifier = FindIdentifier(line.text);
    if (!identifier) {
      if (line.text.find('\t') == std::string::npos) continue;
      throw SourceError(path.string(), line.number, "has a tab but is no entry: wants identifier, tab, text");
    }
    const auto [entry, isNew] = lines.emplace(*identifier, line.number);
    if (!isNew) {
      throw SourceError(path.string(), line.number,
                        "its identifier stands in line " + std::to_string(entry->second) + " already");
    }
  }
  return ReadFile(path);
}

}  // namespace skydata
