// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/api.h"

// Delta T: dynamical time (TT) minus Universal Time (UT1), in seconds.
struct ASTRO_API ET_UT {
  static double Get(int julianDay, double fraction);
};
