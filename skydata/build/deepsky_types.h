// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

namespace skydata {

// A type of deep-sky objects as a source names it, the kind it belongs to, and its sub-type code, the
// identifier of its name in the string table. Codes are kept in files: never renumber. 0: it has no name but
// that of its kind.
struct DeepskyType {
  std::string_view name;
  const char* kind;
  int subType;
};

// A type of messier.tsv, "globular cluster". Null for any other.
const DeepskyType* FindMessierType(std::string_view name);

// A type of openngc.tsv, "GCl"; that of a galaxy, "G", by its class in Hubble's sequence besides. Null for
// any other.
const DeepskyType* FindNgcType(std::string_view type, std::string_view hubble);

// How much fainter objects of that type of openngc.tsv are in blue than in visual light, magnitudes: the
// median of those of which both are known, to a twentieth. Of types of which few are, that of all of them
// together.
double GetTypicalColour(std::string_view type);

// The number of an object: the sub-type code in the top byte, below it the number by which its catalogue has
// it.
inline constexpr int kSubTypeShift = 24;
inline int MakeDeepskyNumber(int subType, int low) { return subType << kSubTypeShift | low; }

// The low 24 bits of the number of an entry, which no other entry has; nothing when the name is none of
// these. Lists of favourites keep such numbers: frozen.
//
//   M 1 to M 110      the number itself
//   NGC 61A           1 000 000 + 100 x number + part; IC 80 NED02: 2 000 000 and likewise
//   B, C, Cr, Harvard, HCG, Mel, MWSC    3 000 000, 3 100 000 and so on to 3 600 000, + number
//   ESO 56-115        4 000 000 + 1000 x field + number
//   PGC, UGC          5 000 000, 15 000 000 + number
//
// Parts: 0 the entry itself, A to Z 1 to 26, NED01 to NED29 31 to 59, NE NW SE SW 61 to 64.
std::optional<int> FindEntryNumber(std::string_view name);

}  // namespace skydata
