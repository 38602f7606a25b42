// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/object_id.h"

namespace CommonInterfaces {

// Prints the one line that says why a record is not converted: "Object fCOM 1003: REASON\n". Bytes of the
// kind that are no printable ASCII characters become '?'.
void PrintUnusable(const SSO_ID& id, const char* reason);

}  // namespace CommonInterfaces
