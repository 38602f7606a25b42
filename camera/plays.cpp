// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <iterator>

#include "common_interfaces/camera.h"
#include "utils/one_thread.h"

namespace CommonInterfaces {
namespace {

constexpr PlayTypes kViewPlays[] = {kPlayView1, kPlayView2, kPlayView3, kPlayView4};
constexpr PlayTypes kLocationPlays[] = {kPlayLocation1, kPlayLocation2, kPlayLocation3, kPlayLocation4,
                                        kPlayLocation5, kPlayLocation6, kPlayLocation7};

}  // namespace

void Camera::SetPlay(PlayTypes type, PlayAction action, double first) {
  const ChangesObject use(this, "Camera");
  PlayDesc play;
  play.type = type;
  play.action = action;
  play.first = first;
  m_Plays[type] = play;
}

void Camera::SetPlay(PlayTypes type, PlayAction action, double first, double second) {
  SetPlay(type, action, first, second, PlayDesc().third);
}

void Camera::SetPlay(PlayTypes type, PlayAction action, double first, double second, double third) {
  SetPlay(type, action, first, second, third, SSO_ID());
}

void Camera::SetPlay(PlayTypes type, PlayAction action, double first, double second, double third,
                     const SSO_ID& object) {
  const ChangesObject use(this, "Camera");
  m_Plays[type] = {type, action, first, second, third, 1, object, 0};
}

PlayDesc Camera::GetPlay(PlayTypes type) const {
  const ReadsObject use(this, "Camera");
  const auto found = m_Plays.find(type);
  return found == m_Plays.end() ? PlayDesc() : found->second;
}

bool Camera::IsPlay(PlayTypes type) const { return GetPlay(type).action == kPlayRunning; }

bool Camera::IsViewPlay() const {
  return std::any_of(std::begin(kViewPlays), std::end(kViewPlays), [this](PlayTypes t) { return IsPlay(t); });
}

bool Camera::IsLocationPlay() const {
  return std::any_of(std::begin(kLocationPlays), std::end(kLocationPlays),
                     [this](PlayTypes t) { return IsPlay(t); });
}

bool Camera::IsAnyPlay() const {
  return (IsPlay(kPlayTime) && m_FST == 0) || IsLocationPlay() || IsViewPlay();
}

bool Camera::Is3DFlightPlay() const { return IsDeepSpace() && IsLocationPlay(); }

void Camera::StopAnyPlay() {
  const ChangesObject use(this, "Camera");
  for (auto& [type, play] : m_Plays)
    if (play.action != kPlayHeld) play.action = kPlayStopped;
}

bool Camera::Get3DFlightObject(SSO_ID* out) const {
  if (m_FlightObject.kind == -1) return false;
  *out = m_FlightObject;
  return true;
}

}  // namespace CommonInterfaces
