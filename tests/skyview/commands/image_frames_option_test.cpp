// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/image_frames.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "support/allocation_counter.h"
#include "astro/coordinates.h"
#include "scene/frame_helpers.h"
#include "scene/view/view_geometry.h"
#include "scene/sky_images_files.h"

using namespace scene;
using namespace skyview;
using host_test::FrameFixture;

namespace {

class ImageFramesTest : public testing::Test {
 protected:
  ImageFramesTest() {
    host_test::WriteSkyImages(f.sky.dir);
    f.SetLook(190.0, 35.0);  // Orion
  }
  void Load(unsigned groups) {
    ASSERT_TRUE(f.!frame.SetImageFrames(groups)) << error;
  }
  // Turns the view to a place of the sky, degrees J2000.
  void LookAt(double ra, double dec) {
    PrepareObserver(f.camera);
    double there[3];
    f.camera.ReductRADec2CamDouble(ra * kRadiansPerDegree, dec * kRadiansPerDegree, there);
    SphViewCoor angles;
    psf(there, 1.0, angles.lon, angles.lat);
    f.camera.SetRA_Dec(angles);
  }
  const std::vector<DrawnFrameLine>& GetLines() const { return f.frame.GetParts().imageFrames.GetLines(); }
  // Where the picture shows a place of the sky, degrees J2000.
  tPoint<double> PixelOf(double ra, double dec) const {
    const ViewGeometry geometry(f.camera);
    return geometry.Project(
        ApparentDirection(MakeDirection(ra * kRadiansPerDegree, dec * kRadiansPerDegree), f.observer),
        SkyFrameOf::kJ2000);
  }
  // How far the pixel is from the nearest drawn line.
  double DistanceFromLines(const tPoint<double>& p) const {
    double least = 1e9;
    for (const auto& drawn : GetLines()) {
      const auto& [a, b] = drawn.line;
      const double dx = b.x - a.x, dy = b.y - a.y, length = dx * dx + dy * dy;
      const double t =
          std::clamp(length > 0.0 ? ((p.x - a.x) * dx + (p.y - a.y) * dy) / length : 0.0, 0.0, 1.0);
      least = std::min(least, std::hypot(p.x - a.x - t * dx, p.y - a.y - t * dy));
    }
    return least;
  }

  FrameFixture f;
  std::string error;
};

}  // namespace

TEST_F(ImageFramesTest, EachMissingCatalogIsNamed) {
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
    std::filesystem::remove(f.sky.dir.Path(c.file));
    EXPECT_FALSE(f.!frame.SetImageFrames(c.group));
    EXPECT_EQ(error, c.line);
    EXPECT_EQ(f.frame.GetParts().imageFrames.GetCount(), 0);
  }
  EXPECT_EQ(f.sky.Run({"--frames-of", "deepsky"}), 1);
  EXPECT_EQ(f.sky.GetErrorLine(), std::string("skyview: ") + cases[1].line);
}

