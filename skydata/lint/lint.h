// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "skydata/lint/findings.h"

namespace skydata {

// What is wrong with the files below a data root or a work area, sorted: with each file on its own, and with
// what files say about one another. The library's readers read them too; while that lasts, the logical paths
// lead to this root, and afterwards nowhere. The string table stays that of the last language. Nothing is
// written. Throws SourceError when the root is no folder.
LintFindings Lint(const std::filesystem::path& root);

}  // namespace skydata
