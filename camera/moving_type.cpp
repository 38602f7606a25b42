// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The change of moving type: a camera record takes the place of the state, and what is to be kept is put back.
#include "camera/camera_codes.h"
#include "common_interfaces/camera.h"
#include "utils/debug.h"
#include "utils/text.h"

namespace CommonInterfaces {
namespace {

constexpr unsigned kNoRecord = 0xFFFFFFFFu;
constexpr unsigned Bytes(const char (&bytes)[5]) {  // the word that has these bytes in a file
  return static_cast<unsigned>(bytes[3]) << 24 | static_cast<unsigned>(bytes[2]) << 16 |
         static_cast<unsigned>(bytes[1]) << 8 | static_cast<unsigned>(bytes[0]);
}
// Files keep these words: never change them. Type 11 flies freely through what type 10 has reached: with no
// record of its own it goes on from there.
constexpr unsigned kRecords[kMovingTypes] = {Bytes("QXSC"), Bytes("QXMC"), Bytes("VOHC"), Bytes("NCFC"),
                                             Bytes("LOSC"), Bytes("STSC"), kNoRecord,     kNoRecord,
                                             kNoRecord,     Bytes("LAGC"), Bytes("TLFC"), kNoRecord};

bool IsOnBody(int type) { return type == 0 || type == 1; }

}  // namespace

// On anything but a planet, standing and hovering have no record of their own.
unsigned Camera::GetMovingTypeRecord(int type) const {
  return IsOnBody(type) && m_Observer.kind != FourCC("plnt") ? kCameraSettingsId : kRecords[type];
}

void Camera::LeaveBehind(bool keep) {
  const bool onPlanet = m_Observer.kind == FourCC("plnt") || m_Observer.kind == FourCC("moon");
  // The Sun is where one travels in space; there it must not stand for the planet that one set out from.
  const bool aroundSun = m_Observer == SSO_ID(FourCC("plnt"), kSun) && !IsOnBody(m_ObsMovingType);
  if (onPlanet && (!aroundSun || m_LeftBehind.observer.IsEmpty())) m_LeftBehind.observer = m_Observer;
  if (IsOnSurface()) {
    m_LeftBehind.places[m_ObsMovingType] = {m_Observer, m_Location};
    m_LeftBehind.lastPlace = m_ObsMovingType;
  }
  if (keep) m_LeftBehind.directions[m_ObsMovingType] = {m_BasePlane, m_ViewAngles};
}

bool Camera::IsOnSurface() const {
  return IsOnBody(m_ObsMovingType) && m_Location.coorSys == kSurfaceCoordinates;
}

void Camera::PutBackObserverAndPlace(int type) {
  if (m_Observer.kind == FourCC("plnt") && !m_LeftBehind.observer.IsEmpty()) {
    if (m_Observer.number == kEarth) m_Observer = m_LeftBehind.observer;
    m_ObserverChanged = true;
  }
  const auto last = m_LeftBehind.places.find(m_LeftBehind.lastPlace);
  if (!IsOnBody(type) || last == m_LeftBehind.places.end() || !(last->second.observer == m_Observer)) return;
  m_Location.lon = last->second.location.lon;
  m_Location.lat = last->second.location.lat;
  m_Location.coorSys = kSurfaceCoordinates;
  const auto own = m_LeftBehind.places.find(static_cast<signed char>(type));
  if (own == m_LeftBehind.places.end() || !(own->second.observer == m_Observer)) return;
  m_Location.dist = own->second.location.dist;
  m_Location.distUnits = own->second.location.distUnits;
}

void Camera::PutBackDirection(int type, const CameraState& before) {
  const auto left = m_LeftBehind.directions.find(static_cast<signed char>(type));
  const bool wasThere = left != m_LeftBehind.directions.end();
  if (wasThere && left->second.plane != before.m_BasePlane) {
    m_BasePlane = left->second.plane;
    m_ViewAngles = left->second.angles;
  } else if (wasThere || m_BasePlane == before.m_BasePlane) {
    m_BasePlane = before.m_BasePlane;
    m_ViewAngles = before.m_ViewAngles;
  }
}

void Camera::TurnAfterChange(int type, bool wasLocked, const SSO_ID& lockedOn) {
  if (wasLocked) {
    m_FirstLook = 1;
    m_DirLock = 1;
    m_CenterObject = lockedOn;
  } else if ((type == 1 || type == kMovingInSpace) && !m_LeftBehind.observer.IsEmpty()) {
    m_CenterObject = m_LeftBehind.observer;
    m_FirstLook = 1;
  } else if (type == kMovingInOrbit) {
    m_CenterObject = m_Observer;
    m_DirLock = 1;
  }
}

void Camera::SetMovingType(char type, bool keep) {
  const int next = static_cast<signed char>(type);
  if (next < 0 || next >= kMovingTypes) {
    PrintDebugString("Bad moving type %d in Camera::SetMovingType\n", next);
    return;
  }
  const CameraState before = *this;
  const bool wasOnSurface = IsOnSurface();
  LeaveBehind(keep);
  const unsigned record = GetMovingTypeRecord(next);
  if (record != kNoRecord) ReadSelf(nullptr, record);
  if (keep && wasOnSurface) {
    m_Location.lat = before.m_Location.lat;
    m_Location.lon = before.m_Location.lon;
    m_Location.distUnits = before.m_Location.distUnits;
  }
  if (keep) m_ObserverChanged = true;
  m_JT = before.m_JT;
  m_TJ = before.m_TJ;
  m_TimeType = before.m_TimeType;
  m_FST = before.m_FST;
  m_ObsMovingType = static_cast<signed char>(next);
  PutBackObserverAndPlace(next);
  TurnAfterChange(next, before.m_DirLock != 0, before.m_CenterObject);
  if (keep || before.m_DirLock != 0) m_Zoom = before.m_Zoom;
  if (m_Zoom != before.m_Zoom) m_ZoomChanged = true;
  if (keep) PutBackDirection(next, before);
  RebuildViewMatrix();
  UpdateDeltaT();
  UpdateScale();
  RefreshLimitingMagnitudes();
}

// The change itself needs the observer that is left, to remember it. But which record the types on a body have
// depends on the observer: where it was no planet, the record that was read first is the wrong one.
void Camera::ChangeTypeAndObserver(int type, const SSO_ID& observer) {
  const bool wasOnPlanet = m_Observer.kind == FourCC("plnt");
  SetMovingType(static_cast<char>(type), false);
  SetObserver(observer);
  if (!wasOnPlanet && IsOnBody(type)) SetMovingType(static_cast<char>(type), false);
}

}  // namespace CommonInterfaces
