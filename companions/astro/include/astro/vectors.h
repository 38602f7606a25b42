// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Vectors of three doubles and matrices of nine, element (i, j) at index 3 i + j; vectors are columns. A
// result may be the same array as an argument. Nothing here allocates, fails or keeps state; every thread may
// call. Numbers that are not finite give results that are not finite; components are squared, so they should
// stay below 1e150.
#pragma once

#include "astro/api.h"

namespace astro {

// The scalar product, summed from the first component to the last.
inline double Dot(const double a[3], const double b[3]) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }

}  // namespace astro

// The length of a vector of n numbers.
ASTRO_API double Vmod(const double* v, int n);

// a x b
ASTRO_API void Vprod(const double a[3], const double b[3], double r[3]);

// Angle between two directions, radians, 0 to pi, exact near both ends. The vectors need not have length 1;
// with a vector of length 0 the angle is 0.
ASTRO_API double VectorsAngle(const double a[3], const double b[3]);

// m v; v m, that is the transpose of m times v; a b.
ASTRO_API void MV3prod(const double m[9], const double v[3], double r[3]);
ASTRO_API void V3Mprod(const double v[3], const double m[9], double r[3]);
ASTRO_API void M3prod(const double a[9], const double b[9], double r[9]);
