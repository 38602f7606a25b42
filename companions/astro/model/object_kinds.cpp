// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/model/object_kinds.h"

#include "astro/constants.h"
#include "astro/moons.h"
#include "utils/text.h"

namespace astro_internal {

namespace {

struct KindOfFamily {
  int kind;
  ObjectFamily family;
};

constexpr KindOfFamily kFamilies[] = {
    {FourCC("star"), ObjectFamily::kStar},          {FourCC("uSTR"), ObjectFamily::kStar},
    {FourCC("gala"), ObjectFamily::kDeepsky},       {FourCC("nebu"), ObjectFamily::kDeepsky},
    {FourCC("clst"), ObjectFamily::kDeepsky},       {FourCC("dsnv"), ObjectFamily::kDeepsky},
    {FourCC("uDSO"), ObjectFamily::kDeepsky},       {FourCC("uNEB"), ObjectFamily::kDeepsky},
    {FourCC("uCLS"), ObjectFamily::kDeepsky},       {FourCC("uGAL"), ObjectFamily::kDeepsky},
    {FourCC("cnst"), ObjectFamily::kConstellation}, {FourCC("comt"), ObjectFamily::kOrbit},
    {FourCC("astr"), ObjectFamily::kOrbit},         {FourCC("scft"), ObjectFamily::kOrbit},
    {FourCC("fAST"), ObjectFamily::kOrbit},         {FourCC("fCOM"), ObjectFamily::kOrbit},
    {FourCC("fSCO"), ObjectFamily::kOrbit},         {FourCC("uSCO"), ObjectFamily::kOrbit},
};

}  // namespace

ObjectFamily FamilyOf(const SSO_ID& id) {
  const bool isPlanet = id.kind == astro::kPlanetKind && id.number >= 1 && id.number <= astro::kSunNumber;
  if (isPlanet || astro::IsMoonOfPlanet(id)) return ObjectFamily::kPlanet;
  for (const KindOfFamily& row : kFamilies) {
    if (row.kind == id.kind) return row.family;
  }
  return ObjectFamily::kUnknown;
}

bool IsComet(int kind) { return kind == FourCC("comt") || kind == FourCC("fCOM"); }
bool IsAsteroid(int kind) { return kind == FourCC("astr") || kind == FourCC("fAST"); }

}  // namespace astro_internal
