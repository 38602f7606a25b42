// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "skydata/settings/reader/file.h"
#include "skydata/settings/reader/names.h"

namespace skydata {

// Reads any bytes: the library finds one block by its key and stops at the first damage, this reader shows
// everything. Blocks follow one another: behind the header, or at the start of a file without one, begins the
// first; behind a whole block the next. Where no whole block stands, what has the key of a block (it is the
// first of the file, a block of defaults, or has the owner of an earlier block or one that is a
// four-character code) is kept as far as it can be read, and anything else are stray bytes; both reach to the
// next place where a whole block stands whose fields all belong to its sections. A record that is too short
// for its header ends the fields of a block, as it does for the library.
//
// `undecided` is the layout of blocks whose records fit neither.
SettingsFile ReadSettingsFile(std::string_view bytes, const FieldNames& names,
                              RecordLayout undecided = RecordLayout::kCurrent);

}  // namespace skydata
