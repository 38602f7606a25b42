// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/standard_streams.h"

#include <fcntl.h>
#include <io.h>
#include <stdio.h>

namespace skydata {

void KeepStreamBytes() {
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
}

}  // namespace skydata
