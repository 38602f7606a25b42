// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>

#include "common_interfaces/camera.h"
#include "common_interfaces/status_strings.h"
#include "common_interfaces/units.h"
#include "skydata/strings/samples.h"

namespace skydata {
namespace {

using CommonInterfaces::Camera;

constexpr double kDegree = 3.14159265358979323846 / 180.0;
constexpr int kMovingTypes = 12, kInSpace = 3;
constexpr int kPlaceOnSurface = 7208, kPlaceInSpace = 7209;  // formats of coordinates
// Captions by way of moving.
constexpr const char* kCaptions[kMovingTypes] = {"1157", "1158", "1125", "1159", "1127", "1131",
                                                 "1132", "1141", "1142", "1152", "1127", "1127"};

// A copy of a camera has no settings: a change of the way of moving changes nothing else.
class SampleCamera : public Camera {
 public:
  explicit SampleCamera(int movingType) : Camera(Camera(1)) {
    SetMovingType(static_cast<char>(movingType), false);
  }
};

void AddLocations(TextSamples& samples) {
  for (int type = 0; type < kMovingTypes; ++type) {
    SampleCamera camera(type);
    camera.SetLocationName("Mars");
    samples.push_back(
        {kCaptions[type], "place, way of moving " + std::to_string(type), GetLocationString(&camera)});
  }
  SampleCamera camera(kInSpace);
  camera.SetLocationName("Mars");
  camera.SetBelowSurface(true);
  samples.push_back({"1159 14300", "place below the surface", GetLocationString(&camera)});
}

void AddCoordinates(int movingType, TextSamples& samples) {
  const bool isInSpace = movingType >= kInSpace;
  const std::string format = std::to_string(isInSpace ? kPlaceInSpace : kPlaceOnSurface);
  for (const double longitude : {8.6821, -70.4042}) {
    for (const double latitude : {50.1109, -24.6272}) {
      SampleCamera camera(movingType);
      SphCoor place;
      place.lon = longitude * kDegree;
      place.lat = latitude * kDegree;
      camera.SetLocation(place);
      samples.push_back({format + (longitude < 0 ? " 965" : " 966") + (latitude < 0 ? " 968" : " 967"),
                         isInSpace ? "coordinates in space" : "coordinates near a surface",
                         GetPositionCoordString(&camera, kPlaceOnSurface, kPlaceInSpace)});
    }
  }
}

void AddDistances(int movingType, TextSamples& samples) {
  const bool isInSpace = movingType >= kInSpace;
  // By unit: a mountain's height in metres, the Moon, and so on outwards.
  static constexpr double kDistances[] = {8848.86, 384400.0, 384.4, 227.9, 30.07, 4.2465, 1.3020, 778.0};
  for (int unit = 0; unit < 8; ++unit) {
    SampleCamera camera(movingType);
    SphCoor place;
    place.dist = CommonInterfaces::ConvertUnitToAU(kDistances[unit], static_cast<char>(unit));
    place.distUnits = static_cast<unsigned char>(unit);
    camera.SetLocation(place);
    samples.push_back({(isInSpace ? "7212 " : "7211 ") + std::to_string(1160 + unit),
                       isInSpace ? "distance in space" : "distance near a surface",
                       GetDistanceString(&camera)});
  }
}

}  // namespace

void AddPlaceSamples(TextSamples& samples) {
  AddLocations(samples);
  for (const int movingType : {0, kInSpace}) {
    AddCoordinates(movingType, samples);
    AddDistances(movingType, samples);
  }
}

}  // namespace skydata
