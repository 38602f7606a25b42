// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace CommonInterfaces {

// The next question reads the file again. For tests and fuzzing only: while no thread asks.
void ForgetObservationTimesForTests();

}  // namespace CommonInterfaces
