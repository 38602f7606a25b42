// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>

#include "paint/picture_file.h"
#include "skyview/small_sky.h"

using host_test::SmallSky;

TEST(LightCurveCommand, CommandDrawsTheCurve) {
  SmallSky sky;
  const std::string svg = sky.dir.Path("algol.svg");
  const int code = sky.Run({"curve", "Algol", "--time", "2026-01-15T00:00Z", "--out", svg});
  EXPECT_EQ(code, paint::CanDraw() ? 0 : 1) << sky.errors.str();
  EXPECT_EQ(std::filesystem::exists(svg), paint::CanDraw());
  if (paint::CanDraw()) {
    EXPECT_TRUE(sky.Printed("Algol (0x48780B23): JD 2461052.633 to 2461058.367, magnitude 2.11 to 3.49\n"))
        << sky.output.str();
  }
}

TEST(LightCurveCommand, CommandSaysWhatItWants) {
  SmallSky sky;
  EXPECT_EQ(sky.Run({"curve", "Algol"}), 2);
  EXPECT_NE(sky.GetErrorLine().find("curve: wants --out"), std::string::npos);
  EXPECT_EQ(sky.Run({"curve", "Sirius", "--out", "a.svg"}), 2);
  EXPECT_NE(sky.GetErrorLine().find("one of Algol, Sheliak"), std::string::npos) << sky.errors.str();
}
