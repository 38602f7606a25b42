// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "skydata/strings/findings.h"
#include "skydata/strings/source.h"

namespace skydata {

// What keeps the library from reading one table as it is meant: its lines, its texts beside their uses
// (CommonInterfaces::GetTextUses), what is missing, double or unused. By line.
StringsFindings CheckStrings(const StringsSource& source);

// What several tables do not have in common: identifiers that one of them lacks (unless the library requires
// them: then CheckStrings says so), data of meteor showers, and the formats of applications, whose arguments
// are those of the English table. By file and line.
StringsFindings CompareStrings(const std::vector<StringsSource>& sources);

}  // namespace skydata
