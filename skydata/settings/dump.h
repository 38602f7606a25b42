// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>

#include "skydata/settings/reader/file.h"

namespace skydata {

// Writes the file as a settings text (docs/formats/settings_text.md), which compiles to the same bytes unless
// CheckSettings has a finding that keeps from that. What then has no place in the text stands in comments:
// fields outside the run or the name of their section, and second sections of one name.
void WriteSettingsText(const SettingsFile& file, std::ostream& text);

}  // namespace skydata
