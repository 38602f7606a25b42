// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/observation_times.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <mutex>
#include <tuple>
#include <vector>

#include "astro/julian_date.h"
#include "catalogs/line_fields.h"
#include "catalogs/observation_times_inside.h"
#include "utils/path.h"
#include "utils/text.h"

namespace CommonInterfaces {
namespace {

constexpr char kFile[] = "catalogs:comets:best_observation_time.ini";
constexpr int kEveryYear = -1;
constexpr double kMostHours = 24.0 * 366.0;  // a time of day that is far out of its range is none

struct Entry {
  SSO_ID object;
  CalendarDate date;  // as written, so that the year of one for every year can be put in

  bool IsBefore(const SSO_ID& other, int year) const {
    return std::tie(object.kind, object.number, date.year) < std::tie(other.kind, other.number, year);
  }
};

// "day/month/year hour", the hour with its fraction. Minutes and seconds take the fraction up.
bool ReadDate(const std::string& field, CalendarDate& date) {
  const char* text = field.c_str();
  double hours = 0.0;
  if (!ScanNumber(text, date.day) || *text++ != '/' || !ScanNumber(text, date.month) || *text++ != '/' ||
      !ScanNumber(text, date.year) || !ScanNumber(text, hours) || std::fabs(hours) > kMostHours) {
    return false;
  }
  date.hour = static_cast<int>(hours);
  const double minutes = (hours - date.hour) * 60.0;
  date.minute = static_cast<int>(minutes);
  date.second = (minutes - date.minute) * 60.0;
  return true;
}

std::vector<Entry> ReadEntries() {
  std::vector<Entry> entries;
  const std::string path = ZentharPath::GetPath(kFile);
  if (path.empty()) return entries;
  ForEachLine(path, [&entries](const char* line) {
    const auto fields = GetTokens(line, kFieldDelimiter);
    Entry entry;
    if (fields.size() >= 3 && ReadKind(fields[0], entry.object.kind) &&
        ReadNumber(fields[1], entry.object.number) && ReadDate(fields[2], entry.date)) {
      entries.push_back(entry);
    }
  });
  // Stable: of two entries that are alike the first one in the file stays in front.
  std::stable_sort(entries.begin(), entries.end(),
                   [](const Entry& a, const Entry& b) { return a.IsBefore(b.object, b.date.year); });
  return entries;
}

struct Table {
  std::once_flag isLoaded;
  std::vector<Entry> entries;  // by object, then year
};

// Process-wide; made by the first question, freed at the end of the process.
std::unique_ptr<Table>& GetTable() {
  static auto s_Table = std::make_unique<Table>();
  return s_Table;
}

const std::vector<Entry>& GetEntries() {
  Table& table = *GetTable();
  std::call_once(table.isLoaded, [&table] { table.entries = ReadEntries(); });
  return table.entries;
}

// The first entry of that object and year; null when there is none.
const Entry* FindEntry(const SSO_ID& object, int year) {
  const auto& entries = GetEntries();
  const auto found =
      std::lower_bound(entries.begin(), entries.end(), year,
                       [&object](const Entry& entry, int wanted) { return entry.IsBefore(object, wanted); });
  return found != entries.end() && found->object == object && found->date.year == year ? &*found : nullptr;
}

// The latest year up to the one asked for that the object has an entry of; `year` as it was when there is
// none.
int FindNearestYear(const SSO_ID& object, int year) {
  const auto& entries = GetEntries();
  const auto behind = std::partition_point(entries.begin(), entries.end(), [&](const Entry& entry) {
    return std::tie(entry.object.kind, entry.object.number, entry.date.year) <=
           std::tie(object.kind, object.number, year);
  });
  return behind != entries.begin() && std::prev(behind)->object == object ? std::prev(behind)->date.year
                                                                          : year;
}

}  // namespace

bool GetObsTimeFromFile(_Date* date, const SSO_ID& object, int year) {
  if (!date) return false;
  const Entry* entry = FindEntry(object, kEveryYear);
  if (!entry) entry = FindEntry(object, FindNearestYear(object, year));
  if (!entry) return false;
  CalendarDate calendar = entry->date;
  if (calendar.year == kEveryYear) calendar.year = year;
  DJ(calendar, date->day, date->fraction);
  Adjust_JD(date->day, date->fraction);
  date->type = kUniversalTime;
  return true;
}

void ForgetObservationTimesForTests() { GetTable() = std::make_unique<Table>(); }

}  // namespace CommonInterfaces
