// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace skydata {

// Whether somebody watches standard error on a terminal, where a line may be written over.
bool IsErrorTerminal();

}  // namespace skydata
