// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Kinds of objects and what users read for them. A kind is a four-character code (FourCC("star"), see
// utils/text.h). The codes that the user's own lists add to the catalogue kinds ("star", "gala", "nebu",
// "clst", "dsnv", "cnst", "comt", "astr", "scft") are
//   "uSTR" "uSCO" "uNEB" "uCLS" "uGAL" "uDSO"   user-defined star, spacecraft, nebula, cluster, galaxy, other
//                                               deep-sky object
//   "fAST" "fCOM" "fSCO"                        asteroid, comet and spacecraft of the favourites list
// Files keep all of these codes, so they never change.
#pragma once

#include "common_interfaces/api.h"

namespace CommonInterfaces {

// The favourites kind of a catalogue kind: "astr" gives "fAST", "comt" gives "fCOM", "scft" and "uSCO" give
// "fSCO". Every other kind, stars included, gives -1. Any thread.
COMMON_INTERFACES_API int GetFavoType(int kind);

// The catalogue kind of a user-defined kind: "uSTR" gives "star", "uSCO" "scft", "uNEB" "nebu", "uCLS" "clst"
// and "uGAL" "gala". Every other value, "uDSO" and the favourites kinds included, comes back as it is.
// Any thread.
COMMON_INTERFACES_API int GetBaseTypeByUser(int kind);

// The localized name of an object's type, for example "galaxy"; `number` is the number of its SSO_ID, which
// chooses between star, planet and dwarf planet for the kind "plnt" and carries the sub-type of deep-sky
// objects in its top byte; with 0 there the name is that of the kind, "uGAL", "uNEB", "uCLS" or "uDSO". The
// text belongs to the string table (QX4Strings, loaded here when it is not yet) and lives as long as the
// table says; null, with the table's diagnostic line, when the table has no such text. One thread.
COMMON_INTERFACES_API char* GetObjectTypeName(int kind, int number);

// The localized name of "moon of planet so-and-so" for a moon's number (planet * 100 + k): texts 20261 to
// 20266 for Mars to planet 9, the general text "moon" for every other planet. Otherwise as GetObjectTypeName.
COMMON_INTERFACES_API char* GetMoonOfParentTypeName(int moonNumber);

}  // namespace CommonInterfaces
