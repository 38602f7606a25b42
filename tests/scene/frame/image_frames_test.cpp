// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/image_frames.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "astro/coordinates.h"
#include "scene/frame_helpers.h"
#include "scene/sky_images_files.h"
#include "scene/view/view_geometry.h"
#include "support/allocation_counter.h"

using namespace scene;
using host_test::FrameFixture;

namespace {

class ImageFramesTest : public testing::Test {
 protected:
  ImageFramesTest() {
    host_test::WriteSkyImages(f.sky.dir);
    f.SetLook(190.0, 35.0);  // Orion
  }
  void Load(unsigned groups) { ASSERT_FALSE(f.frame.SetImageFrames(groups)); }
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
};

}  // namespace

TEST_F(ImageFramesTest, NoneUnlessAskedFor) {
  f.Compute();
  EXPECT_TRUE(GetLines().empty());
  Load(0);
  f.Compute();
  EXPECT_TRUE(GetLines().empty());
}

TEST_F(ImageFramesTest, CornersOfTheCatalogAreCornersOfTheOutline) {
  Load(kConstellationImages);
  f.camera.SetZoom(0.6);
  f.Compute();
  for (const auto& [ra, dec] :
       {std::pair(92.0, -12.0), std::pair(75.0, -12.0), std::pair(75.0, 15.0), std::pair(92.0, 15.0)}) {
    EXPECT_LT(DistanceFromLines(PixelOf(ra, dec)), 0.1) << ra << " " << dec;
  }
}

// Along the equator and the meridians edges are great circles; along a parallel the arc leads past it. The
// middle of the arc between two places of declination d that are 2 h apart in right ascension has the
// declination atan(tan d / cos h).
TEST_F(ImageFramesTest, EdgesAreGreatCircles) {
  f.sky.dir.Write(host_test::kConstellationFile,
                  host_test::BinaryImages({{"Ori ", {{103, -10}, {63, -10}, {63, 15}, {103, 15}}}}));
  Load(kConstellationImages);
  f.camera.SetZoom(0.4);
  f.Compute();
  const double middle =
      std::atan(std::tan(15.0 * kRadiansPerDegree) / std::cos(20.0 * kRadiansPerDegree)) / kRadiansPerDegree;
  EXPECT_NEAR(middle, 15.915, 0.001);
  EXPECT_LT(DistanceFromLines(PixelOf(83.0, middle)), 0.3);
  EXPECT_GT(DistanceFromLines(PixelOf(83.0, 15.0)), 3.0);
}

// The last corner lies near the middle of the four, 30 degrees from the others.
TEST_F(ImageFramesTest, OutlineReachesAsFarAsItsFarthestCorner) {
  f.sky.dir.Write(host_test::kConstellationFile,
                  host_test::BinaryImages({{"Ori ", {{53, 0}, {83, 15}, {113, 0}, {83, 5}}}}));
  Load(kConstellationImages);
  f.camera.SetZoom(12.0);
  for (const double ra : {53.0, 113.0}) {
    LookAt(ra, 0.0);
    f.Compute();
    EXPECT_LT(DistanceFromLines(PixelOf(ra, 0.0)), 0.1) << ra;
  }
}

// The plane that touches the sphere: the half width of 40 minutes leads north, the half height of 20 east.
TEST_F(ImageFramesTest, DeepskyImageHasItsSizeAndItsAspectRatio) {
  Load(kDeepskyImages);
  LookAt(83.82083, -5.39111);
  f.camera.SetZoom(12.0);
  f.Compute();
  const double ra = 83.82083, dec = -5.39111;
  const double north = std::atan(40.0 / 60.0 * kRadiansPerDegree) / kRadiansPerDegree;
  const double east = std::atan(20.0 / 60.0 * kRadiansPerDegree) / kRadiansPerDegree;
  EXPECT_LT(DistanceFromLines(PixelOf(ra, dec + north)), 0.5);
  EXPECT_LT(DistanceFromLines(PixelOf(ra, dec - north)), 0.5);
  EXPECT_LT(DistanceFromLines(PixelOf(ra + east / std::cos(dec * kRadiansPerDegree), dec)), 0.5);
  EXPECT_GT(DistanceFromLines(PixelOf(ra, dec + east)), 20.0);
}

TEST_F(ImageFramesTest, RotationTurnsTheWidthFromNorthToWest) {
  f.sky.dir.Write(host_test::kDeepskyFile, "42 40 5h35m17s -5g23'28\" 90 0 2 1 0\n");
  Load(kDeepskyImages);
  LookAt(83.82083, -5.39111);
  f.camera.SetZoom(12.0);
  f.Compute();
  const double ra = 83.82083, dec = -5.39111, west = 40.0 / 60.0 / std::cos(dec * kRadiansPerDegree);
  EXPECT_LT(DistanceFromLines(PixelOf(ra - west, dec)), 0.5);
  EXPECT_LT(DistanceFromLines(PixelOf(ra, dec + 20.0 / 60.0)), 0.5);
}

TEST_F(ImageFramesTest, LinesEndAtTheWindow) {
  Load(kConstellationImages | kDeepskyImages | kMilkyWayImages);
  for (const double zoom : {0.25, 0.7, 3.0, 40.0}) {
    f.camera.SetZoom(zoom);
    f.Compute();
    for (const auto& drawn : GetLines()) {
      for (const auto& p : {drawn.line.from, drawn.line.to}) {
        EXPECT_GE(p.x, -1.0);
        EXPECT_LE(p.x, 1601.0);
        EXPECT_TRUE(std::isfinite(p.y));
      }
    }
  }
}

TEST_F(ImageFramesTest, NothingOfAnImageBehindTheView) {
  Load(kConstellationImages | kDeepskyImages | kMilkyWayImages);
  f.shown.horizon = false;
  f.SetLook(10.0, -35.0);
  f.Compute();
  EXPECT_TRUE(GetLines().empty());
}

TEST_F(ImageFramesTest, AreNamedByIdentifierOrObject) {
  Load(kConstellationImages | kMilkyWayImages);
  f.camera.SetZoom(0.5);
  f.Compute();
  EXPECT_TRUE(f.HasLabel("Ori"));
  EXPECT_TRUE(f.HasLabel("MW01"));
}

TEST_F(ImageFramesTest, DeepskyImageIsNamedOnceByItsObjectAndItsLetter) {
  f.sky.dir.Write(host_test::kDeepskyFile,
                  "42 40 5h35m17s -5g23'28\" 0 0 2 1 0\n42B 10 5h40m -4g0'0\" 0 0 1 1 0\n"
                  "99 10 5h30m -4g0'0\" 0 0 1 1 0\n");
  Load(kDeepskyImages);
  LookAt(83.82083, -5.39111);
  f.camera.SetZoom(8.0);
  f.Compute();
  int nebulae = 0;
  for (const auto& label : f.frame.GetParts().labels.GetLabels()) nebulae += std::string(label.text) == "M42";
  EXPECT_EQ(nebulae, 1);
  EXPECT_TRUE(f.HasLabel("M42B"));
  EXPECT_TRUE(f.HasLabel("99")) << "of an object that the catalog lacks there is the number";
}

// The catalog's numbers carry the sub-type in the top byte, those of the images a letter.
TEST_F(ImageFramesTest, SubTypeInTheNumberOfTheObjectDoesNotMatter) {
  for (auto& object : f.catalogs.deepsky.objects) {
    if (object.number == 42) object.number |= 0x1E << 24;
  }
  Load(kDeepskyImages);
  LookAt(83.82083, -5.39111);
  f.camera.SetZoom(8.0);
  f.Compute();
  EXPECT_TRUE(std::any_of(f.frame.GetParts().labels.GetLabels().begin(),
                          f.frame.GetParts().labels.GetLabels().end(), [](const Label& label) {
                            return label.kind == LabelKind::kImageFrame && std::string(label.text) == "M42";
                          }));
}

TEST_F(ImageFramesTest, NamesKeepAboveTheGround) {
  Load(kConstellationImages);
  f.SetLook(100.0, 0.0);
  f.SetTime(2026, 1, 15, 16, 30);  // Orion rises
  f.Compute();
  for (const auto& label : f.frame.GetParts().labels.GetLabels()) {
    if (label.kind != LabelKind::kImageFrame) continue;
    EXPECT_GT(label.place.y, 480.0) << label.text;
  }
  EXPECT_FALSE(GetLines().empty());
}

TEST_F(ImageFramesTest, TinyOutlineHasNoName) {
  Load(kDeepskyImages);
  f.camera.SetZoom(0.25);
  f.Compute();
  EXPECT_FALSE(GetLines().empty());
  for (const auto& label : f.frame.GetParts().labels.GetLabels())
    EXPECT_NE(label.kind, LabelKind::kImageFrame) << label.text;
}

TEST_F(ImageFramesTest, MissingCatalogIsAnsweredAndNothingIsOutlined) {
  const std::pair<ImageGroup, const char*> cases[] = {{kConstellationImages, host_test::kConstellationFile},
                                                      {kDeepskyImages, host_test::kDeepskyFile},
                                                      {kMilkyWayImages, host_test::kMilkyWayFile}};
  for (const auto& [group, file] : cases) {
    std::filesystem::remove(f.sky.dir.Path(file));
    EXPECT_EQ(f.frame.SetImageFrames(group), group);
    EXPECT_EQ(f.frame.GetParts().imageFrames.GetCount(), 0);
  }
}

TEST_F(ImageFramesTest, DamagedCatalogsDrawWhatIsWhole) {
  const std::string whole = f.sky.dir.Read(host_test::kConstellationFile);
  for (std::size_t length = 0; length < whole.size(); ++length) {
    f.sky.dir.Write(host_test::kConstellationFile, whole.substr(0, length));
    Load(kConstellationImages);
    EXPECT_EQ(f.frame.GetParts().imageFrames.GetCount(), 0) << length;
    f.Compute();
  }
  std::string wild = whole;
  for (std::size_t at = 6; at < wild.size(); ++at) {
    wild[at] = static_cast<char>(0x7F + at * 37);
    f.sky.dir.Write(host_test::kConstellationFile, wild);
    Load(kConstellationImages);
    f.Compute();
    EXPECT_EQ(f.frame.GetParts().imageFrames.GetCount(), 1);
  }
}

TEST_F(ImageFramesTest, NothingIsAllocatedAFrame) {
  Load(kConstellationImages | kDeepskyImages | kMilkyWayImages);
  f.camera.SetZoom(0.3);
  f.Compute();
  const unsigned long long before = host_test::GetAllocationCount();
  std::size_t lines = 0;
  for (int i = 0; i < 60; ++i) {
    f.camera.SetZoom(0.3 + 0.1 * i);
    f.SetLook(160.0 + i, 30.0);
    f.Compute();
    lines += GetLines().size();
  }
  EXPECT_EQ(host_test::GetAllocationCount(), before);
  EXPECT_GT(lines, 60u);
}
