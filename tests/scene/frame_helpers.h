// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <string>

#include "astro/julian_date.h"
#include "scene/catalogs/data_root.h"
#include "scene/frame/frame_parts.h"
#include "scene/frame/sky_frame.h"
#include "scene/small_root.h"
#include "support/debug_capture.h"

namespace host_test {

// A frame over the small sky, with a camera on the Earth that every test turns where it wants.
class FrameFixture {
 public:
  FrameFixture() : m_Loaded(Load()), frame(catalogs) {
    camera.CreateDefault();
    camera.SetBasePlane(1);
    SetPlace(52.5, 13.4);
    SetTime(2026, 1, 15, 21, 0);
    SetLook(180.0, 30.0);
    SetWindow(1600, 1000);
  }

  void SetPlace(double latitude, double longitude) {
    SphCoor place = camera.GetLocation();
    place.lat = latitude * scene::kRadiansPerDegree;
    place.lon = longitude * scene::kRadiansPerDegree;
    camera.SetLocation(place);
  }
  void SetTime(int year, int month, int day, int hour, int minute) {
    CommonInterfaces::_Date time;
    DJ({year, month, day, hour, minute, 0.0}, time.day, time.fraction);
    camera.SetUniversalTime(time);
  }
  void SetLook(double azimuth, double altitude) {
    SphViewCoor angles;
    angles.lon = (360.0 - azimuth) * scene::kRadiansPerDegree;
    angles.lat = altitude * scene::kRadiansPerDegree;
    camera.SetRA_Dec(angles);
  }
  void SetWindow(int width, int height) { camera.SetWinRect({width, height, width, height}); }
  void Compute() {
    observer = scene::PrepareObserver(camera);
    frame.Compute(camera, observer, shown);
  }

  // The drawn star of that catalogue number, null when it was not drawn.
  const scene::DrawnStar* Find(int number) const {
    for (const auto& drawn : frame.GetStars()) {
      if (drawn.number == number) return &drawn;
    }
    return nullptr;
  }
  bool HasLabel(const std::string& text) const {
    for (const auto& label : frame.GetParts().labels.GetLabels()) {
      if (text == label.text) return true;
    }
    return false;
  }

  SmallRoot sky;
  test_support::DebugCapture diagnostics;
  scene::SkyCatalogs catalogs;
  CommonInterfaces::Camera camera{1};
  scene::ObserverFrame observer{};
  scene::ShownKinds shown;

 private:
  bool Load() {
    std::string error;
    return scene::OpenDataRoot(sky.dir.Path("data"), "", "en", catalogs, error);
  }
  bool m_Loaded;

 public:
  scene::SkyFrame frame;
};

}  // namespace host_test
