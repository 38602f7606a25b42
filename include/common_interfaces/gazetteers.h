// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "astro/object_id.h"
#include "common_interfaces/api.h"

namespace CommonInterfaces {

// The file with the names of a body's surface features, for example "gazetteers/moon_features.txt" for the
// Moon ("moon" 301). Mercury, Venus, Mars (planets 1, 2 and 4) and the Moon have one. For every other body,
// and for any other number of these kinds, the text is empty and one line "Object (%d, %d) hasn't
// gazetteers\n" is printed. Any thread.
COMMON_INTERFACES_API std::string GetGazetteersFileName(const SSO_ID& body);

}  // namespace CommonInterfaces
