// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Saved views: a camera restored from any file, looked at, saved, and restored from that.
#include <cmath>
#include <string>

#include "common_interfaces/camera.h"
#include "fuzz/scratch.h"
#include "support/camera_settings.h"

namespace {

using CommonInterfaces::Camera;
using fuzz::Require;

void WriteDefaults() {
  const std::string path = fuzz::Scratch::Get().Write("data/filters.data", nullptr, 0);
  test_support::AppendBlock(path, test_support::kCAMR, CommonInterfaces::SettingsData::kDefaultsTag,
                            test_support::kCameraSection, test_support::CameraFields());
}

void Look(Camera& camera) {
  camera.SetWinRect({800, 600, 800, 600});
  constexpr double kDirection[] = {0.6, 0.0, 0.8};
  tPoint<double> pixel{};
  camera.RA_Dec2K2PixD(kDirection, &pixel);
  camera.SetRA_Dec(camera.GetViewAngles());
  camera.SetLocation(camera.GetLocation());
  camera.SetZoom(camera.GetZoom());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const fuzz::Scratch& scratch = fuzz::Scratch::Get();
  static const bool hasDefaults = (WriteDefaults(), true);
  Require(hasDefaults, "the defaults are written once");
  const std::string path = scratch.Write("work/view.data", data, size);
  for (const unsigned id : {1u, test_support::kCAMR}) {
    Camera camera(1);
    camera.CreateDefault();
    const double zoom = camera.GetZoom();
    if (!camera.ReadSelf(path.c_str(), id))
      Require(camera.GetZoom() == zoom, "what is refused changes nothing");
    Look(camera);
    scratch.Remove("work/again.data");
    Require(camera.SaveSelfAll("again.data", 3), "a view can be saved");
    Camera again(1);
    again.CreateDefault();
    Require(again.ReadSelf("again.data", 3), "and restored");
    if (std::isfinite(camera.GetZoom())) Require(again.GetZoom() == camera.GetZoom(), "with its zoom");
  }
  return 0;
}
