// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>

#include "astro/vectors.h"
#include "common_interfaces/sky_images.h"

namespace CommonInterfaces {
namespace {

void Normalise(double v[3]) {
  const double length = Vmod(v, 3);
  for (int i = 0; i < 3; ++i) v[i] /= length;
}

// Towards west, level. At a pole every direction is level: there it is west as seen on the meridian of right
// ascension 0.
void FindWest(const double* center, double west[3]) {
  constexpr double kPole[3] = {0.0, 0.0, 1.0};
  Vprod(center, kPole, west);
  if (west[0] == 0.0 && west[1] == 0.0) west[1] = -1.0;
  Normalise(west);
}

// The cosine from the sine and the quadrant. The factor is that of the application's pictures, single
// precision of 2 / pi: beside a quarter turn, where the cosine is below 1e-7, it decides which side counts.
double CosineOf(double angle, double sine) {
  const double quadrant = std::fmod(std::trunc(std::fabs(angle) * 0.63661975), 4.0);
  const double cosine = std::sqrt((1.0 - sine) * (1.0 + sine));
  return quadrant == 1.0 || quadrant == 2.0 ? -cosine : cosine;
}

}  // namespace

void DSOImages::CalcCorners(const double* center, float angle, float halfWidth, float halfHeight,
                            double* corners) {
  double west[3], north[3];
  FindWest(center, west);
  Vprod(west, center, north);
  const double s = std::sin(static_cast<double>(angle));
  const double c = CosineOf(static_cast<double>(angle), s);
  const double w = static_cast<double>(halfWidth), h = static_cast<double>(halfHeight);
  double offsets[12];
  for (int i = 0; i < 3; ++i) {
    const double u = s * west[i] + c * north[i];
    const double v = -c * west[i] + s * north[i];
    offsets[i] = -w * u - h * v;
    offsets[3 + i] = -w * u + h * v;
    offsets[6 + i] = w * u + h * v;
    offsets[9 + i] = w * u - h * v;
  }
  CalcCornersFromOffsets(center, offsets, corners);
}

void DSOImages::CalcCornersFromOffsets(const double* center, const double* offsets, double* corners) {
  for (int k = 0; k < 4; ++k) {
    double corner[3];
    for (int i = 0; i < 3; ++i) corner[i] = center[i] + offsets[3 * k + i];
    Normalise(corner);
    for (int i = 0; i < 3; ++i) corners[3 * k + i] = corner[i];
  }
}

}  // namespace CommonInterfaces
