// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "common_interfaces/camera.h"
#include "scene/api.h"
#include "scene/frame/sky_frame.h"
#include "scene/frame/sky_markers.h"
#include "scene/view/observer_frame.h"
#include "scene/visibility/object_filter.h"
#include "scene/visibility/shown_kinds.h"

namespace scene {

// What a frame is computed from, and the frame: the shortest road from a camera to a display list. Camera,
// catalogs, switches, filters and markers are the caller's, kept by reference and read anew at each call; the
// frame and what it hands out are this object's. Cannot fail for a camera that can be drawn
// (FindObserverFault in base_plane.h). One thread.
class SCENE_API FrameMaker {
 public:
  FrameMaker(CommonInterfaces::Camera& camera, const SkyCatalogs& catalogs, const ShownKinds& shown,
             const ObjectFilters& filters, const SkyMarkers& markers)
      : m_Camera(camera), m_Shown(shown), m_Filters(filters), m_Markers(markers), m_Frame(catalogs) {}

  // The camera moved: its matrices, view centre and markers follow. The status can then be asked for.
  void Prepare();
  // Computes what Prepare has set up. Neither of them allocates after the first frame.
  void Compute() { m_Frame.Compute(m_Camera, m_Observer, m_Shown, m_Filters); }

  const ObserverFrame& GetObserver() const { return m_Observer; }
  SkyFrame& GetFrame() { return m_Frame; }

 private:
  CommonInterfaces::Camera& m_Camera;
  const ShownKinds& m_Shown;
  const ObjectFilters& m_Filters;
  const SkyMarkers& m_Markers;
  ObserverFrame m_Observer{};
  SkyFrame m_Frame;
};

}  // namespace scene
