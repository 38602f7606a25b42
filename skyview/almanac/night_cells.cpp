// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/almanac/night_cells.h"

#include <cmath>

#include "astro/constants.h"
#include "scene/catalogs/compass.h"
#include "utils/messages.h"

namespace skyview {
namespace {

int FindConstellation(const double astrometric[3], const scene::SkyCatalogs& catalogs) {
  return catalogs.bounds.Find({{astrometric[0], astrometric[1], astrometric[2]}});
}

}  // namespace

std::string GetText(HostText text, int further) {
  return scene::ToUtf8(
      CommonInterfaces::FormatLocalizedText(static_cast<unsigned>(static_cast<int>(text) + further), {}));
}

std::string FormatPlace(const scene::EarthPlace& place) {
  const scene::CompassLetters letters = scene::FetchCompassLetters();
  const double lat = place.lat / scene::kRadiansPerDegree, lon = place.lon / scene::kRadiansPerDegree;
  return FormatText("%.2f° %s, %.2f° %s", std::fabs(lat), letters.text[lat < 0.0 ? 4 : 0], std::fabs(lon),
                    letters.text[lon < 0.0 ? 6 : 2]);
}

std::string FormatShortSize(double angle) {
  const double seconds = angle / astro::kRadiansPerArcsecond;
  if (!(seconds > 0.0)) return "";
  if (seconds < 99.95) return FormatText("%.1f\"", seconds);
  if (seconds < 3600.0) return FormatText(seconds < 599.7 ? "%.1f'" : "%.0f'", seconds / 60.0);
  return FormatText("%.1f°", seconds / 3600.0);
}

std::string FormatMagnitude(double magnitude) {
  constexpr double kFaintest = 99.0;  // what lies above stands for no magnitude
  return magnitude < kFaintest ? FormatText("%.1f", magnitude) : "";
}

std::string FormatDegrees(double radians) {
  return FormatText("%.0f°", std::round(radians / scene::kRadiansPerDegree) + 0.0);
}

std::string FormatTowards(double azimuth) {
  const int eighth = static_cast<int>(std::lround(azimuth / (0.25 * scene::kPi))) % 8;
  return scene::FetchCompassLetters().text[eighth];
}

std::string FormatRising(const std::optional<scene::SkyMoment>& moment, const astro::RiseTransitSet& events,
                         const LocalClock& clock) {
  if (moment) return clock.FormatTime(*moment);
  if (events.staysUp) return GetText(HostText::kAlwaysUp);
  return events.staysDown ? GetText(HostText::kAlwaysDown) : "-";
}

std::string GetConstellationName(const double astrometric[3], const scene::SkyCatalogs& catalogs) {
  const int found = FindConstellation(astrometric, catalogs);
  return found < 0 ? "" : catalogs.constellations[static_cast<std::size_t>(found)].name;
}

std::string GetConstellationLetters(const double astrometric[3], const scene::SkyCatalogs& catalogs) {
  const int found = FindConstellation(astrometric, catalogs);
  return found < 0 ? "" : catalogs.constellations[static_cast<std::size_t>(found)].abbreviation;
}

std::string GetBodyName(const SSO_ID& id, const scene::SkyCatalogs& catalogs) {
  const int body = scene::FindBody(catalogs.bodies, id);
  return body < 0 ? "" : scene::GetBodyLabel(catalogs.bodies[static_cast<std::size_t>(body)]);
}

std::string GetNightObjectName(const scene::FoundObject& object, const scene::SkyCatalogs& catalogs) {
  const auto index = static_cast<std::size_t>(object.index);
  if (object.group == scene::ObjectGroup::kBody) return scene::GetBodyLabel(catalogs.bodies[index]);
  const scene::DeepskyObject& found = catalogs.deepsky[index];
  const std::string label = found.label, name = found.properName;
  return name.empty() || name == label ? label : label + " " + name;
}

}  // namespace skyview
