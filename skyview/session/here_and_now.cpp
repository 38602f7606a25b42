// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/session/here_and_now.h"

#include "astro/julian_date.h"
#include "scene/search/aim.h"
#include "scene/view/base_plane.h"
#include "scene/view/night.h"
#include "utils/text.h"
#include "utils/timezone.h"

namespace skyview {
namespace {

using CommonInterfaces::Camera;
using CommonInterfaces::HomeParameters;

const HomeParameters* FindEarthHome(const Camera& camera, int part) {
  const HomeParameters* home = camera.FindHome(SSO_ID(FourCC("plnt"), 3));
  return home && (home->flags & part) != 0 ? home : nullptr;
}

constexpr int kPlace = CommonInterfaces::kHomeLocation;

// Noon of the civil day on which the clocks of the zone now stand.
std::optional<UniversalMoment> FindNoon(const UniversalMoment& now, const std::string& zone) {
  UniversalMoment local = now;
  local.fraction += getLocalUTCDeltaForTimezone(zone.c_str(), now.day + now.fraction);
  Adjust_JD(local.day, local.fraction);
  return LocalToUniversal(zone, local.day, 0.0);
}

std::optional<UniversalMoment> FindNight(const UniversalMoment& now, const Camera& camera) {
  if (!scene::IsNearSurface(camera)) return std::nullopt;
  const auto night = scene::FindTonight(scene::MakeMoment(now.day, now.fraction), scene::GetPlace(camera));
  if (!night) return std::nullopt;
  return UniversalMoment{night->day, night->fraction};
}

}  // namespace

bool FollowsClock(const ViewOptions& options) {
  return !options.view && !options.session && !options.home && !options.time;
}

Standpoint FindStandpoint(const ViewOptions& options, const Camera& camera) {
  if (options.place) return Standpoint::kGiven;
  if (options.movingType || !FindEarthHome(camera, kPlace)) return Standpoint::kDefault;
  return Standpoint::kHome;
}

void StandAtHome(Camera& camera) {
  const HomeParameters home = *FindEarthHome(camera, kPlace);
  camera.SetLocation(home.location);
  camera.SetLocationName(home.locationName);
  camera.SetTimeZoneName(home.timeZoneName, true);
}

void LookAround(Standpoint standpoint, Camera& camera) {
  constexpr double kAltitude = 30.0, kNorth = 0.0, kSouth = 180.0;
  const HomeParameters* home = FindEarthHome(camera, CommonInterfaces::kHomeView);
  if (standpoint != Standpoint::kHome || !home)
    return scene::LookTo({camera.GetLocation().lat < 0.0 ? kNorth : kSouth, kAltitude}, camera);
  SphViewCoor angles;
  angles.lon = home->alp;
  angles.lat = home->bet;
  angles.slope = home->slp;
  camera.SetBasePlane(scene::kHorizonPlane);
  camera.SetRA_Dec(angles);
}

std::optional<UniversalMoment> FindMoment(ClockTime time, const UniversalMoment& now, const Camera& camera) {
  if (time == ClockTime::kNow) return now;
  if (time == ClockTime::kToday) return FindNoon(now, camera.GetDisplayTimeZoneName(true));
  return FindNight(now, camera);
}

}  // namespace skyview
