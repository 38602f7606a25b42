// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "paint/font_extents.h"
#include "scene/catalogs/language.h"
#include "scene/frame/caption.h"
#include "scene/frame_helpers.h"
#include "scene/view/view_geometry.h"
#include "skyview/reports/status.h"

using namespace scene;

TEST(CaptionWidth, CaptionFitsInTheWidthInEveryLanguage) {
  host_test::FrameFixture f;
  const paint::FontExtents font;
  std::string error;
  f.camera.SetTimeZoneName("America/Argentina/Buenos_Aires", true);
  f.camera.SetCenterView(SSO_ID(FourCC("star"), 5459));
  for (const char* language : {"de", "ru", "en"}) {
    ASSERT_TRUE(SwitchLanguage(
        f.sky.dir.Path("data"), language, [] {}, error))
        << error;
    const auto status = skyview::MakeStatus(f.camera, f.catalogs);
    for (const auto& [width, height] : {std::pair(1600, 1000), std::pair(640, 480), std::pair(500, 1500)}) {
      const double unit = GetPictureUnit(width, height);
      const auto lines = MakeCaption(status, width, height);
      EXPECT_GE(lines.size(), 2u);
      for (const auto& line : lines) {
        EXPECT_LE(kCaptionLeft * unit + font.GetWidth(line.c_str(), kCaptionFont * unit, 0), width) << line;
      }
    }
  }
}
