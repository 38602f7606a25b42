// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>

#include "astro/coordinates.h"
#include "common_interfaces/camera.h"
#include "utils/one_thread.h"

namespace CommonInterfaces {
namespace {

void RemoveFirst(std::vector<MARKER_INFO>& markers, int id) {
  const auto found =
      std::find_if(markers.begin(), markers.end(), [id](const MARKER_INFO& m) { return m.id == id; });
  if (found != markers.end()) markers.erase(found);
}

}  // namespace

void Camera::AddOIMarker(const MARKER_INFO& marker) {
  const ChangesObject use(this, "Camera");
  const MARKER_INFO added = marker;  // it may be one of the list
  // Room first: with another marker gone nothing may fail any more.
  if (m_OIMarkers.size() == m_OIMarkers.capacity()) m_OIMarkers.reserve(2 * m_OIMarkers.size() + 1);
  if (added.id == kOnScreenFinderMarker) {
    m_OnScreenFinder = true;
  } else {
    RemoveFirst(m_OIMarkers, added.id);
  }
  m_OIMarkers.push_back(added);
}

void Camera::DeleteOIMarker(const MARKER_INFO& marker) {
  const ChangesObject use(this, "Camera");
  const int id = marker.id;
  RemoveFirst(m_OIMarkers, id);
  if (id == kOnScreenFinderMarker) m_OnScreenFinder = false;
}

void Camera::UpdateOIMarkers() {
  const ChangesObject use(this, "Camera");
  const double width = m_WinRect.left, height = m_WinRect.top;
  for (MARKER_INFO& marker : m_OIMarkers) {
    if (marker.id == kOnScreenFinderMarker) continue;
    double v[3];
    sfp(1.0, marker.lon, marker.lat, v);
    tPoint<double> p;
    RA_Dec2PixD(v, &p);
    // Written so that coordinates that are not numbers count as off screen.
    const bool onScreen = p.x >= 0.0 && p.x <= width && p.y >= 0.0 && p.y <= height;
    marker.x = onScreen ? static_cast<int>(p.x) : -1;
    marker.y = onScreen ? static_cast<int>(height - p.y) : -1;
  }
}

}  // namespace CommonInterfaces
