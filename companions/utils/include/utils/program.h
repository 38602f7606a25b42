// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "utils/api.h"

// The folder that the running program lies in; "" when the system does not tell. Any thread.
UTILS_API std::string GetProgramFolder();
