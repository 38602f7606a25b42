// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "skydata/settings/reader/block_scan.h"
#include "skydata/settings/reader/names.h"

namespace skydata {

// Gives the block the fields of these records, and each section the run of fields that a reader takes. The
// layout is that in which all records have the right length; `undecided` where neither is, if they have room
// for its header.
void AddFields(const std::vector<RawRecord>& records, const FieldNames& names, RecordLayout undecided,
               FileBlock& block);

}  // namespace skydata
