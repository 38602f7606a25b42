// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>

#include "scene/sky_images_files.h"
#include "skyview/small_sky.h"

using host_test::SmallSky;

TEST(ImageFramesOption, EachMissingCatalogIsNamed) {
  SmallSky sky;
  host_test::WriteSkyImages(sky.dir);
  const struct {
    const char *group, *file, *line;
  } cases[] = {
      {"constellations", host_test::kConstellationFile,
       "media:skyobjects:constell_images:constell.dat: not found, which --frames-of constellations wants"},
      {"deepsky", host_test::kDeepskyFile,
       "media:skyobjects:dso_images:dsoimagestrue.txt: not found, which --frames-of deepsky wants"},
      {"milkyway", host_test::kMilkyWayFile,
       "media:skyobjects:mway_images:mway.dat: not found, which --frames-of milkyway wants"}};
  for (const auto& c : cases) {
    ASSERT_EQ(sky.Run({"--frames-of", c.group}), 0) << sky.errors.str();
    std::filesystem::remove(sky.dir.Path(c.file));
    EXPECT_EQ(sky.Run({"--frames-of", c.group}), 1);
    EXPECT_EQ(sky.GetErrorLine(), std::string("skyview: ") + c.line);
  }
}
