// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Many directions at once. The build chooses between projection_batch_x86.cpp, which takes what vector
// instructions the processor has, and projection_batch_plain.cpp; the pixels are the same to the bit.
#pragma once

#include <vector>

#include "common_interfaces/projection.h"
#include "utils/geometry.h"

namespace CommonInterfaces {

// What projects. The loops copy it: pixels that are written could be part of anything else.
struct BatchProjection {
  PictureMatrix matrix;
  double scale;  // pixels
  tPoint<double> centre;
};

// Camera::BatchRA_Dec2PixD has the contract.
using BatchRun = void (*)(const BatchProjection& projection, const double* v, tPoint<double>* p, int count);

// Those that this processor and system can run, the fastest first.
std::vector<BatchRun> FindBatchRuns();

// The same, one after the other: where there is nothing better, and for those that fill no vector register.
inline void ProjectEach(const BatchProjection& given, const double* v, tPoint<double>* p, int count) {
  const BatchProjection projection = given;
  for (; count > 0; --count, v += 3, ++p) {
    double left, up;
    Project(projection.matrix, projection.scale, v[0], v[1], v[2], left, up);
    *p = {projection.centre.x - left, up + projection.centre.y};
  }
}

}  // namespace CommonInterfaces
