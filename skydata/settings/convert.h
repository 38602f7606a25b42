// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

#include "skydata/settings/reader/file.h"

namespace skydata {

struct ConvertRequest {
  std::filesystem::path file, out;  // `out` may be `file`
  RecordLayout undecided = RecordLayout::kCurrent;
};

// Writes the settings file with all its records in the current layout to `out`, whole or not at all, with the
// permissions of `file`, and returns how many fields were converted. Before the new file takes its place,
// every field of it is compared with that of the old one, both as the library reads them. Throws SourceError,
// with `out` as it was: a file that is damaged or current already, a block that fits neither layout, a field
// that reads differently.
int ConvertSettings(const ConvertRequest& request);

}  // namespace skydata
