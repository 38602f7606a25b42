// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "skyview/session/diagnostics.h"

namespace skyview {

// "" when "filters.data" holds whole the defaults that a view is restored over, else what is wrong: one line.
// The readers take what stands before a damage, and say nothing.
std::string FindFaultOfViewDefaults();

// A line for the defaults of the settings, one for those of the view and one for those of the moving types,
// where they are not whole. Moving types need not have any.
void TellFaultsOfDefaults(Diagnostics& diagnostics);

}  // namespace skyview
