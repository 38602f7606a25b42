// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// How the commands below `strings` are told to read a string table.
#pragma once

#include <string>

#include "skydata/commands/arguments.h"
#include "skydata/strings/source.h"

namespace skydata {

// The options --language and --encoding.
Argument AddLanguageOption(ArgumentList& command, std::string& language);
void AddEncodingOption(ArgumentList& command, StringsEncoding& encoding);

}  // namespace skydata
