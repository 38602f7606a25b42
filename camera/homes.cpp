// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The homes of a camera: loaded, stored, saved, gone to.
#include <algorithm>
#include <cstdio>
#include <string>

#include "astro/constants.h"
#include "astro/coordinates.h"
#include "astro/vectors.h"
#include "camera/camera_codes.h"
#include "camera/home_record.h"
#include "camera/state_guard.h"
#include "common_interfaces/camera.h"
#include "common_interfaces/units.h"
#include "utils/debug.h"
#include "utils/one_thread.h"
#include "utils/path.h"
#include "utils/text.h"

namespace CommonInterfaces {
namespace {

constexpr char kFileName[] = "home_params.ini";
constexpr unsigned kLineSize = 4096;
constexpr char kComment = '!', kEnd = '}';

bool IsStateOf(const HomeParameters& state, const SSO_ID& observer, int movingType) {
  return state.observer == observer && state.movingType == movingType;
}

void PlaceOnEarth(const SphCoor& place, double (&xyz)[3]) {
  const double height =
      ConvertUnitToAU(place.dist, static_cast<char>(place.distUnits)) * astro::kKilometresPerAu;
  Plg2Plc(height, place.lon, place.lat, astro::kEarthEquatorialRadius, astro::kEarthFlattening, xyz);
}

template <int size>
void CopyText(char (&out)[size], const char* text) {
  std::snprintf(out, size, "%s", text);
}

}  // namespace

void Camera::LoadHomes() {
  std::string path = ZentharPath::GetPath(kFileName);
  if (path.empty()) path = ZentharPath::GetPath("media:home_params.ini");
  MTextFile file(true, kComment, kEnd, kLineSize);
  if (path.empty()) return;
  if (!file.Open(path.c_str(), false)) {
    m_IncompleteHomes.Add(path);
    return;
  }
  HomeParameters home;
  int count = 0;
  HomeReading reading;
  while ((reading = ReadHome(file, home)) == HomeReading::kRead) {
    m_Homes.emplace(home.observer, home);  // of two for one observer the first counts
    ++count;
  }
  if (reading == HomeReading::kDamaged || file.HasReadFailed()) {
    m_IncompleteHomes.Add(path);
    PrintDebugString("File %s: home %d %s, it and what follows is left out\n", path.c_str(), count + 1,
                     file.HasReadFailed() ? "cannot be read" : "is damaged");
  }
  const HomeParameters* const earth = FindHome(astro::kEarth);
  if (!earth) return;
  m_EarthHome = *earth;
  SetTimeZoneName(earth->timeZoneName, false);
  if (earth->locationName[0] != '\0') m_LocationName = earth->locationName;
}

const HomeParameters* Camera::FindHome(const SSO_ID& observer) const {
  const ReadsObject use(this, "Camera");
  const auto found = m_Homes.find(observer);
  return found == m_Homes.end() ? nullptr : &found->second;
}

void Camera::SaveHomeParams() { StoreHomeParams(); }

bool Camera::StoreHomeParams() {
  const ChangesObject use(this, "Camera");
  const std::string path = ZentharPath::GetWorkPath(kFileName, false, true);
  if (!m_IncompleteHomes.MayReplace(path, "homes")) return false;
  MTextFile file(false, kComment, kEnd, kLineSize);
  if (path.empty() || !file.Open(path.c_str(), true)) {
    PrintDebugString("File %s: homes not saved\n", path.empty() ? kFileName : path.c_str());
    return false;
  }
  for (const auto& [observer, home] : m_Homes) {
    if (!WriteHome(file, home)) break;
  }
  return file.Close();  // says itself when the file could not be written or replaced
}

void Camera::SetLocationName(const char* name) {
  const ChangesObject use(this, "Camera");
  m_LocationName = std::string(name != nullptr ? name : "");
  const auto home = m_Homes.find(m_Observer);
  if (home != m_Homes.end()) CopyText(home->second.locationName, m_LocationName.c_str());
}

void Camera::StoreTime(HomeParameters& home) const {
  const bool holdsTime = m_FST == 0;
  const HomeParameters none;
  home.day = holdsTime ? m_JT : none.day;
  home.fraction = holdsTime ? m_TJ : none.fraction;
  home.timeType = holdsTime ? m_TimeType : none.timeType;
  CopyText(home.timeZoneName, m_Observer == astro::kEarth ? m_TimeZoneName : "");
}

void Camera::StorePlace(HomeParameters& home) const {
  home.observer = m_Observer;
  home.location = m_Location;
  CopyText(home.locationName, m_LocationName.c_str());
}

void Camera::StoreView(HomeParameters& home) const {
  home.alp = m_ViewAngles.lon;
  home.bet = m_ViewAngles.lat;
  home.slp = m_ViewAngles.slope;
  home.zoom = m_Zoom;
  home.directionLocked = m_DirLock != 0;
}

void Camera::StoreParams(int mask) {
  const ChangesObject use(this, "Camera");
  if (m_ObsMovingType != 0) return;
  const bool onEarth = m_Observer == astro::kEarth;
  const HomeParameters* const stored = FindHome(m_Observer);
  HomeParameters home = stored ? *stored : onEarth ? m_EarthHome : HomeParameters();
  home.flags |= mask;
  if ((mask & kHomeLocation) != 0) {
    home.movingType = m_ObsMovingType;
    home.locationType = m_ObsLocatType;
    StorePlace(home);
  }
  if ((mask & kHomeLocationOnly) != 0) {
    StorePlace(home);
    if (onEarth) CopyText(home.timeZoneName, m_TimeZoneName);
  }
  if ((mask & kHomeView) != 0) {
    StoreView(home);
    if (home.directionLocked) home.centerObject = m_CenterObject;
  }
  if ((mask & kHomeTime) != 0) StoreTime(home);
  m_Homes.insert_or_assign(m_Observer, home);
}

void Camera::StoreTempParams() {
  const ChangesObject use(this, "Camera");
  HomeParameters state;
  state.flags = kHomeLocation | kHomeView | kHomeTime;
  state.movingType = m_PendingMovingType != -1 ? m_PendingMovingType : m_ObsMovingType;
  state.locationType = m_ObsLocatType;
  StorePlace(state);
  StoreView(state);
  state.centerObject = m_CenterObject;
  StoreTime(state);
  std::erase_if(m_TempHomes, [&](const HomeParameters& earlier) {
    return IsStateOf(earlier, state.observer, state.movingType);
  });
  m_TempHomes.push_back(state);
}

bool Camera::FindTempParams(HomeParameters* out, const SSO_ID& obs) const {
  const ReadsObject use(this, "Camera");
  const auto found = std::find_if(m_TempHomes.begin(), m_TempHomes.end(), [&](const HomeParameters& state) {
    return IsStateOf(state, obs, obs.fourth);
  });
  if (found == m_TempHomes.end()) return false;
  if (out) *out = *found;
  return true;
}

bool Camera::ClearTempParams(const SSO_ID& obs) {
  const ChangesObject use(this, "Camera");
  return std::erase_if(m_TempHomes,
                       [&](const HomeParameters& state) { return IsStateOf(state, obs, obs.fourth); }) > 0;
}

bool Camera::IsHome(float tolerance) const {
  const ReadsObject use(this, "Camera");
  if (m_ObsMovingType != 0 || !(m_Observer == astro::kEarth)) return false;
  const HomeParameters* const earth = FindHome(astro::kEarth);
  if (!earth)
    PrintDebugString("Camera::GetHomeParams - home params for (%d, %d) not found\n", m_Observer.kind,
                     m_Observer.number);
  double home[3], here[3];
  PlaceOnEarth(earth ? earth->location : SphCoor(), home);
  PlaceOnEarth(m_Location, here);
  const double between[3] = {here[0] - home[0], here[1] - home[1], here[2] - home[2]};
  return static_cast<double>(tolerance) > Vmod(between, 3);
}

void Camera::GoHome(bool go) {
  const ChangesObject use(this, "Camera");
  StateGuard guard(State());
  TurnHome(go);
  guard.SetThrough();
}

void Camera::TurnHome(bool go) {
  m_GoingHome = go;
  if (!go) return;
  m_FlightObject = SSO_ID();
  const HomeParameters* const earth = FindHome(astro::kEarth);
  if (!earth) {
    PrintDebugString("Camera::GoHome - home params for Earth not found\n");
    return;
  }
  ReleaseDirection();
  ApplyHome(HomeParameters(*earth));  // a copy: setting the location name writes to the stored home
}

void Camera::ReleaseDirection() {
  m_CenterObject = SSO_ID();
  m_DirLock = 0;
  m_FirstLook = 0;
}

void Camera::ApplyHome(const HomeParameters& home) {
  if ((home.flags & kHomeLocation) != 0) {
    GoToPlace(home);
  } else {
    ChangeTypeAndObserver(0, kSurfaceLocation, astro::kEarth);
  }
  if ((home.flags & kHomeView) != 0) LookAsAt(home);
  if ((home.flags & kHomeTime) == 0) return;
  if (home.day != -1 && m_FST == 0) SetUniversalTime({home.day, home.fraction, home.timeType});
  if (home.timeZoneName[0] != '\0') SetTimeZoneName(home.timeZoneName, true);
  UpdateLocUTCDeltaFromTimeZone();
}

// The record of the type gives what a home does not hold, above all the plane that the angles count from. So
// it is read whatever the type is now, and chosen for the body to go to: the types on a body have another one
// away from the planets.
void Camera::ChangeTypeAndObserver(int type, int locationType, const SSO_ID& observer) {
  ChangeMovingType(type, false, observer);
  ReleaseDirection();  // types 1 and 4 turn to the body that was left
  m_ObsLocatType = static_cast<unsigned char>(locationType);
  SetObserver(observer);
}

void Camera::GoToPlace(const HomeParameters& home) {
  ChangeTypeAndObserver(home.movingType, home.locationType, home.observer);
  SetLocation(home.location);
  SetLocationName(home.locationName);
}

void Camera::LookAsAt(const HomeParameters& home) {
  m_ViewAngles.lon = home.alp;
  m_ViewAngles.lat = home.bet;
  m_ViewAngles.slope = home.slp;
  RebuildViewMatrix();
  if (home.aimingDispType >= 0) m_AimingDispType = static_cast<unsigned char>(home.aimingDispType);
  SetZoom(home.zoom);
  if (!home.directionLocked) return;
  m_CenterObject = home.centerObject;
  m_DirLock = 1;
}

}  // namespace CommonInterfaces
