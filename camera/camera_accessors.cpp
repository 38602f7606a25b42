// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cstdio>
#include <string>

#include "common_interfaces/camera.h"
#include "utils/one_thread.h"

namespace CommonInterfaces {

void Camera::GetTime(_Date& t) const {
  const ReadsObject use(this, "Camera");
  t.day = m_JT;
  t.fraction = m_TJ + m_DeltaT;
}

void Camera::GetUniversalTime(_Date& t) const {
  const ReadsObject use(this, "Camera");
  t.day = m_JT;
  t.fraction = m_TJ;
  t.type = m_TimeType;
}

void Camera::SetTime(_Date t) { SetUniversalTime(t); }

void Camera::SetUniversalTime(_Date t) {
  const ChangesObject use(this, "Camera");
  m_JT = t.day;
  m_TJ = t.fraction;
  m_TimeType = t.type;
  UpdateDeltaT();
  m_TimeChanged = true;
}

void Camera::SetDST(const DaylightSavingsData* dst) {
  if (dst != nullptr) m_DST = *dst;
}

void Camera::SetObserver(SSO_ID observer) {
  const ChangesObject use(this, "Camera");
  if (observer == m_Observer) return;
  m_Observer = observer;
  m_ObserverChanged = true;
}

void Camera::SetObserverName(const char* name) {
  const ChangesObject use(this, "Camera");
  // The name may be the one in the identifier itself.
  const std::string copy = name != nullptr ? name : "";
  std::snprintf(m_Observer.name, sizeof m_Observer.name, "%s", copy.c_str());
  m_ObserverChanged = false;
}

bool Camera::SetCenterView(SSO_ID object) {
  const ChangesObject use(this, "Camera");
  if (m_CenterViewLock) return false;
  m_CenterObject = object;
  m_CenterObjectSet = true;
  m_FirstLook = 0;
  return true;
}

CameraStepSize Camera::GetStep(CameraStep step) const { return m_Steps[static_cast<int>(step)]; }

void Camera::SetStep(CameraStep step, CameraStepSize size) {
  if (step == CameraStep::kZoom) size.unit = 0;
  m_Steps[static_cast<int>(step)] = size;
}

}  // namespace CommonInterfaces
