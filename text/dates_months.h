// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The names of the months as the string table has them. For the thread that uses the string table.
#pragma once

#include <string>

namespace CommonInterfaces {

// The name for a date that spells its month: texts 971 to 982 in every language. "" for a month outside 1 to
// 12 and for a missing text. The reference stays valid until the next call.
const std::string& GetMonthOfLongDate(int month);

}  // namespace CommonInterfaces
