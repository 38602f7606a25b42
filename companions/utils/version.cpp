// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/version.h"

namespace {

unsigned s_Version = 0;  // set once by the host, before other threads run

}  // namespace

unsigned GetWorkspaceVersion() { return s_Version; }

void SetWorkspaceVersion(unsigned version) { s_Version = version; }
