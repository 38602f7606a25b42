// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/timezone.h"

#include <cstring>

#include "common_interfaces/camera.h"
#include "utils/one_thread.h"

namespace CommonInterfaces {
namespace {

void ReplaceZoneName(char (&target)[kTimeZoneNameSize], const char* name) {
  if (name == nullptr) {
    target[0] = '\0';
    return;
  }
  const auto length = std::strlen(name);
  if (length >= kTimeZoneNameSize) return;
  std::memmove(target, name, length + 1);
}

}  // namespace

void Camera::SetTimeZoneName(const char* name, bool clearDisplay) {
  const ChangesObject use(this, "Camera");
  ReplaceZoneName(m_TimeZoneName, name);
  if (clearDisplay) m_DisplayTimeZoneName[0] = '\0';
}

void Camera::SetDisplayTimeZoneName(const char* name) {
  const ChangesObject use(this, "Camera");
  ReplaceZoneName(m_DisplayTimeZoneName, name);
}

const char* Camera::GetDisplayTimeZoneName(bool fallback) const {
  if (m_DisplayTimeZoneName[0] != '\0') return m_DisplayTimeZoneName;
  return fallback ? m_TimeZoneName : nullptr;
}

void Camera::UpdateLocUTCDeltaFromTimeZone() {
  const ChangesObject use(this, "Camera");
  const char* name = GetDisplayTimeZoneName(true);
  m_LocUTCDelta = name[0] != '\0' ? getLocalUTCDeltaForTimezone(name, m_JT + m_TJ) : 0.0;
}

}  // namespace CommonInterfaces
