// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace skyview {

// "2026-01-15 22:00", rounded to the minute: as --time takes it. Julian day number and fraction of the moment.
std::string FormatMoment(int day, double fraction);

}  // namespace skyview
