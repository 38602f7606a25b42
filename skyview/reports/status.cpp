// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/reports/status.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "astro/julian_date.h"
#include "common_interfaces/dates.h"
#include "common_interfaces/status_strings.h"
#include "common_interfaces/string_table.h"
#include "scene/catalogs/compass.h"
#include "scene/catalogs/object_names.h"
#include "scene/view/air.h"
#include "scene/view/base_plane.h"
#include "scene/words/angle_text.h"
#include "scene/words/moment_text.h"
#include "skyview/reports/host_texts.h"
#include "utils/text.h"

namespace skyview {
namespace {

using CommonInterfaces::_Date;
using CommonInterfaces::Camera;

constexpr int kLocalTime = 0, kUniversalTime = 1;  // kinds of time

// Formats of the string table: near a surface and in space; by hours, by degrees along the horizon, along
// another plane.
constexpr int kSurfacePosition = 7208, kSpacePosition = 7209;
constexpr int kHours = 7216, kHorizonDegrees = 7217, kOtherDegrees = 7218;
constexpr unsigned char kByHours = 0, kByDegrees = 1, kOtherDirection = 2;  // direction modes
constexpr unsigned kFirstPlaneName = 5011;                                  // by base plane

// The texts of one view, in the code page of the language until they are taken. The library's functions ask a
// camera for what they show, so each text sets up a copy of the camera that shows it.
class StatusWriter {
 public:
  StatusWriter(const Camera& camera, const scene::SkyCatalogs& catalogs)
      : m_Camera(camera), m_Shown(camera), m_Catalogs(catalogs) {
    m_Shown = camera;  // constructing from a camera copies nothing
  }

  std::vector<std::string> Write() {
    AddPlace();
    AddTimes();
    AddCentredObject();
    AddDirection();
    Add(CommonInterfaces::GetRefPlane(&m_Shown));
    Add(CommonInterfaces::GetSlopeString(&m_Shown));
    Add(CommonInterfaces::GetZoomString(&m_Shown));
    Add(CommonInterfaces::GetFoV(&m_Shown));
    return std::move(m_Texts);
  }

 private:
  void Add(const std::string& text) {
    if (!text.empty()) m_Texts.push_back(scene::ToUtf8(text));
  }
  // A line of skyview's own, with angles in it.
  void AddAngles(const std::string& text) {
    if (!text.empty()) m_Texts.push_back(scene::PutSignsFirst(scene::ToUtf8(text)));
  }
  void AddPlace();
  void AddTimes();
  void AddTime(int kind);
  std::string FormatDate(const _Date& time);
  void AddCentredObject();
  void AddDirection();
  std::string GetEarthOrObserver() const;
  void AddRefraction();

  const Camera& m_Camera;
  Camera m_Shown;
  const scene::SkyCatalogs& m_Catalogs;
  std::vector<std::string> m_Texts;
};

std::string StatusWriter::GetEarthOrObserver() const {
  if (m_Camera.GetObserver() == SSO_ID(FourCC("plnt"), 3)) return Localize(HostText::kEarthAsPlace, {});
  return scene::GetObjectName(m_Camera.GetObserver(), m_Catalogs);
}

void StatusWriter::AddPlace() {
  const std::string name = scene::NameToCodePage(m_Camera.GetLocationName());
  const bool onEarth = scene::IsNearSurface(m_Camera);
  m_Shown.SetLocationName((name.empty() ? GetEarthOrObserver() : name).c_str());
  const std::string place = !name.empty() && onEarth ? name : CommonInterfaces::GetLocationString(&m_Shown);
  Add(Localize(HostText::kPlace, {place.c_str()}));
  AddAngles(Localize(
      HostText::kCoordinates,
      {CommonInterfaces::GetPositionCoordString(&m_Shown, kSurfacePosition, kSpacePosition).c_str()}));
  Add(CommonInterfaces::GetDistanceString(&m_Shown));
}

// "UT+05:30"
std::string FormatOffset(double days) {
  const int minutes = static_cast<int>(std::lround(days * 1440.0));
  char text[32];
  std::snprintf(text, sizeof text, "UT%c%02d:%02d", minutes < 0 ? '-' : '+', std::abs(minutes) / 60,
                std::abs(minutes) % 60);
  return text;
}

// Some texts begin with a blank, for a caption to stand before them.
std::string WithoutBlanks(const std::string& text) {
  const auto begin = text.find_first_not_of(' ');
  return begin == std::string::npos ? "" : text.substr(begin);
}

void StatusWriter::AddTime(int kind) {
  _Date time;
  m_Camera.GetUniversalTime(time);
  time.type = kind;
  m_Shown.SetUniversalTime(time);
  std::string caption;
  const std::string clock = WithoutBlanks(CommonInterfaces::GetTimeString(&m_Shown, caption));
  const std::string date = FormatDate(time);
  if (kind == kUniversalTime) {
    Add(Localize(HostText::kUniversalTime, {caption.c_str(), clock.c_str(), date.c_str()}));
  } else {
    Add(Localize(HostText::kLocalTime,
                 {caption.c_str(), clock.c_str(), date.c_str(), m_Camera.GetDisplayTimeZoneName(true),
                  FormatOffset(m_Camera.GetLocUTCdelta()).c_str()}));
  }
}

// As the library writes it; before the year 1 without an era, for the line of the date counts the years with
// a year 0.
std::string StatusWriter::FormatDate(const _Date& time) {
  const std::string shown =
      scene::FormatDay(time.day, time.fraction + (time.type == kLocalTime ? m_Camera.GetLocUTCdelta() : 0.0));
  return scene::IsBeforeFirstYear(shown) ? shown : CommonInterfaces::GetDateString(&m_Shown);
}

void StatusWriter::AddTimes() {
  if (*m_Camera.GetDisplayTimeZoneName(true)) AddTime(kLocalTime);
  AddTime(kUniversalTime);
  _Date local;
  m_Camera.GetUniversalTime(local);
  local.fraction += m_Camera.GetLocUTCdelta();
  Add(Localize(HostText::kDate, {WithoutBlanks(CommonInterfaces::GetDateString(local)).c_str()}));
}

void StatusWriter::AddCentredObject() {
  SSO_ID object = m_Camera.GetCenterObject();
  if (!*object.name) {
    std::snprintf(object.name, sizeof object.name, "%s", scene::GetObjectName(object, m_Catalogs).c_str());
  }
  m_Shown.SetCenterViewLock(false);
  m_Shown.SetCenterView(object);
  Add(CommonInterfaces::GetCenterOnString(&m_Shown));
}

double GetAzimuth(const Camera& camera) {
  const double azimuth = std::fmod(-camera.GetViewAngles().lon, 2.0 * scene::kPi);
  return azimuth < 0.0 ? azimuth + 2.0 * scene::kPi : azimuth;
}

std::string GetPlaneName(unsigned char plane) {
  const CommonInterfaces::QX4Strings strings;
  const char* const name = CommonInterfaces::QX4Strings::GetString(kFirstPlaneName + plane, true);
  return name ? name : "";
}

// Longitudes of the horizon frame grow over west; the user reads azimuths, which grow over east.
void StatusWriter::AddDirection() {
  SphViewCoor angles = m_Camera.GetViewAngles();
  const auto format = [&](unsigned char mode) {
    m_Shown.SetRA_Dec(angles);
    m_Shown.SetAimingDispType(mode);
    return CommonInterfaces::GetDirectionString(&m_Shown, kHours, kHorizonDegrees, kOtherDegrees);
  };
  if (m_Camera.GetBasePlane() == scene::kHorizonPlane) {
    angles.lon = GetAzimuth(m_Camera);
    const int eighth = static_cast<int>(std::lround(angles.lon / (0.25 * scene::kPi))) % 8;
    const std::string compassPoint = scene::ToCodePage(scene::FetchCompassLetters().text[eighth]);
    AddAngles(Localize(HostText::kDirection, {format(kByDegrees).c_str(), compassPoint.c_str()}));
    AddRefraction();
  } else if (m_Camera.GetBasePlane() != scene::kEquatorPlane) {
    const std::string plane = GetPlaneName(m_Camera.GetBasePlane());
    AddAngles(Localize(HostText::kDirection, {format(kOtherDirection).c_str(), plane.c_str()}));
  }
  m_Camera.GetRA_Dec2K(angles.lon, angles.lat);
  AddAngles(Localize(HostText::kCentre, {format(kByHours).c_str()}));
}

void StatusWriter::AddRefraction() {
  const double altitude = m_Camera.GetViewAngles().lat, least = -2.0 * scene::kRadiansPerDegree;
  if (altitude < least) return;
  const double lift = altitude - scene::LoweredAltitude(altitude);
  Add(Localize(HostText::kRefraction, {lift / scene::kRadiansPerDegree}));
}

}  // namespace

std::vector<std::string> MakeStatus(const Camera& camera, const scene::SkyCatalogs& catalogs) {
  return StatusWriter(camera, catalogs).Write();
}

}  // namespace skyview
