// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/object_kinds.h"
#include "common_interfaces/string_table.h"
#include "utils/text.h"

namespace CommonInterfaces {

namespace {

// The planets count 1 to 9 and the Sun 10; from 11 on follow dwarf planets, which 9 became.
int PlanetTypeText(int number) {
  if (number == 10) return FourCC("star");
  if (number == 9 || (number >= 11 && number <= 99)) return FourCC("pldw");
  return FourCC("plnt");
}

// The sub-type code itself is the identifier: a small number, not a four-character code. Deliberate; the
// string table keeps a text for every sub-type. 0 is none: the number of an object that no catalog has
// classified. It is named by its kind, for which the user's kinds, which have no sub-type, have the texts.
int DeepskyTypeText(int kind, int number) {
  if (const int subType = (number >> 24) & 255) return subType;
  switch (kind) {
    case FourCC("gala"):
      return FourCC("uGAL");
    case FourCC("nebu"):
      return FourCC("uNEB");
    case FourCC("clst"):
      return FourCC("uCLS");
    default:
      return FourCC("uDSO");
  }
}

int ObjectTypeText(int kind, int number) {
  switch (kind) {
    case FourCC("uSTR"):
      return FourCC("star");
    case FourCC("uSCO"):
    case FourCC("fSCO"):
      return FourCC("scft");
    case FourCC("fCOM"):
      return FourCC("comt");
    case FourCC("fAST"):
      return FourCC("astr");
    case FourCC("plnt"):
      return PlanetTypeText(number);
    case FourCC("gala"):
    case FourCC("nebu"):
    case FourCC("clst"):
    case FourCC("dsnv"):
    case FourCC("uDSO"):
      return DeepskyTypeText(kind, number);
    default:
      return kind;
  }
}

int MoonTypeText(int moonNumber) {
  const int planet = moonNumber / 100;
  return planet >= 4 && planet <= 9 ? 20261 + (planet - 4) : FourCC("moon");
}

char* TextOf(int identifier) {
  const QX4Strings loaded;
  return loaded.GetString(static_cast<unsigned>(identifier), false);
}

}  // namespace

char* GetObjectTypeName(int kind, int number) { return TextOf(ObjectTypeText(kind, number)); }

char* GetMoonOfParentTypeName(int moonNumber) { return TextOf(MoonTypeText(moonNumber)); }

}  // namespace CommonInterfaces
