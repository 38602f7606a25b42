// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/session/homes.h"

#include <cmath>
#include <cstdio>

#include "astro/constants.h"
#include "scene/view/base_plane.h"
#include "scene/view/directions.h"
#include "scene/words/moment_text.h"
#include "skyview/reports/host_texts.h"
#include "utils/messages.h"
#include "utils/text.h"

namespace skyview {
namespace {

using CommonInterfaces::Camera;
using CommonInterfaces::HomeParameters;

std::string FormatCode(int kind) {
  std::string text;
  for (int shift = 24; shift >= 0; shift -= 8) {
    const char c = static_cast<char>(kind >> shift & 0xFF);
    text += c >= ' ' && c < '\x7F' ? c : '?';
  }
  return text;
}

std::string FormatObject(const SSO_ID& object) {
  return object.IsEmpty() ? "none" : FormatCode(object.kind) + " " + std::to_string(object.number);
}

std::string FormatPlace(const HomeParameters& home) {
  const int located = CommonInterfaces::kHomeLocation | CommonInterfaces::kHomeLocationOnly;
  if ((home.flags & located) == 0) return "none";
  std::string text = FormatText("latitude %.6g\u00B0, longitude %.6g\u00B0, distance %.6g au",
                                home.location.lat / scene::kRadiansPerDegree,
                                home.location.lon / scene::kRadiansPerDegree, home.location.dist);
  text += FormatText(", moving type %d, location type %d", home.movingType, home.locationType);
  if (*home.locationName) text += ", " + scene::ToUtf8(scene::NameToCodePage(home.locationName));
  return text;
}

std::string FormatView(const HomeParameters& home) {
  if ((home.flags & CommonInterfaces::kHomeView) == 0) return "none";
  const double azimuth =
      std::fmod(2.0 * scene::kPi - std::fmod(home.alp, 2.0 * scene::kPi), 2.0 * scene::kPi);
  std::string text = FormatText("azimuth %.4f\u00B0, altitude %.4f\u00B0, slope %.4f\u00B0, zoom %.6g",
                                azimuth / scene::kRadiansPerDegree, home.bet / scene::kRadiansPerDegree,
                                home.slp / scene::kRadiansPerDegree, home.zoom);
  if (home.directionLocked) text += ", locked on " + FormatObject(home.centerObject);
  return text;
}

std::string FormatTime(const HomeParameters& home) {
  if ((home.flags & CommonInterfaces::kHomeTime) == 0) return "none";
  std::string text =
      home.day == -1 ? "that of the clock" : scene::FormatMoment(home.day, home.fraction) + " UT";
  if (*home.timeZoneName) text += std::string(", zone ") + home.timeZoneName;
  return text;
}

}  // namespace

std::string FormatHomes(const Camera& camera) {
  std::string text;
  for (const auto& [observer, home] : camera.GetHomes()) {
    text += "Home of " + FormatObject(observer) + "\n";
    text += "  place: " + FormatPlace(home) + "\n";
    text += "  view: " + FormatView(home) + "\n";
    text += "  time: " + FormatTime(home) + "\n";
  }
  return text.empty() ? "No homes\n" : text;
}

bool StoreHome(Camera& camera, Diagnostics& diagnostics, std::string& error) {
  if (camera.GetMovingType() != 0) {
    error = "homes store: wants an observer who stands on a surface (moving type 0)";
    return false;
  }
  const std::size_t before = diagnostics.lines.size();
  camera.StoreParams(CommonInterfaces::kHomeLocation | CommonInterfaces::kHomeView |
                     CommonInterfaces::kHomeTime);
  if (camera.StoreHomeParams()) return true;
  error = "home_params.ini: ";
  if (diagnostics.lines.size() > before) error += scene::MessageToUtf8(diagnostics.lines[before]);
  error.erase(error.find_last_not_of('\n') + 1);
  diagnostics.lines.resize(before);
  return false;
}

ViewResult GoHome(Camera& camera) {
  if (!camera.FindHome(astro::kEarth)) {
    return {Failure::kBadData, "--home: home_params.ini has no home on the Earth (homes store makes one)"};
  }
  camera.GoHome(true);
  if (scene::IsNearSurface(camera)) {
    camera.SetBasePlane(scene::kHorizonPlane);
    camera.SetRA_Dec(camera.GetViewAngles());
  }
  return {};
}

}  // namespace skyview
