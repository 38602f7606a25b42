// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "skydata/settings/reader/file.h"
#include "skydata/settings/reader/names.h"

namespace skydata {

// Appends what is wrong inside one block: its sections, their runs and its fields, in no order.
void CheckBlock(const FileBlock& block, const FieldNames& names, std::vector<Finding>& findings);

}  // namespace skydata
