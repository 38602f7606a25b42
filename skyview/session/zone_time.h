// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "skyview/session/diagnostics.h"

namespace skyview {

// A moment in Universal Time.
struct UniversalMoment {
  int day = 0;            // Julian day number
  double fraction = 0.0;  // [-0.5, 0.5)
};

// Whether the time zone library knows the zone. Its complaint about an unknown one is taken out of
// `diagnostics`.
bool IsKnownZone(const std::string& zone, Diagnostics& diagnostics);

// The moment at which the clocks of the zone ("": Universal Time) show this day and fraction. Of two such
// moments, where the clocks are put back, the earlier one; nothing where they are put forward over it.
std::optional<UniversalMoment> LocalToUniversal(const std::string& zone, int day, double fraction);

}  // namespace skyview
