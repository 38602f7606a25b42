// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "tools/settings_document.h"

namespace skydata {

// Reads a settings text with the files that it includes. Throws SourceError at the first line that is wrong.
SettingsDocument ParseSettings(const std::filesystem::path& path);

}  // namespace skydata
