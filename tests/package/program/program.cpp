// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The smallest program that uses all three libraries from an installed package.
#include <astro/astro.h>
#include <common_interfaces/common_interfaces.h>
#include <utils/utils.h>

#include <cmath>
#include <cstdio>

int main() {
  CommonInterfaces::Camera camera(1);
  camera.CreateDefault();
  camera.SetWinRect({800, 600, 800, 600});
  camera.SetZoom(10.0);

  int day = 0;
  double fraction = 0.0;
  CalendarDate epoch;
  epoch.year = 2000;
  epoch.hour = 12;
  DJ(epoch, day, fraction);

  const bool works =
      camera.GetDarkMagObject(FourCC("star")) == 100 && day == 2451545 && std::fabs(fraction) < 1e-12;
  std::printf("star limit at zoom 10: %d, J2000 day: %d\n", camera.GetDarkMagObject(FourCC("star")), day);
  return works ? 0 : 1;
}
