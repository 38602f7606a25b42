// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "common_interfaces/camera.h"
#include "support/camera_settings.h"
#include "support/debug_capture.h"
#include "utils/text.h"

namespace test_support {

inline const SSO_ID kEarthId(FourCC("plnt"), 3);
inline const SSO_ID kMarsId(FourCC("plnt"), 4);
inline const SSO_ID kMoonId(FourCC("moon"), 301);
inline constexpr double kKilometresPerAu = 149597870.7;

// Cameras read their homes when they are made, so the file has to be there before them.
class HomeTest : public testing::Test {
 protected:
  HomeTest() { WriteCameraDefaults(roots); }

  void WriteHomes(const std::string& text) { roots.dir.Write("work/home_params.ini", text); }
  std::string ReadHomes() { return roots.dir.Read("work/home_params.ini"); }

  TempRoots roots;
  DebugCapture debug;
};

// Stands on that object, so that homes can be stored.
inline void StandOn(CommonInterfaces::Camera& camera, const SSO_ID& object) {
  camera.CreateDefault();
  camera.SetObserver(object);
}

}  // namespace test_support
