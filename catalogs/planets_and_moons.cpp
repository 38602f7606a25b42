// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/planets_and_moons.h"

#include <limits>
#include <string>

#include "astro/constants.h"
#include "catalogs/line_fields.h"
#include "common_interfaces/text_formats.h"
#include "utils/debug.h"
#include "utils/path.h"
#include "utils/text.h"

namespace CommonInterfaces {
namespace {

using astro::kMoonKind;
using astro::kPlanetKind;
using astro::kSunNumber;

constexpr char kBodies[] = "catalogs\\planets&moons\\planets&moons.txt";
constexpr unsigned kUnreadable = 3007;
constexpr int kMoonsPerPlanet = 100;

long long FirstMoon(const SSO_ID& planet) {
  return planet.number * static_cast<long long>(kMoonsPerPlanet) + 1;
}

// A localized message, made one line should its line end be missing. Where it is missing altogether, the
// string table has said so.
void PrintUnreadable(const std::string& path) {
  std::string text = FormatLocalizedText(kUnreadable, {path.c_str()});
  if (text.empty()) return;
  if (text.back() != '\n') text += '\n';
  PrintDebugString("%s", text.c_str());
}

}  // namespace

PlanetMoonDescription::PlanetMoonDescription() { Load(); }
PlanetMoonDescription::~PlanetMoonDescription() = default;

void PlanetMoonDescription::Load() {
  const std::string path = ZentharPath::GetPath(kBodies);
  if (path.empty()) {
    PrintUnreadable(kBodies);
  } else if (!ForEachLine(path, [&](const char* line) { LoadLine(line, path.c_str()); })) {
    PrintUnreadable(path);
  }
}

void PlanetMoonDescription::LoadLine(const char* line, const char* path) {
  auto fields = GetTokens(line, kFieldDelimiter);
  if (fields.size() < 3) {
    PrintDebugString("Bad string (%s) in file %s\n", line, path);
    return;
  }
  // By its length: four bytes of 0xFF are a code too, the one that stands for "no code" elsewhere.
  if (fields[0].size() != 4) {
    PrintDebugString("Bad object type in string (%s) in file %s\n", line, path);
    return;
  }
  Body body;
  body.id.kind = GetFOURCC(fields[0].c_str());
  int flag = body.id.kind == kPlanetKind;
  // A bad flag is deliberately reported as a bad number.
  if (!ReadNumber(fields[1], body.id.number) || (fields.size() > 3 && !ReadNumber(fields[3], flag))) {
    PrintDebugString("Bad object Id in string (%s) in file %s\n", line, path);
    return;
  }
  DeleteBorderSpace(fields[2].data());
  const char* const name = fields[2].c_str();
  SetName(name, body.id);
  body.id.fourth = flag != 0;
  body.name = CopyToHeap(name);
  m_Bodies[{body.id.kind, body.id.number}] = std::move(body);
}

const PlanetMoonDescription::Body* PlanetMoonDescription::Find(int kind, long long number) const {
  if (number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max()) return nullptr;
  const auto found = m_Bodies.find({kind, static_cast<int>(number)});
  return found != m_Bodies.end() ? &found->second : nullptr;
}

char* PlanetMoonDescription::GetObjectName(const SSO_ID& id) const {
  if (const Body* body = Find(id.kind, id.number)) return body->name.get();
  PrintDebugString("Name for object (%d, %d) not found\n", id.kind, id.number);
  return nullptr;
}

SSO_ID PlanetMoonDescription::GetParentObject(const SSO_ID& id) const {
  if (id.kind == kPlanetKind && id.number != kSunNumber) return {kPlanetKind, kSunNumber};
  if (id.kind == kMoonKind) return {kPlanetKind, id.number / kMoonsPerPlanet};
  return {};
}

// A missing body ends the enumeration.
bool PlanetMoonDescription::Start(Enumeration& enumeration, int kind, long long number, SSO_ID& out) const {
  const Body* const body = Find(kind, number);
  enumeration.isRunning = body != nullptr;
  if (!body) return false;
  enumeration.kind = kind;
  enumeration.number = body->id.number;
  out = body->id;
  return true;
}

bool PlanetMoonDescription::Advance(Enumeration& enumeration, SSO_ID& out) const {
  return enumeration.isRunning && Start(enumeration, enumeration.kind, enumeration.number + 1LL, out);
}

bool PlanetMoonDescription::GetFirstPlanet(SSO_ID& out) { return Start(m_Planets, kPlanetKind, 1, out); }
bool PlanetMoonDescription::GetNextPlanet(SSO_ID& out) { return Advance(m_Planets, out); }

int PlanetMoonDescription::GetNumberOfMoons(SSO_ID planet) const {
  const long long first = FirstMoon(planet);
  int count = 0;
  while (Find(kMoonKind, first + count)) ++count;
  return count;
}

bool PlanetMoonDescription::HasMoons(const SSO_ID& planet) const {
  return Find(kMoonKind, FirstMoon(planet)) != nullptr;
}

bool PlanetMoonDescription::GetFirstMoon(SSO_ID& out, const SSO_ID& planet) {
  return Start(m_Moons, kMoonKind, FirstMoon(planet), out);
}

bool PlanetMoonDescription::GetNextMoon(SSO_ID& out) { return Advance(m_Moons, out); }

}  // namespace CommonInterfaces
