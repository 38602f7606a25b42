// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/session/playback.h"

#include <algorithm>
#include <cmath>

#include "astro/julian_date.h"
#include "scene/view/base_plane.h"
#include "scene/view/directions.h"

namespace skyview {
namespace {

using CommonInterfaces::Camera;
using CommonInterfaces::PlayTypes;

// Azimuth or longitude, altitude or latitude, slope.
constexpr PlayTypes kViewPlays[] = {CommonInterfaces::kPlayView1, CommonInterfaces::kPlayView2,
                                    CommonInterfaces::kPlayView3};

double GetStep(const Camera& camera, PlayTypes play) {
  return camera.IsPlay(play) ? camera.GetPlay(play).first : 0.0;
}

void AdvanceTime(Camera& camera) {
  CommonInterfaces::_Date time;
  camera.GetUniversalTime(time);
  time.fraction += camera.GetPlay(CommonInterfaces::kPlayTime).first;
  Adjust_JD(time.day, time.fraction);
  camera.SetUniversalTime(time);
}

void AdvanceView(Camera& camera) {
  SphViewCoor angles = camera.GetViewAngles();
  // Longitudes of the horizon's frame grow over west.
  const double east = camera.GetBasePlane() == scene::kHorizonPlane ? -1.0 : 1.0;
  angles.lon = std::fmod(angles.lon + east * GetStep(camera, kViewPlays[0]), 2.0 * scene::kPi);
  angles.lat = std::clamp(angles.lat + GetStep(camera, kViewPlays[1]), -0.5 * scene::kPi, 0.5 * scene::kPi);
  angles.slope = std::fmod(angles.slope + GetStep(camera, kViewPlays[2]), 2.0 * scene::kPi);
  camera.SetRA_Dec(angles);
}

}  // namespace

void StartPlays(const PlayRequest& request, Camera& camera) {
  if (request.time) {
    camera.SetFST_Mode(0);
    camera.SetPlay(CommonInterfaces::kPlayTime, CommonInterfaces::kPlayRunning, *request.time);
  }
  for (std::size_t i = 0; i < request.view.size(); ++i) {
    camera.SetPlay(kViewPlays[i], CommonInterfaces::kPlayRunning, request.view[i] * scene::kRadiansPerDegree);
  }
}

void AdvancePlays(Camera& camera) {
  if (!camera.IsAnyPlay()) return;
  if (camera.IsPlay(CommonInterfaces::kPlayTime) && camera.GetFST_Mode() == 0) AdvanceTime(camera);
  if (camera.IsViewPlay()) AdvanceView(camera);
}

}  // namespace skyview
