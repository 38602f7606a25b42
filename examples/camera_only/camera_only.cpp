// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The camera without the scene: restores a saved view, tells the camera how the sky stands over its place at
// that moment, and projects ten stars: camera_only DATA_ROOT
#include <astro/astro.h>
#include <common_interfaces/common_interfaces.h>
#include <utils/utils.h>

#include <cmath>
#include <cstdio>

namespace {

constexpr int kWidth = 1600, kHeight = 1000;
constexpr double kRadiansPerDegree = 3.14159265358979323846 / 180.0;

// J2000 places to a thousandth of a degree; visual magnitudes (Bright Star Catalogue, Hoffleit & Warren
// 1991).
struct Star {
  const char* name;
  double ra, dec;  // degrees
  double magnitude;
};
constexpr Star kStars[] = {
    {"Betelgeuse", 88.793, 7.407, 0.50}, {"Rigel", 78.634, -8.202, 0.12},
    {"Bellatrix", 81.283, 6.350, 1.64},  {"Mintaka", 83.002, -0.299, 2.23},
    {"Alnilam", 84.053, -1.202, 1.70},   {"Alnitak", 85.190, -1.943, 2.05},
    {"Saiph", 86.939, -9.670, 2.06},     {"Sirius", 101.287, -16.716, -1.46},
    {"Aldebaran", 68.980, 16.509, 0.85}, {"Procyon", 114.825, 5.225, 0.38},
};

// From J2000 axes to the horizon of the camera's place: what the camera's view angles count from in this
// view.
void SetSky(CommonInterfaces::Camera& camera) {
  CommonInterfaces::_Date universal, dynamical;
  camera.GetUniversalTime(universal);
  camera.GetTime(dynamical);
  const double deltaT = ET_UT::Get(universal.day, universal.fraction);
  const SphCoor& place = camera.GetLocation();
  double precession[9], horizon[9], reduction[9];
  PrecessionNutationMatrix(dynamical.day + dynamical.fraction, precession);
  HorizonMatrix(ApparentSiderealTime(universal.day, universal.fraction, deltaT) + place.lon, place.lat,
                horizon);
  M3prod(horizon, precession, reduction);
  camera.SetReductionMatrix(reduction);
}

void Print(const Star& star, const CommonInterfaces::Camera& camera) {
  double direction[3];
  sfp(1.0, star.ra * kRadiansPerDegree, star.dec * kRadiansPerDegree, direction);
  tPoint<double> pixel;  // from the lower left corner, y up
  camera.RA_Dec2K2PixD(direction, &pixel);
  const long x = std::lround(pixel.x), y = std::lround(kHeight - pixel.y);
  const bool inside = x >= 0 && x < kWidth && y >= 0 && y < kHeight;
  std::printf("%-10s %5.2f  %5ld %5ld%s\n", star.name, star.magnitude, x, y, inside ? "" : "  outside");
}

}  // namespace

int main(int argumentCount, char** arguments) {
  if (argumentCount != 2) {
    std::fprintf(stderr, "usage: camera_only DATA_ROOT\n");
    return 2;
  }
  ZentharPath::SetRoots(arguments[1], "");
  CommonInterfaces::Camera camera(1);
  camera.CreateDefault();
  if (!camera.ReadSelf("views:orion.data", 1)) {
    std::fprintf(stderr, "camera_only: views:orion.data: holds no view 1\n");
    return 1;
  }
  camera.SetWinRect({kWidth, kHeight, kWidth, kHeight});
  SetSky(camera);
  for (const Star& star : kStars) Print(star, camera);
  // A magnitude code is (magnitude + 2) * 10.
  std::printf("stars down to magnitude %.1f\n", camera.GetDarkMagObject(FourCC("star")) * 0.1 - 2.0);
  return 0;
}
