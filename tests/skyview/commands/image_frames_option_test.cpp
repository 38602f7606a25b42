// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>

#include "scene/data_root.h"
#include "scene/sky_images_files.h"
#include "skyview/commands/picture_extras.h"
#include "skyview/small_sky.h"

using namespace scene;
using namespace skyview;
using host_test::SmallSky;

TEST(ImageFramesOption, EachMissingCatalogIsNamed) {
  SmallSky sky;
  host_test::WriteSkyImages(sky.dir);
  SkyCatalogs catalogs;
  std::string error;
  ASSERT_TRUE(OpenDataRoot(sky.dir.Path("data"), "", "en", catalogs, error)) << error;
  const struct {
    ImageGroup group;
    const char *file, *line;
  } cases[] = {
      {kConstellationImages, host_test::kConstellationFile,
       "media:skyobjects:constell_images:constell.dat: not found, which --frames-of constellations wants"},
      {kDeepskyImages, host_test::kDeepskyFile,
       "media:skyobjects:dso_images:dsoimagestrue.txt: not found, which --frames-of deepsky wants"},
      {kMilkyWayImages, host_test::kMilkyWayFile,
       "media:skyobjects:mway_images:mway.dat: not found, which --frames-of milkyway wants"}};
  for (const auto& c : cases) {
    std::filesystem::remove(sky.dir.Path(c.file));
    SkyFrame frame(catalogs);
    Options options;
    options.framesOf = c.group;
    EXPECT_FALSE(SetUpExtras(options, {}, frame, error));
    EXPECT_EQ(error, c.line);
  }
  EXPECT_EQ(sky.Run({"--frames-of", "deepsky"}), 1);
  EXPECT_EQ(sky.GetErrorLine(), std::string("skyview: ") + cases[1].line);
}
