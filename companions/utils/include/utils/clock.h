// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utils/api.h"

// The animation clock: the host stores the time of the frame being prepared, in seconds, once a frame.
struct UTILS_API AnimationInterval {
  static double m_CurrentTime;
};

// Seconds from an arbitrary start, monotonic, at the resolution of the system's clock. Any thread.
UTILS_API double getPreciseTime();
