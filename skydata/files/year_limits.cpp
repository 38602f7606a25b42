// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/files/year_limits.h"

#include <cstdlib>
#include <vector>

#include "skydata/files/source_error.h"
#include "skydata/files/whole_file.h"

namespace skydata {
namespace {

constexpr int kNoLimit = -1;
constexpr long kFarthestYear = 32767;  // the library hands years out in 16 bits

// As the library reads it: blanks before the number, anything behind it.
int ReadYear(const std::filesystem::path& path, const TextLine& line) {
  char* end = nullptr;
  const long year = std::strtol(line.text.c_str(), &end, 10);
  if (end == line.text.c_str() || year < -kFarthestYear - 1 || year > kFarthestYear) {
    throw SourceError(path.string(), line.number, "wants a year from -32768 to 32767");
  }
  return static_cast<int>(year);
}

}  // namespace

std::string CheckYearLimits(const std::filesystem::path& path) {
  const TextLines lines = ReadLines(path);
  if (lines.size() < 2) {
    throw SourceError(path.string(), 0, "wants two lines, the first and the last year");
  }
  const int first = ReadYear(path, lines[0]);
  const int last = ReadYear(path, lines[1]);
  if (first != kNoLimit && last != kNoLimit && first > last) {
    throw SourceError(path.string(), lines[1].number, "the last year lies before the first");
  }
  return ReadFile(path);
}

}  // namespace skydata
