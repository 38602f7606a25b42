// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/daylight_savings.h"

#include "common_interfaces/camera.h"

namespace CommonInterfaces {

// The day number takes no part: callers bring day and fraction back into shape themselves, with Adjust_JD.
void DaylightSavingsData::UTC2LocalTime(int&, double& fraction, const Camera* camera) {
  if (camera != nullptr) fraction += camera->GetLocUTCdelta();
}

void DaylightSavingsData::LocalTime2UTC(int&, double& fraction, const Camera* camera) {
  if (camera != nullptr) fraction -= camera->GetLocUTCdelta();
}

void DaylightSavingsData::UTC2LocalTime(double& fraction, const Camera* camera) {
  int day = 0;
  UTC2LocalTime(day, fraction, camera);
}

void DaylightSavingsData::LocalTime2UTC(double& fraction, const Camera* camera) {
  int day = 0;
  LocalTime2UTC(day, fraction, camera);
}

}  // namespace CommonInterfaces
