// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>

#include "astro/constants.h"
#include "astro/vectors.h"
#include "common_interfaces/camera.h"
#include "utils/one_thread.h"

namespace CommonInterfaces {
namespace {

using astro::kPi;

// Rounding may carry a sine past 1.
double ClampedAsin(double x) {
  if (x >= 1.0) return kPi / 2;
  if (x <= -1.0) return -kPi / 2;
  return std::asin(x);
}

// The angle in [0, 2 pi) from its sine and the sign of its cosine.
double AngleFromSine(double sine, double cosine) {
  const double angle = cosine < 0.0 ? kPi - ClampedAsin(sine) : ClampedAsin(sine);
  if (angle >= 0.0) return angle;
  const double turned = angle + 2 * kPi;
  return turned < 2 * kPi ? turned : 0.0;  // the smallest negative angles round up to the full turn
}

}  // namespace

void Camera::InitCameraMatrix(const double* angles, double* matrix) {
  const double sa = std::sin(angles[0]), ca = std::cos(angles[0]);
  const double sb = std::sin(angles[1]), cb = std::cos(angles[1]);
  const double sc = std::sin(angles[2]), cc = std::cos(angles[2]);
  matrix[0] = -sc * sb * ca - cc * sa;
  matrix[1] = cc * ca - sc * sb * sa;
  matrix[2] = sc * cb;
  matrix[3] = sc * sa - cc * sb * ca;
  matrix[4] = -cc * sb * sa - ca * sc;
  matrix[5] = cc * cb;
  matrix[6] = cb * ca;
  matrix[7] = cb * sa;
  matrix[8] = sb;
}

void Camera::CalcAnglesFromCameraMatrix(const double* matrix, double* angles) {
  // At the poles the view turns about the axis that the longitude counts about: row 0 holds both together.
  const double latitude = ClampedAsin(matrix[8]);
  double slope = 0.0;
  double sine = -matrix[0], cosine = matrix[1];
  const double cosLatitude = std::fabs(matrix[8]) < 1.0 ? std::sqrt(1.0 - matrix[8] * matrix[8]) : 0.0;
  if (cosLatitude != 0.0) {
    const double q = 1.0 / cosLatitude;
    sine = q * matrix[7];
    cosine = q * matrix[6];
    slope = AngleFromSine(q * matrix[2], matrix[5]);
  }
  angles[0] = AngleFromSine(sine, cosine);
  angles[1] = latitude;
  angles[2] = slope;
}

void Camera::UpdateComboMatrix() {
  double combo[9];
  M3prod(m_ViewMatrix, m_ReductionMatrix, combo);
  m_ViewPicture = PictureMatrix(m_ViewMatrix);
  m_ComboPicture = PictureMatrix(combo);
}

void Camera::SetReductionMatrix(const double matrix[9]) {
  const ChangesObject use(this, "Camera");
  std::copy_n(matrix, 9, m_ReductionMatrix);
  UpdateComboMatrix();
}

void Camera::RebuildViewMatrix() {
  const double angles[3] = {m_ViewAngles.lon, m_ViewAngles.lat, m_ViewAngles.slope};
  InitCameraMatrix(angles, m_ViewMatrix);
  UpdateComboMatrix();
}

void Camera::SetRA_Dec(SphViewCoor angles) {
  const ChangesObject use(this, "Camera");
  m_ViewAngles = angles;
  m_ViewAngles.flag = 0;
  RebuildViewMatrix();
  m_FirstLook = 0;
}

void Camera::SetRA_Dec2K(double ra, double dec) {
  m_RA2K = ra;
  m_Dec2K = dec;
}

void Camera::GetRA_Dec2K(double& ra, double& dec) const {
  ra = m_RA2K;
  dec = m_Dec2K;
}

}  // namespace CommonInterfaces
