// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>

#include "skydata/settings/reader/file.h"

namespace skydata {

// Writes what two settings files mean differently: header, blocks by key, sections by id, fields by section
// and name, with what the first (-) and the second (+) have. Only when nothing else differs is it said (~)
// that blocks, sections or fields stand in another order. True when there is a difference.
bool DiffSettings(const SettingsFile& first, const SettingsFile& second, std::ostream& output);

}  // namespace skydata
