// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/frame_maker.h"

#include "utils/one_thread.h"

namespace scene {

void FrameMaker::Prepare() {
  const ChangesObject use(this, "FrameMaker");
  m_Observer = PrepareObserver(m_Camera, m_Shown.refraction);
  m_Markers.Update(m_Observer, m_Camera);
  m_Frame.SetMarkers(*m_Camera.GetOIMarkerList());
}

}  // namespace scene
