// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "host/report.h"

#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

#include "astro/julian_date.h"
#include "host/horizon.h"
#include "utils/debug.h"
#include "utils/text.h"

namespace skyview {
namespace {

using CommonInterfaces::_Date;
using CommonInterfaces::Camera;

struct ClassName {
  int cls;
  const char* name;
};
constexpr ClassName kClasses[] = {
    {FourCC("star"), "star"}, {FourCC("clst"), "clst"}, {FourCC("gala"), "gala"}, {FourCC("nebu"), "nebu"},
    {FourCC("dsnv"), "dsnv"}, {FourCC("plnt"), "plnt"}, {FourCC("moon"), "moon"}, {FourCC("astr"), "astr"},
    {FourCC("comt"), "comt"}, {FourCC("scft"), "scft"}};

std::string Format(const char* format, ...) UTILS_PRINTF_FORMAT(1, 2);

std::string Format(const char* format, ...) {
  char text[512];
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(text, sizeof text, format, arguments);
  va_end(arguments);
  return text;
}

std::string FormatDegrees(double radians, const char* positive, const char* negative) {
  const double degrees = radians / kRadiansPerDegree;
  return Format("%.4f\u00B0 %s", std::fabs(degrees), degrees < 0.0 ? negative : positive);
}

std::string FormatPlace(const Camera& camera) {
  const SphCoor& place = camera.GetLocation();
  const double longitude = std::remainder(place.lon, 2.0 * kPi);
  const std::string where = FormatDegrees(place.lat, "N", "S") + ", " + FormatDegrees(longitude, "E", "W");
  return camera.GetLocationName().empty() ? where : camera.GetLocationName() + ", " + where;
}

// To the nearest second.
std::string FormatMoment(int day, double fraction) {
  constexpr double kHalfSecond = 0.5 / 86400.0;
  CalendarDate date;
  JD(day, fraction + kHalfSecond, date);
  return Format("%s%04d-%02d-%02d %02d:%02d:%02d", date.year < 0 ? "-" : "", std::abs(date.year), date.month,
                date.day, date.hour, date.minute, static_cast<int>(date.second));
}

// "UT+05:30"
std::string FormatOffset(double days) {
  const int minutes = static_cast<int>(std::lround(days * 1440.0));
  return Format("UT%c%02d:%02d", minutes < 0 ? '-' : '+', std::abs(minutes) / 60, std::abs(minutes) % 60);
}

std::string FormatLocalTime(const Camera& camera) {
  _Date time;
  camera.GetUniversalTime(time);
  const std::string zone = camera.GetDisplayTimeZoneName(true);
  const std::string offset =
      zone.empty() ? "Universal Time" : zone + ", " + FormatOffset(camera.GetLocUTCdelta());
  return FormatMoment(time.day, time.fraction + camera.GetLocUTCdelta()) + " (" + offset + ")";
}

double Azimuth(const Camera& camera) {  // degrees
  const double azimuth = std::fmod(-camera.GetViewAngles().lon, 2.0 * kPi);
  // A hair below the full turn would be printed as 360.0.
  const double degrees = (azimuth < 0.0 ? azimuth + 2.0 * kPi : azimuth) / kRadiansPerDegree;
  return degrees >= 359.95 ? 0.0 : degrees;
}

std::string FormatDirection(const Camera& camera) {
  const double azimuth = Azimuth(camera);
  const int eighth = static_cast<int>(std::lround(azimuth / 45.0)) % 8;
  return Format("azimuth %.1f\u00B0 (%s), altitude %.1f\u00B0", azimuth, GetCompassLetters().text[eighth],
                camera.GetViewAngles().lat / kRadiansPerDegree);
}

std::string FormatField(const Camera& camera) {
  const ViewGeometry geometry(camera);
  return Format("%.4g\u00B0 x %.4g\u00B0", geometry.GetWidthAngle() / kRadiansPerDegree,
                geometry.GetHeightAngle() / kRadiansPerDegree);
}

std::string FormatLimits(const Camera& camera, const ClassName& entry) {
  const ClassLimits limits(camera, entry.cls);
  return Format("%s draw %.1f, full %.1f, label %.1f", entry.name, MagnitudeOfCode(limits.draw),
                MagnitudeOfCode(limits.full), MagnitudeOfCode(limits.label));
}

void CopyLine(const std::string& line, char (&to)[Caption::kSize]) {
  std::snprintf(to, sizeof to, "%s", line.c_str());
}

}  // namespace

std::string MakeReport(const Camera& camera, const SkyFrame& frame) {
  _Date time;
  camera.GetUniversalTime(time);
  std::string report = "place: " + FormatPlace(camera) + "\n";
  report += "local time: " + FormatLocalTime(camera) + "\n";
  report += "universal time: " + FormatMoment(time.day, time.fraction) + "\n";
  report += "direction: " + FormatDirection(camera) + "\n";
  report += Format("zoom: %.4g\n", camera.GetZoom());
  report += "field of view: " + FormatField(camera) + "\n";
  for (const auto& entry : kClasses) report += "magnitude limits: " + FormatLimits(camera, entry) + "\n";
  report += "stars drawn: " + std::to_string(frame.GetStars().size()) + "\n";
  report += "deep-sky objects drawn: " + std::to_string(frame.GetDeepsky().size()) + "\n";
  return report;
}

std::string MakeLimitsTable(Camera& camera) {
  const double own = camera.GetZoom();
  std::string table = Format("view's zoom %.4g:\n", own);
  for (const auto& entry : kClasses) table += "  " + FormatLimits(camera, entry) + "\n";
  for (const double zoom : {0.5, 1.0, 2.0, 5.0, 10.0, 20.0, 50.0, 100.0}) {
    camera.SetZoom(zoom);
    table += Format("zoom %.4g:\n", zoom);
    for (const auto& entry : kClasses) table += "  " + FormatLimits(camera, entry) + "\n";
  }
  camera.SetZoom(own);
  return table;
}

Caption MakeCaption(const Camera& camera) {
  Caption caption;
  CopyLine(FormatPlace(camera) + "    " + FormatLocalTime(camera), caption.where);
  CopyLine(FormatDirection(camera) + Format("    zoom %.4g    ", camera.GetZoom()) + FormatField(camera),
           caption.how);
  return caption;
}

}  // namespace skyview
