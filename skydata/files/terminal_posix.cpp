// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <unistd.h>

#include "skydata/files/terminal.h"

namespace skydata {

bool IsErrorTerminal() { return isatty(STDERR_FILENO) == 1; }

}  // namespace skydata
