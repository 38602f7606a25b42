// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Everything a camera knows, apart from the settings object through which it is read and written. Members
// stand in one record so that assigning a camera assigns them all. Initial values are those of a camera that
// has no defaults yet; Camera::CreateDefault says what the defaults are.
#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "astro/coordinates.h"
#include "astro/object_id.h"
#include "common_interfaces/daylight_savings.h"
#include "common_interfaces/home_parameters.h"
#include "common_interfaces/marker_info.h"
#include "common_interfaces/play_desc.h"
#include "common_interfaces/projection.h"
#include "utils/geometry.h"
#include "utils/incomplete_files.h"

namespace CommonInterfaces {

inline constexpr int kZoomDependRows = 20;
inline constexpr int kTimeZoneNameSize = 64;  // with the terminating zero

// The step of one interactive control. What a unit code means is the owner's; files keep it.
struct CameraStepSize {
  double value = 0.0;
  int unit = 0;
};

// The interactive controls that have a step: the value is in the unit that the code names, for angles in
// radians.
enum class CameraStep {
  kTime,
  kRotate,
  kAimAlp,
  kAimBet,
  kPosLon,
  kPosLat,
  kHeight,
  kZoom,  // a factor; it has no unit, and files keep none
  k3DFlight,
};
inline constexpr int kCameraSteps = 9;

// What a change of moving type remembers until a later one can put it back (Camera::SetMovingType).
struct LeftBehind {
  struct SurfacePlace {
    SSO_ID observer;
    SphCoor location;
  };
  struct Direction {
    unsigned char plane = 0;
    SphViewCoor angles;
  };
  SSO_ID observer;                              // the last planet or moon; empty: none yet
  std::map<signed char, SurfacePlace> places;   // by moving type, 0 and 1
  signed char lastPlace = -1;                   // which of them was left last; -1: none yet
  std::map<signed char, Direction> directions;  // by moving type
};

// The members of a camera.
struct CameraState {
  // Finder and window, pixels.
  short m_FinderSize = 0;
  tRect<int> m_WinRect = {0, 0, 0, 0};      // width, height, reference width, reference height, in this order
  tPoint<double> m_WinCentre = {0.0, 0.0};  // width * 0.5, height * 0.5
  double m_RefHalfDiagonal = 0.0;           // Dr
  double m_WinDiagonal = 0.0;               // Dw: halved or not, see Camera::GetWinDiag

  // Zoom and the scale of the projection that follows from it.
  double m_Zoom = 0.0;  // magnification, 1 by default; 0 until CreateDefault, a file or SetZoom gives one
  double m_SecondZoom = 0.0;    // 10 by default
  double m_ScaleTangent = 0.0;  // t = tan(K / (2 zoom))
  double m_Scale = 0.0;         // f = Dr / t, pixels
  bool m_ZoomChanged = false;

  // Time, in Universal Time.
  int m_JT = 0;           // Julian day number
  double m_TJ = 0.0;      // fraction of the day, added
  int m_TimeType = 0;     // TimeKind, how the user sees it
  double m_DeltaT = 0.0;  // dynamical time minus Universal Time, days
  bool m_TimeChanged = false;
  double m_LocUTCDelta = 0.0;  // local time minus Universal Time, days
  char m_TimeZoneName[kTimeZoneNameSize] = "";
  char m_DisplayTimeZoneName[kTimeZoneNameSize] = "";
  signed char m_FST = 0;
  unsigned char m_FST_Offered = 0;
  DaylightSavingsData m_DST;

  // Observer and location.
  signed char m_ObsMovingType = 0;  // 0 to 11; 0 stands on a surface, 3, 9, 10 and 11 travel far from the Sun
  SSO_ID m_Observer;
  bool m_ObserverChanged = false;
  unsigned char m_ObsLocatType = 0;
  SphCoor m_Location;                       // about the observer object's centre; distance in au
  unsigned char m_DispCoorSysObserver = 0;  // the copy of m_Location.coorSys that files keep
  std::string m_LocationName;
  bool m_BelowSurface = false;

  // Viewing direction, in the frame of the view matrix. The longitude, latitude and slope of m_ViewAngles are
  // what files call m_alp, m_bet and m_slp.
  SphViewCoor m_ViewAngles;
  SSO_ID m_CenterObject;
  bool m_CenterObjectSet = false;
  bool m_CenterViewLock = false;
  unsigned char m_FirstLook = 0;
  unsigned char m_DirLock = 0;
  unsigned char m_BasePlane = 0;
  unsigned char m_AimingDispType = 0;
  double m_RA2K = 0.0;  // view centre in J2000, radians; the owner's
  double m_Dec2K = 0.0;

  // Matrices of nine doubles in row order, element (i, j) at 3 i + j; layout and signs stand in camera.h.
  double m_ViewMatrix[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
  double m_ReductionMatrix[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
  // V and C = V R, for the projection.
  PictureMatrix m_ViewPicture, m_ComboPicture;

  std::array<CameraStepSize, kCameraSteps> m_Steps;

  // Homes, by observer; the last state by observer and moving type, oldest first.
  std::map<SSO_ID, HomeParameters> m_Homes;
  IncompleteFiles m_IncompleteHomes;
  HomeParameters m_EarthHome;  // as the file gave it
  std::vector<HomeParameters> m_TempHomes;
  bool m_GoingHome = false;
  int m_PendingMovingType = -1;

  // Motion and markers.
  LeftBehind m_LeftBehind;
  std::map<int, PlayDesc> m_Plays;  // by type
  SSO_ID m_FlightObject;
  SSO_ID m_QuickOI;
  std::vector<MARKER_INFO> m_OIMarkers;
  bool m_OnScreenFinder = false;

  // By row of Camera::s_ZoomDependDesc, magnitude codes.
  std::array<float, kZoomDependRows> m_MagCorrections = {};
  std::array<float, kZoomDependRows> m_LimitingMagnitudes = {};
};

}  // namespace CommonInterfaces
