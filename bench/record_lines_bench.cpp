// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// One line of a catalog: an integer with its letter, a size, right ascension, declination and five numbers,
// read with the parsers of record lines, against one sscanf and against a cursor over std::from_chars.
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/different_inputs.h"
#include "common_interfaces/record_lines.h"

namespace bench {
namespace {

struct Record {
  int number = 0, flags = 0, level = 0;
  char letter = 0;
  double size = 0, ra = 0, dec = 0, rotation = 0, ratio = 0, brightness = 0;
};

// Lines of different lengths: numbers of one to five digits, fractions of none to three.
std::string MakeLine(std::mt19937& random) {
  const auto below = [&random](int limit) { return Below(random, limit); };
  const auto fraction = [&random](int digits) {
    std::string text =
        std::to_string(random() % 1000000u + 1000000u).substr(1, static_cast<std::size_t>(digits));
    return digits == 0 ? text : "." + text;
  };
  char line[160];
  std::snprintf(line, sizeof line, "%d%c %d%s %dh%02dm%02d%ss %s%d\xB0%02d'%02d%s\" %d%s %d %d%s %d %d%s\r",
                below(below(2) ? 80000 : 90), 'A' + below(7), below(200), fraction(below(3)).c_str(),
                below(24), below(60), below(60), fraction(below(4)).c_str(), below(2) ? "-" : "", below(90),
                below(60), below(60), fraction(below(2)).c_str(), below(360), fraction(below(2)).c_str(),
                below(3), below(5), fraction(below(4)).c_str(), below(16), below(3),
                fraction(1 + below(3)).c_str());
  return line;
}

bool ReadWithParsers(std::string& line, Record& r) {
  char* cursor = line.data();
  if (!GetLong1(cursor, r.number)) return false;
  if (*cursor >= 'A' && *cursor <= 'G') r.letter = *cursor++;
  return RemoveLeading(cursor) && GetDouble(cursor, r.size) && GetRaOrDec(cursor, r.ra) &&
         GetRaOrDec(cursor, r.dec) && RemoveLeading(cursor) && GetDouble(cursor, r.rotation) &&
         RemoveLeading(cursor) && GetLong1(cursor, r.flags) && RemoveLeading(cursor) &&
         GetDouble(cursor, r.ratio) && RemoveLeading(cursor) && GetLong1(cursor, r.level) &&
         RemoveLeading(cursor) && GetDouble(cursor, r.brightness);
}

bool ReadWithSscanf(std::string& line, Record& r) {
  double ra[3], dec[3];
  if (std::sscanf(line.c_str(), "%d%c %lf %lfh%lfm%lfs %lf\xB0%lf'%lf\" %lf %d %lf %d %lf", &r.number,
                  &r.letter, &r.size, &ra[0], &ra[1], &ra[2], &dec[0], &dec[1], &dec[2], &r.rotation,
                  &r.flags, &r.ratio, &r.level, &r.brightness) != 14) {
    return false;
  }
  r.ra = (ra[0] + ra[1] / 60 + ra[2] / 3600) * 15;
  r.dec =
      std::signbit(dec[0]) ? -(-dec[0] + dec[1] / 60 + dec[2] / 3600) : dec[0] + dec[1] / 60 + dec[2] / 3600;
  return true;
}

// The same fields in the same order, inlined, with the standard library's converter.
struct FromChars {
  const char* cursor;
  const char* end;

  template <class T>
  bool Take(T& value) {
    while (cursor != end && *cursor == ' ') ++cursor;
    const auto result = std::from_chars(cursor, end, value);
    cursor = result.ptr;
    return result.ec == std::errc();
  }
  bool TakeAngle(double& value) {
    while (cursor != end && *cursor == ' ') ++cursor;
    const bool isNegative = cursor != end && *cursor == '-';
    if (isNegative) ++cursor;
    double parts[3];
    for (double& part : parts) {
      if (!Take(part) || cursor == end) return false;
      ++cursor;
    }
    value = parts[0] + parts[1] / 60 + parts[2] / 3600;
    if (isNegative) value = -value;
    return true;
  }
};

bool ReadWithFromChars(std::string& line, Record& r) {
  FromChars in = {line.data(), line.data() + line.size()};
  if (!in.Take(r.number)) return false;
  if (*in.cursor >= 'A' && *in.cursor <= 'G') r.letter = *in.cursor++;
  if (!in.Take(r.size) || !in.TakeAngle(r.ra) || !in.TakeAngle(r.dec)) return false;
  r.ra *= 15;
  return in.Take(r.rotation) && in.Take(r.flags) && in.Take(r.ratio) && in.Take(r.level) &&
         in.Take(r.brightness);
}

bool IsEqual(const Record& a, const Record& b) {
  return a.number == b.number && a.flags == b.flags && a.level == b.level && a.letter == b.letter &&
         a.size == b.size && a.ra == b.ra && a.dec == b.dec && a.rotation == b.rotation &&
         a.ratio == b.ratio && a.brightness == b.brightness;
}

template <class Read>
void Run(benchmark::State& state, Read read) {
  static std::vector<std::string> lines = MakeInputs(9, MakeLine);
  for (std::string& line : lines) {
    Record record, same;
    if (!read(line, record) || !ReadWithSscanf(line, same) || !IsEqual(record, same)) {
      state.SkipWithError("a line is not read as the others read it");
      return;
    }
  }
  for (auto _ : state) {
    for (std::string& line : lines) {
      Record record;
      benchmark::DoNotOptimize(read(line, record));
      benchmark::DoNotOptimize(record);
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<benchmark::IterationCount>(lines.size()));
}

void RecordLine(benchmark::State& state) { Run(state, ReadWithParsers); }
void RecordLinePeerSscanf(benchmark::State& state) { Run(state, ReadWithSscanf); }
void RecordLinePeerFromChars(benchmark::State& state) { Run(state, ReadWithFromChars); }

// Looking at every byte of the line.
void RecordLineLimit(benchmark::State& state) {
  const std::vector<std::string> lines = MakeInputs(9, MakeLine);
  RunOver(state, lines, [](const std::string& line) { return std::strchr(line.c_str(), '\r'); });
}

BENCHMARK(RecordLine);
BENCHMARK(RecordLinePeerSscanf);
BENCHMARK(RecordLinePeerFromChars);
BENCHMARK(RecordLineLimit);

}  // namespace
}  // namespace bench
