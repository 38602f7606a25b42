// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace astro_internal {

// Whether all components of a vector are numbers, and none is infinite: 0 times anything else is not 0.
inline bool AreFinite(const double v[3]) { return 0.0 * v[0] + 0.0 * v[1] + 0.0 * v[2] == 0.0; }

}  // namespace astro_internal
