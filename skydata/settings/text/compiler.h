// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

#include "skydata/settings/text/document.h"

namespace skydata {

// The bytes of the settings file that the text describes, made by the library's own writer: one container a
// block. The writer works on a scratch file in `folder`, which must exist. Throws SourceError when the
// container refuses something or the file cannot be written. Sets the workspace version to the one of the
// text.
std::string CompileSettings(const SettingsDocument& document, const std::filesystem::path& folder);

}  // namespace skydata
