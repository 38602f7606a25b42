// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <cstddef>
#include <limits>

#include "astro/constants.h"
#include "astro/julian_date.h"
#include "scene/interface_c/sky.h"
#include "scene/interface_c/unprojection.h"
#include "scene/search/aim.h"
#include "scene/view/base_plane.h"
#include "scene/view/observer_frame.h"
#include "scene/visibility/zoom_range.h"

namespace {

using CommonInterfaces::Camera;
using scene::kRadiansPerDegree;

constexpr unsigned kCameraRecord = FourCC("CAMR");

struct Bounds {
  const char* name;
  double value, least, most;
};

// The first value that is not in its range; null when all are. Not a number is in none.
const char* FindWrong(const SceneView& view) {
  const Bounds all[] = {{"width", static_cast<double>(view.width), 64.0, 16384.0},
                        {"height", static_cast<double>(view.height), 64.0, 16384.0},
                        {"latitude", view.latitude, -90.0, 90.0},
                        {"longitude", view.longitude, -360.0, 360.0},
                        {"julian_date", view.julian_date, scene::kFirstDate, scene::kLastDate},
                        {"azimuth", view.azimuth, 0.0, 360.0},
                        {"altitude", view.altitude, -90.0, 90.0},
                        {"zoom", view.zoom, scene::kMinZoom, scene::kMaxZoom}};
  for (const Bounds& bounds : all) {
    if (!(bounds.value >= bounds.least && bounds.value <= bounds.most)) return bounds.name;
  }
  return nullptr;
}

// The traveller comes back, and who stands elsewhere.
void StandOnEarth(Camera& camera) {
  if (!scene::IsNearSurface(camera)) camera.SetMovingType(0, false);
  camera.SetObserver(astro::kEarth);
}

void SetMoment(double julianDate, Camera& camera) {
  CommonInterfaces::_Date time;
  camera.GetUniversalTime(time);
  const double day = std::floor(julianDate + 0.5);
  time.day = static_cast<int>(day);
  time.fraction = julianDate - day;
  camera.SetUniversalTime(time);
  camera.UpdateLocUTCDeltaFromTimeZone();
}

void SetPlace(const SceneView& view, Camera& camera) {
  SphCoor location = camera.GetLocation();
  const SphCoor before = location;
  location.lat = view.latitude * kRadiansPerDegree;
  location.lon = view.longitude * kRadiansPerDegree;
  location.dist = 0.0;
  camera.SetLocation(location);
  if (location.lat != before.lat || location.lon != before.lon) camera.SetLocationName("");
}

SceneView DescribeView(const Camera& camera) {
  SceneView view = {};
  const tPoint<int> window = camera.GetWinSize();
  view.width = window.x;
  view.height = window.y;
  view.latitude = camera.GetLocation().lat / kRadiansPerDegree;
  view.longitude = camera.GetLocation().lon / kRadiansPerDegree;
  CommonInterfaces::_Date time;
  camera.GetUniversalTime(time);
  view.julian_date = time.day + time.fraction;
  const double azimuth = std::fmod(-camera.GetViewAngles().lon / kRadiansPerDegree, 360.0);
  view.azimuth = azimuth < 0.0 ? azimuth + 360.0 : azimuth;
  view.altitude = camera.GetViewAngles().lat / kRadiansPerDegree;
  view.zoom = camera.GetZoom();
  return view;
}

int FailFile(SceneSky& sky, const char* file, const char* why) {
  return scene::Fail(sky, SCENE_BAD_DATA, std::string(file) + ": " + why);
}

}  // namespace

int scene_get_view(SceneSky* sky, SceneView* view) {
  return scene::Call(sky, [&] {
    if (!scene::IsKnown(view, offsetof(SceneView, zoom) + sizeof view->zoom))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the view is null or its size too small");
    scene::Give(DescribeView(sky->camera), view);
    if (scene::CountsFromHorizon(sky->camera)) return static_cast<int>(SCENE_OK);
    return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the view counts from no horizon");
  });
}

int scene_set_view(SceneSky* sky, const SceneView* view) {
  return scene::Call(sky, [&] {
    if (!scene::IsKnown(view, offsetof(SceneView, zoom) + sizeof view->zoom))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the view is null or its size too small");
    if (const char* const wrong = FindWrong(*view))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, std::string(wrong) + " is out of its range");
    Camera& camera = sky->camera;
    camera.SetWinRect({view->width, view->height, view->width, view->height});
    StandOnEarth(camera);
    SetMoment(view->julian_date, camera);
    SetPlace(*view, camera);
    camera.SetZoom(view->zoom);
    scene::LookTo({view->azimuth, view->altitude}, camera);
    return static_cast<int>(SCENE_OK);
  });
}

int scene_read_view(SceneSky* sky, const char* file, int32_t number) {
  return scene::Call(sky, [&] {
    if (!file || number < 0)
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "wants a file and a number from 0 on");
    const auto id = static_cast<unsigned>(number);
    if (!CommonInterfaces::SettingsData::HoldsBlock(file, kCameraRecord, id))
      return FailFile(*sky, file, "holds no such view");
    const tPoint<int> window = sky->camera.GetWinSize();
    const bool isRead = sky->camera.ReadSelf(file, id);
    sky->camera.SetWinRect({window.x, window.y, window.x, window.y});
    sky->camera.UpdateLocUTCDeltaFromTimeZone();
    if (!isRead) return FailFile(*sky, file, "the view is damaged");
    const char* const fault = sky->FindFault();
    return fault ? FailFile(*sky, file, fault) : static_cast<int>(SCENE_OK);
  });
}

int scene_save_view(SceneSky* sky, const char* file, int32_t number) {
  return scene::Call(sky, [&] {
    if (!file || number < 0)
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "wants a file and a number from 0 on");
    if (sky->camera.SaveSelfAll(file, number)) return static_cast<int>(SCENE_OK);
    return FailFile(*sky, file, "the view cannot be saved there");
  });
}

int scene_project(SceneSky* sky, const double* vectors, double* pixels, int32_t count) {
  return scene::Call(sky, [&] {
    if (!vectors || !pixels || count < 0)
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "wants two arrays and a count from 0 on");
    static_assert(sizeof(tPoint<double>) == 2 * sizeof(double));
    sky->maker->Prepare();
    auto* const points = reinterpret_cast<tPoint<double>*>(pixels);
    sky->camera.BatchRA_Dec2K2PixD(vectors, points, count);
    const double height = sky->camera.GetWinSize().y;
    for (int32_t i = 0; i < count; ++i) points[i].y = height - points[i].y;
    return static_cast<int>(SCENE_OK);
  });
}

int scene_unproject(SceneSky* sky, const double* pixels, double* vectors, int32_t count) {
  return scene::Call(sky, [&] {
    if (!vectors || !pixels || count < 0)
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "wants two arrays and a count from 0 on");
    const scene::Unprojection unprojection(sky->camera);
    for (int32_t i = 0; i < count; ++i) unprojection.Find(pixels + 2 * i, vectors + 3 * i);
    return static_cast<int>(SCENE_OK);
  });
}
