// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/vectors.h"

#include <cmath>

using astro::Dot;

double Vmod(const double* v, int n) {
  double sum = 0.0;
  for (int i = 0; i < n; ++i) sum += v[i] * v[i];
  return std::sqrt(sum);
}

void Vprod(const double a[3], const double b[3], double r[3]) {
  const double x = a[1] * b[2] - a[2] * b[1];
  const double y = a[2] * b[0] - a[0] * b[2];
  const double z = a[0] * b[1] - a[1] * b[0];
  r[0] = x;
  r[1] = y;
  r[2] = z;
}

// The arc tangent of the two products keeps its digits where an arc cosine loses half of them (near 0 and
// pi), and needs no unit vectors.
double VectorsAngle(const double a[3], const double b[3]) {
  double cross[3];
  Vprod(a, b, cross);
  return std::atan2(Vmod(cross, 3), Dot(a, b));
}

void MV3prod(const double m[9], const double v[3], double r[3]) {
  const double x = Dot(m, v);
  const double y = Dot(m + 3, v);
  const double z = Dot(m + 6, v);
  r[0] = x;
  r[1] = y;
  r[2] = z;
}

void V3Mprod(const double v[3], const double m[9], double r[3]) {
  const double x = v[0] * m[0] + v[1] * m[3] + v[2] * m[6];
  const double y = v[0] * m[1] + v[1] * m[4] + v[2] * m[7];
  const double z = v[0] * m[2] + v[1] * m[5] + v[2] * m[8];
  r[0] = x;
  r[1] = y;
  r[2] = z;
}

void M3prod(const double a[9], const double b[9], double r[9]) {
  double product[9];
  for (int row = 0; row < 3; ++row) V3Mprod(a + 3 * row, b, product + 3 * row);
  for (int i = 0; i < 9; ++i) r[i] = product[i];
}
