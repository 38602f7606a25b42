// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The formula of the camera's projection, for one direction or for as many at a time as a processor's
// register has numbers of: single calls and batches are this one text, so that they agree in every bit.
#pragma once

namespace CommonInterfaces {

// A matrix that takes a direction into the frame of the picture (camera.h), its elements in the order in
// which a projection takes them: processors compute left and up at once.
struct PictureMatrix {
  PictureMatrix() = default;
  // From nine doubles in row order.
  explicit PictureMatrix(const double* m)
      : x{m[0], m[3]}, y{m[1], m[4]}, z{m[2], m[5]}, ahead{m[6], m[7], m[8]} {}

  double x[2] = {1, 0}, y[2] = {0, 1}, z[2] = {0, 0};  // what each component adds to left and up
  double ahead[3] = {0, 0, 1};
};

// Stereographic about the view axis: the picture of the unit vector (x, y, z), `left` and `up` in pixels from
// the window's centre, with `scale` in pixels. Real is double or a vector of doubles. Never fails; a
// direction without a picture gives what is infinite or no number.
//
// Inlined into programs of other compiler options: results are the library's to the bit where the compiler
// neither joins a multiplication and an addition (GCC, Clang: -ffp-contract=off) nor computes in longer
// registers.
template <class Real>
[[gnu::always_inline]] inline void Project(const PictureMatrix& m, double scale, const Real& x, const Real& y,
                                           const Real& z, Real& left, Real& up) {
  const Real k = scale / (m.ahead[0] * x + m.ahead[1] * y + m.ahead[2] * z + 1.0);
  left = (m.x[0] * x + m.y[0] * y + m.z[0] * z) * k;
  up = (m.x[1] * x + m.y[1] * y + m.z[1] * z) * k;
}

}  // namespace CommonInterfaces
