// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace skyview {

// "2026-01-15 22:00", rounded to the minute: as --time takes it. Julian day number and fraction of the
// moment.
std::string FormatMoment(int day, double fraction);
// Its date alone, "2026-01-15"; years count with a year 0.
std::string FormatDay(int day, double fraction);
// Whether such a text is of the year 0 or one before it.
bool IsBeforeFirstYear(const std::string& text);

}  // namespace skyview
