// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/timezone.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "companions/utils/zones/zone_file.h"
#include "companions/utils/zones/zone_folders.h"
#include "utils/debug.h"
#include "utils/file.h"
#include "utils/path.h"

namespace {

using utils_internal::Zone;

constexpr std::size_t kMaxNameLength = 255;
constexpr int kMaxFileLength = 1 << 20;   // the largest zones of the database have 4 KiB
constexpr double kUnixEpoch = 2440587.5;  // Julian date of 1970-01-01 00:00
constexpr double kFarthestTime = 1e15;    // seconds; some thirty million years

// A path below the zone folder and nothing else: letters, digits, '_', '-', '+', '.' in pieces between single
// '/', no piece beginning with '.'.
bool IsZoneName(std::string_view name) {
  if (name.size() > kMaxNameLength || name.back() == '/') return false;
  char before = '/';
  for (char c : name) {
    const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    if (before == '/' && (c == '/' || c == '.')) return false;
    if (!letter && std::string_view("/_-+.").find(c) == std::string_view::npos) return false;
    before = c;
  }
  return true;
}

// For messages: one line of moderate length, whatever the name holds.
std::string MakePrintable(std::string_view name) {
  std::string text(name.substr(0, 80));
  for (char& c : text) {
    if (static_cast<unsigned char>(c) < ' ' || c == '\x7F') c = '?';
  }
  return text;
}

// False when there is no such file. A file that is no zone is read to the limit and left to the parser.
bool ReadZoneBytes(const std::string& path, std::vector<unsigned char>& bytes) {
  MFile file;
  if (!file.Open(path.c_str(), MFile::kRead)) return false;
  bytes.resize(static_cast<unsigned>(std::min(file.GetLength(), kMaxFileLength)));
  bytes.resize(file.Read(bytes.data(), static_cast<unsigned>(bytes.size())));
  return true;
}

// The zone of the first undamaged file; one line when there is none, and for each damaged file.
std::optional<Zone> LoadZone(std::string_view name) {
  if (!IsZoneName(name)) {
    PrintDebugString("Time zone name \"%s\" is not valid\n", MakePrintable(name).c_str());
    return std::nullopt;
  }
  std::vector<std::string> paths = {ZentharPath::GetPath(("media:zoneinfo:" + std::string(name)).c_str())};
  for (const std::string& folder : utils_internal::GetZoneFolders()) {
    paths.push_back(folder + "/" + std::string(name));
  }
  bool reported = false;
  for (const std::string& path : paths) {
    std::vector<unsigned char> bytes;
    if (!ReadZoneBytes(path, bytes)) continue;
    std::string problem;
    if (std::optional<Zone> zone = utils_internal::ParseZoneFile(bytes, problem)) return zone;
    PrintDebugString("Time zone file %s is damaged: %s\n", path.c_str(), problem.c_str());
    reported = true;
  }
  if (!reported) PrintDebugString("Time zone %s not found\n", MakePrintable(name).c_str());
  return std::nullopt;
}

// Every name that was asked for, those without a zone too. Made on first use and kept for the process.
const std::optional<Zone>& FindZone(std::string_view name) {
  static std::map<std::string, std::optional<Zone>, std::less<>> s_Zones;
  const auto found = s_Zones.find(name);
  if (found != s_Zones.end()) return found->second;
  return s_Zones.emplace(name, LoadZone(name)).first->second;
}

// A Julian date near the present tells moments 40 microseconds apart: rounded to the millisecond, the second
// at which an offset changes is that second, and not the end of the one before.
long long GetUnixTime(double julianDate) {
  const double seconds = (julianDate - kUnixEpoch) * 86400.0;
  const double limited = std::clamp(seconds, -kFarthestTime, kFarthestTime);
  return static_cast<long long>(std::floor(limited + 0.0005));
}

}  // namespace

double getLocalUTCDeltaForTimezone(const char* zone, double julianDate) {
  if (!zone || !*zone) return 0.0;
  const std::optional<Zone>& found = FindZone(zone);
  if (!found || std::isnan(julianDate)) return 0.0;
  return found->GetOffset(GetUnixTime(julianDate)) / 86400.0;
}

bool isTimezoneKnown(const char* zone) { return zone && *zone && FindZone(zone).has_value(); }
