// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The change of moving type: a camera record takes the place of the state, and what is to be kept is put
// back.
#include "astro/constants.h"
#include "camera/camera_codes.h"
#include "camera/state_guard.h"
#include "common_interfaces/camera.h"
#include "utils/debug.h"
#include "utils/one_thread.h"
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

// On anything but a planet, standing and hovering have no record of their own.
unsigned RecordOf(int type, const SSO_ID& observer) {
  return IsOnBody(type) && observer.kind != FourCC("plnt") ? kCameraSettingsId : kRecords[type];
}

}  // namespace

void Camera::LeaveBehind(bool keep) {
  const bool onPlanet = m_Observer.kind == FourCC("plnt") || m_Observer.kind == FourCC("moon");
  // The Sun is where one travels in space; there it must not stand for the planet that one set out from.
  const bool aroundSun = m_Observer == astro::kSun && !IsOnBody(m_ObsMovingType);
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

void Camera::PutBackObserver() {
  if (m_Observer.kind != FourCC("plnt") || m_LeftBehind.observer.IsEmpty()) return;
  if (m_Observer.number == astro::kEarthNumber) m_Observer = m_LeftBehind.observer;
  m_ObserverChanged = true;
}

// Whoever changes from one way of being on a body to the other stays where they are, whatever body the record
// names; a place of long ago is one on its own body alone.
void Camera::PutBackPlace(int type, bool leftNow) {
  if (!IsOnBody(type)) return;
  const auto last = m_LeftBehind.places.find(m_LeftBehind.lastPlace);
  if (last == m_LeftBehind.places.end() || !(leftNow || last->second.observer == m_Observer)) return;
  m_Location.lon = last->second.location.lon;
  m_Location.lat = last->second.location.lat;
  m_Location.coorSys = kSurfaceCoordinates;
  const bool isOwn = last->first == type;
  const auto own = m_LeftBehind.places.find(static_cast<signed char>(type));
  if (own == m_LeftBehind.places.end() || (leftNow && isOwn) || !(own->second.observer == m_Observer)) return;
  m_Location.dist = own->second.location.dist;
  m_Location.distUnits = own->second.location.distUnits;
}

void Camera::PutBackDirection(int type, const LeftBehind::Direction& before) {
  const auto left = m_LeftBehind.directions.find(static_cast<signed char>(type));
  const bool wasThere = left != m_LeftBehind.directions.end();
  if (wasThere && left->second.plane != before.plane) {
    m_BasePlane = left->second.plane;
    m_ViewAngles = left->second.angles;
  } else if (wasThere || m_BasePlane == before.plane) {
    m_BasePlane = before.plane;
    m_ViewAngles = before.angles;
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
  const ChangesObject use(this, "Camera");
  ChangeMovingType(static_cast<signed char>(type), keep, m_Observer);
}

void Camera::ChangeMovingType(int type, bool keep, const SSO_ID& goal) {
  if (type < 0 || type >= kMovingTypes) {
    PrintDebugString("Bad moving type %d in Camera::SetMovingType\n", type);
    return;
  }
  const bool wasOnSurface = IsOnSurface(), wasLocked = m_DirLock != 0;
  const double zoom = m_Zoom;
  const _Date time = {m_JT, m_TJ, m_TimeType};
  const signed char fst = m_FST;
  const SphCoor place = m_Location;
  const SSO_ID lockedOn = m_CenterObject;
  const LeftBehind::Direction direction = {m_BasePlane, m_ViewAngles};
  StateGuard guard(State());
  LeaveBehind(keep);
  const unsigned record = RecordOf(type, goal);
  if (record != kNoRecord) ReadSelf(nullptr, record);
  if (keep && wasOnSurface) {
    m_Location.lat = place.lat;
    m_Location.lon = place.lon;
    m_Location.distUnits = place.distUnits;
  }
  if (keep) m_ObserverChanged = true;
  m_JT = time.day;
  m_TJ = time.fraction;
  m_TimeType = time.type;
  m_FST = fst;
  m_ObsMovingType = static_cast<signed char>(type);
  PutBackObserver();
  PutBackPlace(type, wasOnSurface);
  TurnAfterChange(type, wasLocked, lockedOn);
  if (keep || wasLocked) m_Zoom = zoom;
  if (m_Zoom != zoom) m_ZoomChanged = true;
  if (keep) PutBackDirection(type, direction);
  RebuildViewMatrix();
  UpdateDeltaT();
  UpdateScale();
  RefreshLimitingMagnitudes();
  guard.SetThrough();
}

}  // namespace CommonInterfaces
