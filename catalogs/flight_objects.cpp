// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/flight_objects.h"

#include <algorithm>
#include <string>

#include "catalogs/key_positions.h"
#include "catalogs/line_fields.h"
#include "catalogs/object_table.h"
#include "utils/bytes.h"
#include "utils/debug.h"
#include "utils/file.h"
#include "utils/path.h"
#include "utils/text.h"

namespace CommonInterfaces {

struct DistanceGroup {
  int kind;
  std::unique_ptr<const KeyPositions> numbers;  // null: the group is empty
};

struct FlightObjects {
  ObjectTable table;
};

namespace {

constexpr char kFlightList[] = "media:find:3d_flight_to_objects.txt";
constexpr unsigned kWord = 4;
constexpr int kStar = FourCC("star");

// Bodies of the solar system and spacecraft: where they are is always known.
bool IsAlwaysInReach(int kind) {
  constexpr int kKinds[] = {FourCC("plnt"), FourCC("moon"), FourCC("astr"), FourCC("comt"), FourCC("scft")};
  return std::find(std::begin(kKinds), std::end(kKinds), kind) != std::end(kKinds);
}

bool ReadWord(MFile& file, unsigned& value) {
  unsigned char bytes[kWord];
  if (file.Read(bytes, kWord) != kWord) return false;
  value = LoadLE32(bytes);
  return true;
}

// As many of the numbers as the file holds, whatever the count says.
std::vector<int> ReadObjectNumbers(MFile& file, unsigned count) {
  const int left = file.GetLength() - file.Tell();
  count = std::min(count, static_cast<unsigned>(std::max(left, 0)) / kWord);
  std::vector<int> numbers;
  numbers.reserve(count);
  for (unsigned word; count > 0 && ReadWord(file, word); --count) numbers.push_back(static_cast<int>(word));
  return numbers;
}

FlightObjects LoadFlightList() {
  std::vector<KindAndNumber> objects;
  const std::string path = ZentharPath::GetPath(kFlightList);
  const bool opened = !path.empty() && ForEachLine(path, [&objects](const char* line) {
    const auto fields = GetTokens(line, kFieldDelimiter);
    int kind = 0, number = 0;
    if (fields.size() < 2 || !ReadKind(fields[0], kind) || !ReadNumber(fields[1], number)) return;
    objects.emplace_back(kind, number);
  });
  if (!opened) PrintDebugString("File with 3d flight information (%s) not found\n", kFlightList);
  std::sort(objects.begin(), objects.end());
  return {ObjectTable(objects)};
}

}  // namespace

_3DFlightObjectsList::~_3DFlightObjectsList() = default;

General3DFlightObjectsList::General3DFlightObjectsList(const char* path) { Load(path); }
General3DFlightObjectsList::~General3DFlightObjectsList() = default;

void General3DFlightObjectsList::Load(const char* path) {
  const std::string resolved = ZentharPath::GetPath(path);
  MFile file;
  if (resolved.empty() || !file.Open(resolved.c_str(), MFile::kRead)) {
    PrintDebugString("File with distance information (%s) not found\n", path ? path : "");
    return;
  }
  for (unsigned kind; ReadWord(file, kind);) {
    unsigned count = 0;  // stays when the file ends within it
    ReadWord(file, count);
    const std::vector<int> numbers = ReadObjectNumbers(file, count);
    DistanceGroup group{static_cast<int>(kind), nullptr};
    if (!numbers.empty()) group.numbers = std::make_unique<const KeyPositions>(numbers);
    m_Groups.push_back(std::move(group));
  }
}

bool General3DFlightObjectsList::objectInList(int kind, int number) {
  if (IsAlwaysInReach(kind)) return true;
  const auto group = std::find_if(m_Groups.begin(), m_Groups.end(),
                                  [kind](const DistanceGroup& candidate) { return candidate.kind == kind; });
  return group != m_Groups.end() && group->numbers && group->numbers->Find(number) >= 0;
}

Voyvane3DFlightObjectsList::Voyvane3DFlightObjectsList()
    : m_Objects(std::make_unique<const FlightObjects>(LoadFlightList())) {}
Voyvane3DFlightObjectsList::~Voyvane3DFlightObjectsList() = default;

bool Voyvane3DFlightObjectsList::objectInList(int kind, int number) {
  return kind == kStar || m_Objects->table.Find(kind, number) >= 0;
}

}  // namespace CommonInterfaces
