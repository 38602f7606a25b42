// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "skyview/session/diagnostics.h"

namespace skyview {

// "" when "filters.data" holds whole the defaults that a view is restored over, else what is wrong: one line.
// The readers take what stands before a damage, and say nothing.
std::string FindFaultOfViewDefaults();

// A line for the defaults of the settings and one for those of the view, where they are not whole.
void TellFaultsOfDefaults(Diagnostics& diagnostics);

}  // namespace skyview
