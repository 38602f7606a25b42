// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "skydata/settings/text/document.h"

namespace skydata {

// Reads a settings text with the files that it includes. Throws SourceError at the first line that is wrong.
SettingsDocument ParseSettings(const std::filesystem::path& path);

// The same of a text in memory. `name` stands for it in messages; included files are found from the folder of
// `name`.
SettingsDocument ParseSettingsText(const std::string& text, const std::filesystem::path& name);

}  // namespace skydata
