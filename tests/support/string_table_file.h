// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "common_interfaces/string_table.h"
#include "support/temp_dir.h"

namespace test_support {

// Writes "qxstrings.txt" into the data root and loads it in place of whatever the process-wide table held, by
// way of a complete change of language. Texts fetched before are gone.
inline void LoadStrings(const TempRoots& roots, std::string_view content) {
  roots.dir.Write("data/qxstrings.txt", content);
  CommonInterfaces::QX4Strings::StartLocaleUpdate();
  CommonInterfaces::QX4Strings strings;
  CommonInterfaces::QX4Strings::FinishLocaleUpdate();
}

}  // namespace test_support
