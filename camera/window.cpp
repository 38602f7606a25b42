// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>

#include "common_interfaces/camera.h"
#include "utils/one_thread.h"

namespace CommonInterfaces {
namespace {

constexpr double kSameZoom = 1e-10;

// Both sides are halved as integers first, so an odd pixel is lost.
double HalfDiagonal(int width, int height) {
  const double halfWidth = width >> 1, halfHeight = height >> 1;
  return std::sqrt(halfWidth * halfWidth + halfHeight * halfHeight);
}

}  // namespace

void Camera::UpdateScale() {
  m_ScaleTangent = std::tan(s_ZoomOneAngle / (2.0 * m_Zoom));
  m_Scale = m_RefHalfDiagonal / m_ScaleTangent;
}

void Camera::SetZoom(double zoom) {
  const ChangesObject use(this, "Camera");
  if (!(std::fabs(m_Zoom - zoom) > kSameZoom)) return;
  m_Zoom = zoom;
  m_ZoomChanged = true;
  UpdateScale();
  RefreshLimitingMagnitudes();
}

double Camera::GetFieldOfView() const {
  return 2.0 * std::atan(m_WinDiagonal / m_RefHalfDiagonal * m_ScaleTangent);
}

double Camera::GetFinderSizeAngle() const {
  return 2.0 * std::atan(m_FinderSize / m_RefHalfDiagonal * m_ScaleTangent);
}

void Camera::SetWinRect(tRect<int> r) {
  const ChangesObject use(this, "Camera");
  m_WinRect = r;
  m_WinCentre = {r.left * 0.5, r.top * 0.5};
  m_RefHalfDiagonal = HalfDiagonal(r.right, r.bottom);
  m_WinDiagonal = HalfDiagonal(r.left, r.top);
  UpdateScale();
}

void Camera::GetWinRect(tRect<int>* r) const { *r = m_WinRect; }

tPoint<int> Camera::GetWinSize() const { return {m_WinRect.left, m_WinRect.top}; }

tPoint<int> Camera::GetWinCentre() const { return {m_WinRect.left >> 1, m_WinRect.top >> 1}; }

void Camera::UpdateDiagonalsOfDefaults() {
  const double width = m_WinRect.left, height = m_WinRect.top;
  m_RefHalfDiagonal = HalfDiagonal(m_WinRect.right, m_WinRect.bottom);
  // The whole diagonal, where SetWinRect takes half of it: deliberate, see GetWinDiag.
  m_WinDiagonal = std::sqrt(width * width + height * height);
}

}  // namespace CommonInterfaces
