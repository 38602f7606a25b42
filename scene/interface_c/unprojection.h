// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/vectors.h"
#include "common_interfaces/camera.h"
#include "scene/view/directions.h"
#include "scene/view/observer_frame.h"

namespace scene {

// The projection the other way. Directions are unit vectors: as the picture stands (left, up, ahead), along
// the plane of the view (over the horizon: longitudes grow over west), on J2000 axes.
class Unprojection {
 public:
  explicit Unprojection(CommonInterfaces::Camera& camera) : m_Reduction(PrepareObserver(camera)) {
    const tPoint<int> window = camera.GetWinSize();
    m_MiddleX = 0.5 * window.x;
    m_MiddleY = 0.5 * window.y;
    m_Scale = camera.VisRad2PixD(0.5 * kPi);
    const SphViewCoor& angles = camera.GetViewAngles();
    const double turned[3] = {angles.lon, angles.lat, angles.slope};
    CommonInterfaces::Camera::InitCameraMatrix(turned, m_View);
  }

  void FindSeen(double x, double y, double seen[3]) const {
    const double left = (m_MiddleX - x) / m_Scale, up = (m_MiddleY - y) / m_Scale;
    const double norm = 1.0 / (1.0 + left * left + up * up);
    seen[0] = 2.0 * left * norm;
    seen[1] = 2.0 * up * norm;
    seen[2] = 2.0 * norm - 1.0;
  }
  void FindStanding(double x, double y, double standing[3]) const {
    double seen[3];
    FindSeen(x, y, seen);
    V3Mprod(seen, m_View, standing);
  }
  void ToJ2000(const double standing[3], double vector[3]) const {
    V3Mprod(standing, m_Reduction.reduction, vector);
  }
  void FromJ2000(const double vector[3], double standing[3]) const {
    MV3prod(m_Reduction.reduction, vector, standing);
  }
  void Find(const double* pixel, double* vector) const {
    double standing[3];
    FindStanding(pixel[0], pixel[1], standing);
    ToJ2000(standing, vector);
  }
  const ObserverFrame& GetObserver() const { return m_Reduction; }

 private:
  ObserverFrame m_Reduction;
  double m_MiddleX, m_MiddleY, m_Scale;
  double m_View[9];
};

}  // namespace scene
