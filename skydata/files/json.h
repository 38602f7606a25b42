// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace skydata {

// The text as a JSON string (RFC 8259), quotes included, in UTF-8. A byte that is part of no UTF-8 character becomes
// U+FFFD.
std::string JsonString(const std::string& utf8);

}  // namespace skydata
