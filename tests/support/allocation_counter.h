// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace host_test {

// How often the program's operators new were called so far, in every library of the process.
unsigned long long GetAllocationCount();
// How many of those blocks have not been freed. What a library of its own frees or allocates without these
// operators, as on Windows, makes it meaningless.
long long GetLivingCount();

// In this thread one fails after that many further ones; below 0: none does.
void FailAllocationAfter(long long allocations);
// Whether it has failed since.
bool HasAllocationFailed();

}  // namespace host_test
