// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace skydata {

// Keeps the system from changing line ends in what goes through standard input and output: files go through
// them.
void KeepStreamBytes();

}  // namespace skydata
