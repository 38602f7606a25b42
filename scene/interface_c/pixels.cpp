// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

#include "astro/coordinates.h"
#include "astro/rise_set.h"
#include "scene/interface_c/sky.h"
#include "scene/interface_c/unprojection.h"
#include "scene/search/aim.h"
#include "scene/view/air.h"
#include "scene/view/base_plane.h"
#include "scene/visibility/class_limits.h"

namespace {

using scene::kPi;
using scene::kRadiansPerDegree;

double ToAzimuth(double longitude) {
  const double azimuth = std::fmod(-longitude / kRadiansPerDegree, 360.0);
  return azimuth < 0.0 ? azimuth + 360.0 : azimuth;
}

// The altitude of the view, radians, at which what is seen `up` and `ahead` in the picture stands `high`
// (sines): up cos h + ahead sin h = high. Of two answers that nearer to the altitude now; where there is none
// the altitude that comes nearest.
double FindViewAltitude(double up, double ahead, double high, double now) {
  const double lean = std::atan2(up, ahead);
  const double sine = std::clamp(high / std::max(std::hypot(up, ahead), 1e-12), -1.0, 1.0);
  const double one = std::remainder(std::asin(sine) - lean, 2.0 * kPi),
               other = std::remainder(kPi - std::asin(sine) - lean, 2.0 * kPi);
  const double nearer = std::fabs(one - now) <= std::fabs(other - now) ? one : other;
  return std::clamp(nearer, -0.5 * kPi, 0.5 * kPi);
}

// What a direction over the horizon, as it is seen, hides behind it without the bending of the air.
void TakeAirAway(double standing[3]) {
  double longitude, altitude;
  psf(standing, 1.0, longitude, altitude);
  const double lowered = scene::LoweredAltitude(altitude);
  standing[0] = std::cos(lowered) * std::cos(longitude);
  standing[1] = std::cos(lowered) * std::sin(longitude);
  standing[2] = std::sin(lowered);
}

SceneSpot DescribeSpot(const double seen[3], const scene::Unprojection& unprojection, SceneSky& sky) {
  SceneSpot spot = {};
  double angle, height, vector[3];
  psf(seen, 1.0, angle, height);
  spot.azimuth = ToAzimuth(angle);
  spot.altitude = height / kRadiansPerDegree;
  const bool hasHorizon = unprojection.GetObserver().horizon;
  spot.is_ground = hasHorizon && sky.shown.horizon && height < sky.FindSkyline(scene::MakeDirection(seen));
  double standing[3] = {seen[0], seen[1], seen[2]};
  if (hasHorizon && sky.shown.refraction) TakeAirAway(standing);
  unprojection.ToJ2000(standing, vector);
  psf(vector, 1.0, angle, height);
  spot.right_ascension = angle / kRadiansPerDegree;
  spot.declination = height / kRadiansPerDegree;
  const int constellation = sky.catalogs.bounds.Find(scene::MakeDirection(vector));
  sky.constellation =
      constellation < 0 ? "" : sky.catalogs.constellations[static_cast<std::size_t>(constellation)].localName;
  return spot;
}

// Degrees from the middle of the picture to the pixel.
double FindFromMiddle(const scene::Unprojection& unprojection, double x, double y) {
  double seen[3];
  unprojection.FindSeen(x, y, seen);
  return std::acos(std::clamp(seen[2], -1.0, 1.0)) / kRadiansPerDegree;
}

void CountBodies(const scene::SkyFrame& frame, SceneFrame& described) {
  if (!frame.IsSeenFromEarth()) return;
  const scene::BodyList& bodies = frame.GetBodies().GetBodies();
  for (std::size_t body = 0; body < bodies.size(); ++body) {
    if (!frame.IsBodyDrawn(static_cast<int>(body))) continue;
    ++described.bodies;
    described.asteroids += bodies[body].id.kind == FourCC("astr");
    described.satellites += bodies[body].id.kind == FourCC("scft");
  }
}

double FindSunAltitude(const scene::SkyFrame& frame, const CommonInterfaces::Camera& camera) {
  if (!frame.IsSeenFromEarth() || !scene::IsNearSurface(camera))
    return std::numeric_limits<double>::quiet_NaN();
  double axes[9];
  scene::HorizonAxes(scene::GetMoment(camera), scene::GetPlace(camera), axes);
  return astro::MakeHorizonPlace(axes, frame.GetBodies().GetSun().seen.apparent, 0.0).altitude /
         kRadiansPerDegree;
}

}  // namespace

int scene_turn(SceneSky* sky, const double vector[3], double x, double y) {
  return scene::Call(sky, [&] {
    if (!vector || !std::isfinite(vector[0] + vector[1] + vector[2]) || !std::isfinite(x + y))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "wants a direction and a pixel");
    if (sky->camera.GetBasePlane() != scene::kHorizonPlane)
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the view counts from no horizon");
    const scene::Unprojection unprojection(sky->camera);
    double seen[3], standing[3], longitude, height;
    unprojection.FindSeen(x, y, seen);
    unprojection.FromJ2000(vector, standing);
    psf(standing, 1.0, longitude, height);
    const double altitude =
        FindViewAltitude(seen[1], seen[2], std::sin(height), sky->camera.GetViewAngles().lat);
    const double ahead = seen[2] * std::cos(altitude) - seen[1] * std::sin(altitude);
    const double azimuth = ToAzimuth(longitude - std::atan2(seen[0], ahead));
    scene::LookTo({azimuth, altitude / kRadiansPerDegree}, sky->camera);
    return static_cast<int>(SCENE_OK);
  });
}

int scene_describe_pixel(SceneSky* sky, double x, double y, SceneSpot* spot) {
  return scene::Call(sky, [&] {
    if (!scene::IsKnown(spot, offsetof(SceneSpot, constellation) + sizeof spot->constellation))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the spot is null or its size too small");
    if (!std::isfinite(x + y)) return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "wants a pixel");
    if (sky->camera.GetBasePlane() != scene::kHorizonPlane)
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the view counts from no horizon");
    const scene::Unprojection unprojection(sky->camera);
    double seen[3];
    unprojection.FindStanding(x, y, seen);
    SceneSpot described = DescribeSpot(seen, unprojection, *sky);
    described.constellation = sky->constellation.c_str();
    scene::Give(described, spot);
    return static_cast<int>(SCENE_OK);
  });
}

int scene_describe_frame(SceneSky* sky, SceneFrame* frame) {
  return scene::Call(sky, [&] {
    if (!scene::IsKnown(frame, offsetof(SceneFrame, sun_altitude) + sizeof frame->sun_altitude))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the frame is null or its size too small");
    const scene::SkyFrame& shown = sky->maker->GetFrame();
    if (shown.GetWidth() == 0) return scene::Fail(*sky, SCENE_NOT_FOUND, "no frame was computed");
    const auto limits = [&](int kind) { return shown.GetDrawnLimits(scene::ClassLimits(sky->camera, kind)); };
    const scene::Unprojection unprojection(sky->camera);
    SceneFrame described = {};
    described.stars = static_cast<int32_t>(shown.GetStars().size());
    described.deepsky = static_cast<int32_t>(shown.GetDeepsky().size());
    CountBodies(shown, described);
    described.star_limit = scene::MagnitudeOfCode(limits(FourCC("star")).draw);
    described.label_limit = scene::MagnitudeOfCode(limits(FourCC("star")).label);
    described.deepsky_limit = scene::MagnitudeOfCode(limits(FourCC("gala")).draw);
    described.field_width = 2.0 * FindFromMiddle(unprojection, 0.0, 0.5 * shown.GetHeight());
    described.field_height = 2.0 * FindFromMiddle(unprojection, 0.5 * shown.GetWidth(), 0.0);
    described.sun_altitude = FindSunAltitude(shown, sky->camera);
    scene::Give(described, frame);
    return static_cast<int>(SCENE_OK);
  });
}
