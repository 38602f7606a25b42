// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "camera/home_record.h"

#include <cstdio>
#include <cstring>
#include <string>

#include "astro/constants.h"
#include "camera/camera_codes.h"
#include "camera/number_line.h"
#include "common_interfaces/units.h"
#include "utils/text.h"

namespace CommonInterfaces {
namespace {

constexpr double kZoomAtHome = 0.65;
constexpr unsigned kLineSize = 4096;
constexpr char kNoZone[] = "-";

bool IsMark(char c) { return c == '!' || c == '}'; }

// The file's reader takes a line that begins with a mark for a comment or for the end. Such a text, and one
// that would pass for a protected one, is kept behind a backslash.
bool NeedsProtection(const char* text) {
  return IsMark(text[0]) || (text[0] == '\\' && (IsMark(text[1]) || text[1] == '\\'));
}

bool WriteText(MTextFile& file, const char* text) {
  std::string line = text;
  if (NeedsProtection(text)) line.insert(0, 1, '\\');
  for (char& c : line)
    if (c == '\n' || c == '\r') c = ' ';  // a text is one line
  return file.Write("%s\n", line.c_str());
}

// Copies at most size - 1 bytes.
void TakeText(const char* line, char* out, unsigned size) {
  if (line[0] == '\\' && NeedsProtection(line)) ++line;
  std::snprintf(out, size, "%s", line);
}

template <class Byte>
bool ReadByte(NumberLine& line, Byte& byte) {
  int value = 0;
  if (!line.Read(value) || static_cast<Byte>(value) != value) return false;
  byte = static_cast<Byte>(value);
  return true;
}

// The lines of a record; any that is missing or no such line is damage.
class RecordLines {
 public:
  explicit RecordLines(MTextFile& file) : m_File(file) {}

  // The next line, "" included; null at the end of the file.
  const char* Next() { return m_File.Readln(m_Line, sizeof m_Line) > 0 ? m_Line : nullptr; }

  bool ReadLocation(HomeParameters& home);
  bool ReadView(HomeParameters& home);
  bool ReadTime(HomeParameters& home);

 private:
  MTextFile& m_File;
  char m_Line[kLineSize];
};

bool RecordLines::ReadLocation(HomeParameters& home) {
  const char* const text = Next();
  if (!text) return false;
  NumberLine line(text);
  signed char movingType = 0;
  unsigned char locationType = 0;
  double distance = 0.0;
  if (!ReadByte(line, movingType) || !ReadByte(line, locationType) || !line.Read(distance) ||
      !line.Read(home.location.lon) || !line.Read(home.location.lat) ||
      !ReadByte(line, home.location.distUnits) || !ReadByte(line, home.location.coorSys) ||
      !line.Read(home.observer.kind) || !line.Read(home.observer.number)) {
    return false;
  }
  home.movingType = movingType;
  home.locationType = locationType;
  // Divided even where the writer did not multiply: the distance of a place without a name comes back in
  // another unit than it was written in. Deliberate: files have been kept so.
  home.location.dist = ConvertUnitToAU(distance, kKilometre);
  int isNamed = 0;
  if (!line.Read(isNamed)) return true;
  const char* const name = Next();
  if (name) TakeText(name, home.locationName, sizeof home.locationName);
  return name != nullptr;
}

bool RecordLines::ReadView(HomeParameters& home) {
  const char* text = Next();
  if (!text) return false;
  NumberLine angles(text);
  if (!angles.Read(home.alp) || !angles.Read(home.bet) || !angles.Read(home.slp) ||
      !ReadByte(angles, home.aimingDispType)) {
    return false;
  }
  text = Next();
  if (!text || !NumberLine(text).Read(home.zoom)) return false;
  text = Next();
  if (!text) return false;
  NumberLine direction(text);
  int locked = 0;
  if (!direction.Read(locked) || !direction.Read(home.centerObject.kind) ||
      !direction.Read(home.centerObject.number)) {
    return false;
  }
  home.directionLocked = locked != 0;
  return true;
}

bool RecordLines::ReadTime(HomeParameters& home) {
  const char* text = Next();
  if (!text) return false;
  NumberLine moment(text);
  if (!moment.Read(home.day) || !moment.Read(home.fraction) || !moment.Read(home.timeType)) return false;
  text = Next();
  if (!text) return false;
  if (std::strcmp(text, kNoZone) != 0) TakeText(text, home.timeZoneName, sizeof home.timeZoneName);
  return true;
}

bool WriteLocation(MTextFile& file, const HomeParameters& home) {
  const SphCoor& place = home.location;
  const bool isNamed = home.locationName[0] != '\0';
  const std::string dist = FormatGeneral(isNamed ? ConvertUnitFromAU(place.dist, kKilometre) : place.dist);
  const std::string lon = FormatGeneral(place.lon), lat = FormatGeneral(place.lat);
  return file.Write("%d %d %s %s %s %d %d %d %d%s\n", home.movingType, home.locationType, dist.c_str(),
                    lon.c_str(), lat.c_str(), place.distUnits, place.coorSys, home.observer.kind,
                    home.observer.number, isNamed ? " 1" : "") &&
         (!isNamed || WriteText(file, home.locationName));
}

bool WriteView(MTextFile& file, const HomeParameters& home) {
  constexpr int kWidth = 14;
  const std::string alp = FormatFixed(home.alp, kWidth), bet = FormatFixed(home.bet, kWidth);
  const std::string slp = FormatFixed(home.slp, kWidth), zoom = FormatGeneral(home.zoom);
  return file.Write("%s %s %s %d\n", alp.c_str(), bet.c_str(), slp.c_str(), home.aimingDispType) &&
         file.Write("%s\n", zoom.c_str()) &&
         file.Write("%d %d %d\n", home.directionLocked ? 1 : 0, home.centerObject.kind,
                    home.centerObject.number);
}

bool WriteTime(MTextFile& file, const HomeParameters& home) {
  constexpr int kWidth = 18;
  const std::string fraction = FormatFixed(home.fraction, kWidth);
  return file.Write("%d %s %d\n", home.day, fraction.c_str(), home.timeType) &&
         WriteText(file, home.timeZoneName[0] != '\0' ? home.timeZoneName : kNoZone);
}

}  // namespace

HomeReading ReadHome(MTextFile& file, HomeParameters& home) {
  RecordLines lines(file);
  const char* text = lines.Next();
  while (text && IsEmptyString(text)) text = lines.Next();
  if (!text) return HomeReading::kEnd;
  home = HomeParameters();
  if (!NumberLine(text).Read(home.flags)) return HomeReading::kDamaged;
  if ((home.flags & kHomeLocation) != 0 && !lines.ReadLocation(home)) return HomeReading::kDamaged;
  if ((home.flags & kHomeView) != 0 && !lines.ReadView(home)) return HomeReading::kDamaged;
  if ((home.flags & kHomeTime) != 0 && !lines.ReadTime(home)) return HomeReading::kDamaged;
  // Whatever the file says: deliberate, the Earth's home is always shown whole.
  if (home.observer == astro::kEarth) home.zoom = kZoomAtHome;
  return HomeReading::kRead;
}

bool WriteHome(MTextFile& file, const HomeParameters& home) {
  const auto lacks = [&home](auto part) { return (home.flags & part) == 0; };
  return file.Write("%d\n", home.flags) && (lacks(kHomeLocation) || WriteLocation(file, home)) &&
         (lacks(kHomeView) || WriteView(file, home)) && (lacks(kHomeTime) || WriteTime(file, home));
}

}  // namespace CommonInterfaces
