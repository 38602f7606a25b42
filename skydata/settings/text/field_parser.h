// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "skydata/settings/text/document.h"

namespace skydata {

// Reads a line of the form "name = type values | attributes". Throws SourceError, naming `place`, when it is
// none.
FieldText ParseField(const TextPlace& place, std::string_view line);

}  // namespace skydata
