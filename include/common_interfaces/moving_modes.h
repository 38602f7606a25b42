// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What each moving type (Camera::GetMovingType, 0 to 11) implies for the base plane and the coordinate
// system.
#pragma once

#include "common_interfaces/api.h"

namespace CommonInterfaces {

// The base-plane code (Camera::GetBasePlane) or the coordinate-system code (SphCoor::coorSys) that belongs to
// a moving type; -1 means none. Callers pass 0 to 11; anything else gives -1 as well. Any thread.
COMMON_INTERFACES_API char GetBasePlaneForMode(char mode);
COMMON_INTERFACES_API char GetSysCoorForMode(char mode);

}  // namespace CommonInterfaces
