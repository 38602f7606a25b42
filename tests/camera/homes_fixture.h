// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "camera/home_fixture.h"
#include "camera/view_helpers.h"

namespace test_support {

inline SphCoor Place(double longitude, double latitude, double distance = 0.0) {
  SphCoor place;
  place.dist = distance;
  place.lon = longitude * kDegree;
  place.lat = latitude * kDegree;
  place.coorSys = 2;
  return place;
}

class HomesTest : public HomeTest {
 protected:
  HomesTest() : camera(1) { StandOn(camera, kEarthId); }
  const CommonInterfaces::HomeParameters& Home(const SSO_ID& observer = kEarthId) {
    static const CommonInterfaces::HomeParameters none;
    const CommonInterfaces::HomeParameters* const home = camera.FindHome(observer);
    EXPECT_NE(home, nullptr);
    return home ? *home : none;
  }
  CommonInterfaces::Camera camera;
};

}  // namespace test_support
