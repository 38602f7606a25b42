// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utils/api.h"

// The version that settings files are written with: the host sets it once at start-up; 0 until then.
UTILS_API unsigned GetWorkspaceVersion();
UTILS_API void SetWorkspaceVersion(unsigned version);
