// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <io.h>
#include <stdio.h>

#include "skydata/files/terminal.h"

namespace skydata {

bool IsErrorTerminal() { return _isatty(_fileno(stderr)) != 0; }

}  // namespace skydata
