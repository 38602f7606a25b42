// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// How the commands below `strings` are told to read a string table.
#pragma once

#include <string>

#include "skydata/strings/source.h"

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace skydata {

// The options --language and --encoding.
CLI::Option* AddLanguageOption(CLI::App& command, std::string& language);
void AddEncodingOption(CLI::App& command, StringsEncoding& encoding);

}  // namespace skydata
