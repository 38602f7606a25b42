// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "camera/projection_batch.h"

namespace CommonInterfaces {

std::vector<BatchRun> FindBatchRuns() { return {ProjectEach}; }

}  // namespace CommonInterfaces
