// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The range of years that the application accepts. File format: docs/formats/time_interval.md.
#include <limits>

#include "common_interfaces/dates.h"
#include "utils/debug.h"
#include "utils/file.h"
#include "utils/path.h"

namespace CommonInterfaces {

namespace {

constexpr char kFileName[] = "media:time_interval.ini";
constexpr unsigned kLineSize = 4096;
constexpr int kNoLimit = -1;

// For the thread that uses the string table; they live as long as the process.
int s_MinimumYear = kNoLimit;
int s_MaximumYear = kNoLimit;
bool s_LimitsAreCurrent = false;

// A year that the interface cannot hand out is no year: cut to 16 bits it would be another one.
void ReadYear(MTextFile& file, const char* path, int line, int& year) {
  int value;
  if (file.Readln(value) && value >= std::numeric_limits<short>::min() &&
      value <= std::numeric_limits<short>::max()) {
    year = value;
  } else {
    PrintDebugString("File %s has no year in line %d\n", path, line);
  }
}

}  // namespace

void ReadLimitYears(bool force) {
  if (s_LimitsAreCurrent && !force) return;
  s_LimitsAreCurrent = true;
  const std::string path = ZentharPath::GetPath(kFileName);
  MTextFile file(false, '!', '}', kLineSize);
  if (path.empty() || !file.Open(path.c_str(), false)) return;
  ReadYear(file, path.c_str(), 1, s_MinimumYear);
  ReadYear(file, path.c_str(), 2, s_MaximumYear);
}

short GetMinimumYear() {
  ReadLimitYears(false);
  return static_cast<short>(s_MinimumYear);
}

short GetMaximumYear() {
  ReadLimitYears(false);
  return static_cast<short>(s_MaximumYear);
}

void SetMinimumYear(short year) {
  s_MinimumYear = year;
  s_LimitsAreCurrent = year != kNoLimit && s_MaximumYear != kNoLimit;
}

void SetMaximumYear(short year) {
  s_MaximumYear = year;
  s_LimitsAreCurrent = year != kNoLimit && s_MinimumYear != kNoLimit;
}

}  // namespace CommonInterfaces
