// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/standard_streams.h"

namespace skydata {

void KeepStreamBytes() {}  // streams carry bytes here

}  // namespace skydata
