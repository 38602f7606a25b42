// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace host_test {

// How often the program's operators new were called so far, in every library of the process.
unsigned long long GetAllocationCount();

}  // namespace host_test
