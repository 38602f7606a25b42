// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "skydata/settings/reader/file.h"
#include "skydata/settings/reader/names.h"

namespace skydata {

enum class FileKind { kSettings, kCorrection };

// That of a file of this name: "FilterCorrection.data" alone is read as a correction file.
FileKind KindOfFile(const std::string& fileName);

// Everything that is wrong with a file, or odd, by offset; `file` is what was read from `bytes`. The damage
// that the reader met comes with it.
std::vector<Finding> CheckSettings(std::string_view bytes, const SettingsFile& file, const FieldNames& names,
                                   FileKind kind);

// Whether the record is of those that a container copies to the front of their section each time it reads the
// block: listed objects of "astr", "comt", "scft" and "moon".
bool IsListedObject(const FileField& field);

}  // namespace skydata
