// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "common_interfaces/api.h"

namespace CommonInterfaces {

// The class of a spectral type as written in catalogues: O 0, B 1, A 2, F 3, G 4, K 5, M 6. Only the first
// capital letter (A to Z) of the text counts: "gK2" is 5. S, R, N and C, the carbon and zirconium stars,
// count as M. 255 when that letter is no class ("Xp"), when there is no capital letter ("k0") and for null.
// Any thread.
COMMON_INTERFACES_API unsigned char GetSpectrType(const char* spectrum);

// Records the sub-type of a star in a process-wide table; 0 and 1 are stored as 3, the general sub-type. The
// first sub-type of a star stays: a later call for the same star changes nothing. The table has no lock: fill
// it while loading, before other threads read it.
COMMON_INTERFACES_API void SetAddStarInfo(unsigned char subType, int starId);

// The recorded sub-type, 3 for a star without one. Any thread, once the table is filled.
COMMON_INTERFACES_API int GetStarSubType(int starId);

}  // namespace CommonInterfaces
