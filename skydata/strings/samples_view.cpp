// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cstring>

#include "common_interfaces/camera.h"
#include "common_interfaces/status_strings.h"
#include "skydata/strings/samples.h"
#include "utils/text.h"

namespace skydata {
namespace {

using CommonInterfaces::Camera;

constexpr double kDegree = 3.14159265358979323846 / 180.0;
constexpr int kByHours = 7216, kByDegrees = 7217, kByOther = 7218;  // formats of directions

void AddCentres(TextSamples& samples) {
  Camera camera(1);
  SSO_ID object(FourCC("plnt"), 5);
  std::strcpy(object.name, "Jupiter");
  camera.SetCenterView(object);
  samples.push_back({"7214", "centred object", GetCenterOnString(&camera)});
  camera.SetDirectionLock(true);
  samples.push_back({"7215", "object that the view is locked on", GetCenterOnString(&camera)});
}

void AddDirections(TextSamples& samples) {
  static constexpr struct {
    double longitude, latitude;
    const char* use;
  } kAngles[] = {{88.793, 7.407, ""},
                 {0.0, -5.0 / 60.0, ", minutes below 0"},
                 {359.9999, -0.5 / 3600.0, ", seconds below 0"}};
  static constexpr const char* kModes[] = {"direction by hours", "direction at the horizon",
                                           "direction from any other plane"};
  for (int mode = 0; mode < 3; ++mode) {
    for (const auto& angles : kAngles) {
      Camera camera(1);
      SphViewCoor direction = camera.GetViewAngles();
      direction.lon = angles.longitude * kDegree;
      direction.lat = angles.latitude * kDegree;
      camera.SetRA_Dec(direction);
      camera.SetAimingDispType(static_cast<unsigned char>(mode));
      samples.push_back({std::to_string(kByHours + mode), std::string(kModes[mode]) + angles.use,
                         GetDirectionString(&camera, kByHours, kByDegrees, kByOther)});
    }
  }
}

void AddPlanes(TextSamples& samples) {
  for (int plane = 0; plane < 4; ++plane) {
    Camera camera(1);
    camera.SetBasePlane(static_cast<unsigned char>(plane));
    samples.push_back({"15400 " + std::to_string(5011 + plane), "reference plane", GetRefPlane(&camera)});
  }
}

void AddSlopes(TextSamples& samples) {
  for (const double slope : {30.0, -12.0}) {
    Camera camera(1);
    SphViewCoor direction = camera.GetViewAngles();
    direction.slope = slope * kDegree;
    camera.SetRA_Dec(direction);
    samples.push_back({"7219", "slope", GetSlopeString(&camera)});
  }
}

void AddZooms(TextSamples& samples) {
  for (const double zoom : {1.0, 200.0, 40000.0}) {  // degrees, minutes and seconds across
    Camera camera(1);
    camera.SetZoom(zoom);
    camera.SetWinRect({1600, 900, 1600, 900});
    samples.push_back({"7220", "zoom", GetZoomString(&camera)});
    samples.push_back({"7227", "field of view", GetFoV(&camera)});
  }
}

}  // namespace

void AddViewSamples(TextSamples& samples) {
  AddCentres(samples);
  AddDirections(samples);
  AddPlanes(samples);
  AddSlopes(samples);
  AddZooms(samples);
}

}  // namespace skydata
