// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <limits>

#include "astro/coordinates.h"
#include "astro/vectors.h"
#include "camera/projection_batch.h"
#include "camera/saturate.h"
#include "common_interfaces/camera.h"
#include "utils/one_thread.h"

namespace CommonInterfaces {
namespace {

// From this size on the tangent of half an angle is told apart from half the angle.
constexpr double kTangentFrom = 0.35;

void RunBatch(const BatchProjection& projection, const double* v, tPoint<double>* p, int count) {
  static const BatchRun s_Run = FindBatchRuns().front();
  s_Run(projection, v, p, count);
}

}  // namespace

int Camera::FarPixel(int centre, double offset) {
  return SaturatingTruncate(centre + std::trunc(offset), std::numeric_limits<int>::min());
}

void Camera::BatchRA_Dec2PixD(const double* v, tPoint<double>* p, int count) const {
  const ReadsObject use(this, "Camera");
  RunBatch({m_ViewPicture, m_Scale, m_WinCentre}, v, p, count);
}

void Camera::BatchRA_Dec2K2PixD(const double* v, tPoint<double>* p, int count) const {
  const ReadsObject use(this, "Camera");
  RunBatch({m_ComboPicture, m_Scale, m_WinCentre}, v, p, count);
}

// dy is counted down from the centre where the forward projection counts up: the two are mirrored on purpose,
// since pixels come from pointing devices that count from the top.
void Camera::Pix2Vec(const tPoint<int>& p, double* v) const {
  const ReadsObject use(this, "Camera");
  const double dx = static_cast<double>(m_WinRect.left >> 1) - p.x;
  const double dy = static_cast<double>(m_WinRect.top >> 1) - p.y;
  const double rho = std::sqrt(dx * dx + dy * dy);
  const double z = std::cos(2.0 * std::atan2(rho, m_Scale));
  const double s = (z + 1.0) / m_Scale;
  const double u[3] = {s * dx, s * dy, z};
  V3Mprod(u, m_ViewMatrix, v);
}

void Camera::Pix2RA_Dec(const tPoint<int>& p, double& ra, double& dec) const {
  double v[3];
  Pix2Vec(p, v);
  psf(v, Vmod(v, 3), ra, dec);
}

double Camera::VisRad2PixD(double angle) const {
  const double half = angle * 0.5;
  return m_Scale * (angle >= kTangentFrom ? std::tan(half) : half);
}

double Camera::VisRad2Pix(double angle) const {
  const double pixels = VisRad2PixD(angle);
  return pixels > 1.0 ? pixels : 1.0;
}

}  // namespace CommonInterfaces
