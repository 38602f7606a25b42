// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/camera.h"

#include <utility>

#include "astro/constants.h"
#include "astro/delta_t.h"
#include "camera/camera_codes.h"
#include "common_interfaces/settings_data.h"
#include "utils/one_thread.h"
#include "utils/text.h"

namespace CommonInterfaces {
namespace {

using astro::kRadiansPerDegree;

constexpr int kDayOfJ2000 = static_cast<int>(astro::kJ2000);

}  // namespace

Camera::Camera(unsigned owner)
    : m_Owner(owner), m_Settings(std::make_unique<SettingsData>(owner, kCameraSettingsId, kSettingsFile)) {
  m_Location.coorSys = kSurfaceCoordinates;
  m_DispCoorSysObserver = kSurfaceCoordinates;
  SetJ2000();
  LoadHomes();
}

Camera::Camera(const Camera&) : CameraState() {}

Camera& Camera::operator=(const Camera& other) {
  const ChangesObject use(this, "Camera");
  const ReadsObject otherUse(&other, "Camera");
  if (this == &other) return *this;
  CameraState copy(other);
  State() = std::move(copy);
  UpdateComboMatrix();
  m_Owner = other.m_Owner;
  return *this;
}

Camera::~Camera() = default;

void Camera::CreateDefault() {
  const ChangesObject use(this, "Camera");
  if (!ReadSelf(nullptr, kCameraSettingsId)) SetBuiltInDefaults();
}

void Camera::SetBuiltInDefaults() {
  m_FinderSize = 20;
  m_Zoom = 1.0;
  m_SecondZoom = 10.0;
  m_Location.lon = 37.0 * kRadiansPerDegree;
  m_Location.lat = 57.0 * kRadiansPerDegree;
  m_Location.dist = 0.0;
  m_FST_Offered = 1;
  SetJ2000();
  m_Observer.kind = astro::kPlanetKind;
  m_Observer.number = astro::kEarthNumber;
  m_ObserverChanged = true;
  m_ObsLocatType = kSurfaceLocation;
  m_DirLock = 0;
  m_CenterObject.kind = -1;
  m_CenterObject.number = -1;
  m_AimingDispType = 0;
  SetDefaultDirection();
  SetDefaultSteps();
  UpdateDiagonalsOfDefaults();
  UpdateScale();
  RefreshLimitingMagnitudes();
}

// Towards the centre of the Galaxy.
void Camera::SetDefaultDirection() {
  m_ViewAngles.lon = 265.6 * kRadiansPerDegree;
  m_ViewAngles.lat = -28.92 * kRadiansPerDegree;
  m_ViewAngles.slope = 0.0;
  RebuildViewMatrix();
}

// The height step has no default: it stays.
void Camera::SetDefaultSteps() {
  SetStep(CameraStep::kTime, {0.1, 0});
  for (CameraStep angular : {CameraStep::kRotate, CameraStep::kAimAlp, CameraStep::kAimBet,
                             CameraStep::kPosLon, CameraStep::kPosLat})
    SetStep(angular, {kRadiansPerDegree, 0});
  SetStep(CameraStep::kZoom, {1.2, 0});
  SetStep(CameraStep::k3DFlight, {100000.0, 4});
}

void Camera::SetJ2000() {
  m_JT = kDayOfJ2000;
  m_TJ = 0.0;
  m_TimeType = kUniversalTime;
  UpdateDeltaT();
}

void Camera::UpdateDeltaT() { m_DeltaT = ET_UT::Get(m_JT, m_TJ) / astro::kSecondsPerDay; }

}  // namespace CommonInterfaces
