// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "skyview/session/zone_time.h"

namespace skyview {

// Tells what time it is. Tests bring one of their own.
using Clock = std::function<UniversalMoment()>;

// By the system's clock, to its resolution.
UniversalMoment ReadSystemClock();

}  // namespace skyview
