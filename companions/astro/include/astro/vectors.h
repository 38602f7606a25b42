// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Vectors of three doubles and matrices of nine, element (i, j) at index 3 i + j. A result may be the same array
// as an argument. Nothing here allocates or fails.
#pragma once

#include "astro/api.h"

ASTRO_API double Vmod(const double* v, int n);                            // length of a vector of n numbers
ASTRO_API void Vprod(const double a[3], const double b[3], double r[3]);  // a x b
ASTRO_API double VectorsAngle(const double a[3], const double b[3]);      // radians, 0 to pi, exact near both ends

ASTRO_API void MV3prod(const double m[9], const double v[3], double r[3]);  // m v
ASTRO_API void V3Mprod(const double v[3], const double m[9], double r[3]);  // v m, that is the transpose of m times v
ASTRO_API void M3prod(const double a[9], const double b[9], double r[9]);   // a b
