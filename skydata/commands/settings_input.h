// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the commands below `settings` read, and the arguments that name it.
#pragma once

#include <iosfwd>
#include <string>
#include <utility>

#include "skydata/commands/arguments.h"
#include "skydata/settings/explain.h"
#include "skydata/settings/reader/file_reader.h"

namespace skydata {

inline constexpr char kStandardStream[] = "-";  // in place of a file's name

// A required settings file, and the option --names.
void AddSettingsFile(ArgumentList& command, const char* name, std::string& file);
void AddNamesOption(ArgumentList& command, std::string& names);

// The library's names and those of the settings text that --names gives, "" for none.
FieldNames LoadNames(const std::string& names);

// "SECTION.NAME" and "OWNER,ID" of the command line. Throw UsageError.
void ParseFieldName(const std::string& text, ExplainRequest& request);
std::pair<unsigned, unsigned> ParseBlockKey(const std::string& text);

// The bytes of the file or of standard input. Throws SourceError when the file cannot be read.
std::string ReadInput(const std::string& path);

// A settings file. What was read of a damaged one is used: the damage goes to `errors` and sets `isDamaged`.
SettingsFile LoadSettings(const std::string& path, const FieldNames& names, std::ostream& errors,
                          bool& isDamaged);

}  // namespace skydata
