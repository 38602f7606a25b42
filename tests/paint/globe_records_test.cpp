// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "paint/globe_pixels.h"
#include "paint/picture_file.h"
#include "paint/record_fixture.h"
#include "paint/surface_map.h"
#include "support/debug_capture.h"
#include "support/temp_dir.h"

using namespace scene;
using namespace host_test;

namespace {

// A globe of radius 40 in the middle of the picture, its north up, longitude 0 towards the viewer: the body's
// x is the picture's z, y its x, z its -y.
GlobeRecord MakeGlobe(float sunX, float sunY, float cosPhase) {
  GlobeRecord globe = {};
  globe.disc = DiscRecord{100.0f, 50.0f, 40.0f, sunX, sunY, cosPhase, kRed, {40, 0, 0, 255}, {}, {}};
  const float axes[9] = {0, 0, 1, 1, 0, 0, 0, -1, 0};
  std::copy(axes, axes + 9, globe.toBody);
  globe.map = -1;
  return globe;
}

// The same, turned so that the pole is `tilt` towards the viewer.
void Tilt(GlobeRecord& globe, double tilt) {
  const auto c = static_cast<float>(std::cos(tilt)), s = static_cast<float>(std::sin(tilt));
  const float axes[9] = {0, s, c, 1, 0, 0, 0, -c, s};
  std::copy(axes, axes + 9, globe.toBody);
}

class GlobeRecords : public Records {};

// The size of the one image of an SVG file, in picture elements.
std::pair<int, int> FindImageSize(const DisplayList& picture) {
  std::string bytes, error;
  EXPECT_TRUE(paint::MakeSvg(picture, bytes, error)) << error;
  const auto at = bytes.find("<image ");
  EXPECT_NE(at, bytes.npos);
  EXPECT_EQ(bytes.find("<image ", at + 1), bytes.npos);
  const auto read = [&](const std::string& name) {
    return std::atoi(bytes.c_str() + bytes.find(name, at) + name.size());
  };
  return {read(" width=\""), read(" height=\"")};
}

double Light(const paint::GlobePixel& pixel) { return static_cast<double>(pixel.red); }

}  // namespace

TEST_F(GlobeRecords, FullOneIsLitAllOver) {
  list.Add(Layer::kBodies, MakeGlobe(1.0f, 0.0f, 1.0f));
  const Painted picture(list);
  EXPECT_EQ(picture.At(100, 50), kRedPixel);
  EXPECT_NEAR(picture.At(138, 50).red, 255, 2);
  EXPECT_EQ(picture.At(142, 50), kBlack);
  EXPECT_EQ(picture.At(100, 8), kBlack);
}

// Globes a thousand times as large as the picture, whose limbs cross it: only what shows is drawn, at its
// full fineness.
TEST_F(GlobeRecords, LimbOfAHugeOneIsSharp) {
  GlobeRecord right = MakeGlobe(1.0f, 0.0f, 1.0f);
  right.disc.x = 100100.0f;
  right.disc.radius = 100000.0f;
  list.Add(Layer::kBodies, right);
  const Painted across(list);
  EXPECT_EQ(across.At(97, 50), kBlack);
  EXPECT_EQ(across.At(103, 50), kRedPixel);

  list.Begin(200, 100, 1.0);
  GlobeRecord below = MakeGlobe(1.0f, 0.0f, 1.0f);
  below.disc.y = 100050.0f;
  below.disc.radius = 100000.0f;
  list.Add(Layer::kBodies, below);
  const Painted down(list);
  EXPECT_EQ(down.At(100, 47), kBlack);
  EXPECT_EQ(down.At(100, 53), kRedPixel);
}

// A window whose pixels are halves of the list's: the limb is as sharp in it as elsewhere.
TEST_F(GlobeRecords, LimbIsSharpWhereTheListIsPaintedLarger) {
  list.Add(Layer::kBodies, MakeGlobe(1.0f, 0.0f, 1.0f));
  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, 400, 200);
  cairo_t* context = cairo_create(surface);
  cairo_scale(context, 2.0, 2.0);
  paint::PaintDisplayList(list, context);
  cairo_surface_flush(surface);
  const auto* const row = reinterpret_cast<const std::uint32_t*>(
      cairo_image_surface_get_data(surface) + 100 * cairo_image_surface_get_stride(surface));
  EXPECT_EQ(row[281] & 0xFFFFFF, 0u);
  EXPECT_EQ(row[118] & 0xFFFFFF, 0u);
  EXPECT_GT(row[278] >> 16 & 0xFF, 240u);
  EXPECT_GT(row[121] >> 16 & 0xFF, 240u);
  cairo_destroy(context);
  cairo_surface_destroy(surface);
}

// Files of lines have no pixels of their own. The image reaches 2 pixels beyond the globe: from 58 to 142 and
// from 8 to 92, and of what crosses the edges of the picture as far as these.
TEST_F(GlobeRecords, ImageInAFileOfLinesIsTwiceAsFineAndAsLargeAsWhatShows) {
  list.Add(Layer::kBodies, MakeGlobe(1.0f, 0.0f, 1.0f));
  EXPECT_EQ(FindImageSize(list), std::pair(168, 168));
  for (const auto& [x, y, width, height] :
       {std::tuple(0.0f, 0.0f, 84, 84), {10.0f, 20.0f, 104, 124}, {200.0f, 100.0f, 84, 84}}) {
    list.Begin(200, 100, 1.0);
    GlobeRecord globe = MakeGlobe(1.0f, 0.0f, 1.0f);
    globe.disc.x = x;
    globe.disc.y = y;
    list.Add(Layer::kBodies, globe);
    EXPECT_EQ(FindImageSize(list), std::pair(width, height)) << x;
  }
}

// Twice as fine would be 16,384 of them.
TEST_F(GlobeRecords, ImageInAFileOfLinesHasAtMost8192ElementsASide) {
  GlobeRecord globe = MakeGlobe(1.0f, 0.0f, 1.0f);
  globe.disc.radius = 100000.0f;
  list.Begin(8192, 3, 1.0);
  list.Add(Layer::kBodies, globe);
  EXPECT_EQ(FindImageSize(list), std::pair(8192, 3));
  list.Begin(3, 8192, 1.0);
  list.Add(Layer::kBodies, globe);
  EXPECT_EQ(FindImageSize(list), std::pair(3, 8192));

  // Of one whose limb is the lower, or the right, half of the picture no more than that counts.
  globe.disc.y = 4096.0f + 100002.0f;
  list.Begin(3, 8192, 1.0);
  list.Add(Layer::kBodies, globe);
  EXPECT_EQ(FindImageSize(list), std::pair(6, 8192));
  globe.disc.x = 4096.0f + 100002.0f;
  globe.disc.y = 1.0f;
  list.Begin(8192, 3, 1.0);
  list.Add(Layer::kBodies, globe);
  EXPECT_EQ(FindImageSize(list), std::pair(8192, 6));
}

// On a sheet ten times as large as the list: 84 pixels of it, 8 elements each.
TEST_F(GlobeRecords, ImageOnALargeSheetHasAtMostEightElementsAPixel) {
  list.Add(Layer::kBodies, MakeGlobe(1.0f, 0.0f, 1.0f));
  std::string bytes, error;
  ASSERT_TRUE(paint::MakePdf(list, bytes, error, paint::Sheet{2000.0, 1000.0, 0.0})) << error;
  EXPECT_NE(bytes.find("/Width 672\n"), bytes.npos);
  EXPECT_NE(bytes.find("/Height 672\n"), bytes.npos);
}

TEST_F(GlobeRecords, OneBesideThePicturePaintsNothing) {
  for (const auto& [x, y] : {std::pair(-50.0f, 50.0f), {250.0f, 50.0f}, {100.0f, -50.0f}, {100.0f, 150.0f}}) {
    list.Begin(200, 100, 1.0);
    GlobeRecord globe = MakeGlobe(1.0f, 0.0f, 1.0f);
    globe.disc.x = x;
    globe.disc.y = y;
    list.Add(Layer::kBodies, globe);
    const Painted picture(list);
    EXPECT_TRUE(picture.IsGood());
    EXPECT_TRUE(picture.IsBlack()) << x << " " << y;
  }
}

TEST_F(GlobeRecords, OneThatFillsThePictureReachesItsEdges) {
  GlobeRecord globe = MakeGlobe(1.0f, 0.0f, 1.0f);
  globe.disc.radius = 1000.0f;
  list.Add(Layer::kBodies, globe);
  const Painted picture(list);
  for (const auto& [x, y] : {std::pair(0, 0), {199, 0}, {0, 99}, {199, 99}, {100, 0}, {0, 50}})
    EXPECT_EQ(picture.At(x, y), kRedPixel) << x << " " << y;
}

// The cosine of a full one may be rounded to more than 1.
TEST_F(GlobeRecords, PhaseBeyondFullByRoundingIsFull) {
  const GlobeRecord globe = MakeGlobe(1.0f, 0.0f, 1.0000001f);
  EXPECT_NEAR(Light(paint::GlobeShader(globe, {}, nullptr).Shade(0.5, 0.0, 0.01)), 1.0, 1e-6);
}

TEST_F(GlobeRecords, HalfIsLitOnTheSideOfTheSunAndTheNightKeepsTheDarkColour) {
  list.Add(Layer::kBodies, MakeGlobe(-1.0f, 0.0f, 0.0f));
  const Painted picture(list);
  EXPECT_GT(picture.At(70, 50).red, 240);
  EXPECT_EQ(picture.At(130, 50), (Pixel{40, 0, 0}));
  // The terminator is soft: light grows with the height of the Sun.
  EXPECT_LT(picture.At(98, 50).red, picture.At(92, 50).red);
  EXPECT_LT(picture.At(92, 50).red, picture.At(80, 50).red);
}

TEST_F(GlobeRecords, SkyShinesBeforeTheNight) {
  GlobeRecord globe = MakeGlobe(-1.0f, 0.0f, 0.0f);
  globe.air = {60, 90, 140, 255};
  list.Add(Layer::kBodies, globe);
  const Painted picture(list);
  EXPECT_EQ(picture.At(130, 50), (Pixel{60, 90, 140}));
  EXPECT_GT(picture.At(70, 50).red, 240);
  EXPECT_EQ(picture.At(70, 50).blue, 140) << "and before the day";
}

// By the formula: limb darkening of 0.6 leaves 0.4 + 0.6 mu, mu 0.6 at 0.8 of the radius; to the power of
// 0.6.
TEST_F(GlobeRecords, LimbIsDarker) {
  GlobeRecord globe = MakeGlobe(1.0f, 0.0f, 1.0f);
  globe.limbDarkening = 0.6f;
  const paint::GlobeShader shader(globe, {}, nullptr);
  EXPECT_NEAR(Light(shader.Shade(0.0, 0.0, 0.01)), 1.0, 1e-6);
  EXPECT_NEAR(Light(shader.Shade(0.8, 0.0, 0.01)), std::pow(0.4 + 0.6 * 0.6, 0.6), 1e-6);
}

TEST_F(GlobeRecords, FlattenedOneIsLowerAlongItsAxis) {
  GlobeRecord globe = MakeGlobe(1.0f, 0.0f, 1.0f);
  globe.flattening = 0.5f;
  const paint::GlobeShader shader(globe, {}, nullptr);
  EXPECT_EQ(shader.Shade(0.0, 0.45, 0.01).opacity, 1.0f);
  EXPECT_EQ(shader.Shade(0.0, 0.55, 0.01).opacity, 0.0f);
  EXPECT_EQ(shader.Shade(0.95, 0.0, 0.01).opacity, 1.0f);
}

// A spheroid half as high as wide, lit from the right. At (0.6, 0.2) it stands sqrt(1 - 0.36 - 0.16) towards
// the viewer, with the normal (0.48 ^ 0.5, 0.6, 0.2 / 0.5 ^ 2) in its own axes.
TEST_F(GlobeRecords, FlattenedOneIsLitByItsOwnNormals) {
  GlobeRecord globe = MakeGlobe(1.0f, 0.0f, 0.0f);
  globe.flattening = 0.5f;
  const double length = std::sqrt(0.48 + 0.36 + 0.64), toViewer = std::sqrt(0.48) / length,
               toSun = 0.6 / length;
  EXPECT_NEAR(Light(paint::GlobeShader(globe, {}, nullptr).Shade(0.6, -0.2, 0.01)),
              std::pow(2.0 * toSun / (toSun + toViewer), 0.6), 1e-6);
}

// Opened by 30 degrees, the ring of 1.5 to 2 radii reaches from 0.75 to 1 above and below the middle, and to
// 2 beside it.
TEST_F(GlobeRecords, RingLiesBehindTheGlobeAboveAndBeforeItBelow) {
  GlobeRecord globe = MakeGlobe(1.0f, 0.0f, 1.0f);
  Tilt(globe, 0.5235987755982988);
  globe.ringInner = 1.5f;
  globe.ringOuter = 2.0f;
  const std::vector<Rgba> ring(64, {0, 255, 0, 255});
  const paint::GlobeShader shader(globe, ring, nullptr);
  EXPECT_NEAR(shader.Shade(1.75, 0.0, 0.01).green, 1.0, 0.02);
  EXPECT_EQ(shader.Shade(2.1, 0.0, 0.01).opacity, 0.0f);
  EXPECT_EQ(shader.Shade(1.3, 0.0, 0.01).opacity, 0.0f);
  EXPECT_GT(shader.Shade(0.0, 0.87, 0.01).green, 0.9f) << "before the globe";
  EXPECT_EQ(shader.Shade(0.0, -0.87, 0.01).green, 0.0f) << "behind it";
  EXPECT_DOUBLE_EQ(shader.GetReach(), 2.0);
}

// The Sun stands to the left, level with the ring's lit side: the globe's shadow falls on the ring to the
// right.
TEST_F(GlobeRecords, GlobeThrowsItsShadowOnTheRing) {
  GlobeRecord globe = MakeGlobe(-1.0f, 0.0f, 0.0f);
  Tilt(globe, 0.5235987755982988);
  globe.ringInner = 1.5f;
  globe.ringOuter = 2.0f;
  globe.disc.sunX = -0.98058f;  // and a little above, so that it lights the side we see
  globe.disc.sunY = -0.19612f;
  const std::vector<Rgba> ring(64, {0, 255, 0, 255});
  const paint::GlobeShader shader(globe, ring, nullptr);
  EXPECT_GT(shader.Shade(-1.75, 0.0, 0.01).green, 0.9f);
  EXPECT_LT(shader.Shade(1.75, 0.0, 0.01).green, 0.1f);
}

// Seen from above the pole, in the light of the ring's own plane: a quarter of it, and of that 6 % in the
// shadow, which is as wide as the globe.
TEST_F(GlobeRecords, ShadowOnTheRingEndsWhereTheGlobeDoes) {
  GlobeRecord globe = MakeGlobe(-1.0f, 0.0f, 0.0f);
  const float axes[9] = {1, 0, 0, 0, -1, 0, 0, 0, 1};
  std::copy(axes, axes + 9, globe.toBody);
  globe.ringInner = 1.5f;
  globe.ringOuter = 2.0f;
  const std::vector<Rgba> ring(64, {0, 255, 0, 255});
  const paint::GlobeShader shader(globe, ring, nullptr);
  EXPECT_NEAR(shader.Shade(1.5, 0.999, 0.01).green, 0.25 * 0.06, 1e-4);
  EXPECT_NEAR(shader.Shade(1.5, 1.0, 0.01).green, 0.25, 1e-4);
  EXPECT_NEAR(shader.Shade(-1.5, 0.999, 0.01).green, 0.25, 1e-4) << "on the side of the Sun";
}

// In the globe's shadow 6 % of the ring's light are left, and before it stands the sky: 90 + 0.06 * 255 * (1
// - 90 / 255).
TEST_F(GlobeRecords, SkyShinesBeforeTheShadowOnTheRing) {
  GlobeRecord globe = MakeGlobe(-0.98058f, -0.19612f, 0.0f);
  Tilt(globe, 0.5235987755982988);
  globe.ringInner = 1.5f;
  globe.ringOuter = 2.0f;
  globe.air = {60, 90, 140, 255};
  const std::vector<Rgba> ring(64, {0, 255, 0, 255});
  const paint::GlobePixel pixel = paint::GlobeShader(globe, ring, nullptr).Shade(1.75, 0.0, 0.01);
  EXPECT_NEAR(255.0 * pixel.red, 60.0, 0.5);
  EXPECT_NEAR(255.0 * pixel.green, 99.9, 0.5);
  EXPECT_NEAR(255.0 * pixel.blue, 140.0, 0.5);
}

// Edge-on to the Sun it is lit from neither side: a quarter of the light is what shines through.
TEST_F(GlobeRecords, RingInTheLightOfItsOwnPlaneIsDarkFromBothSides) {
  const std::vector<Rgba> ring(64, {0, 255, 0, 255});
  for (const double tilt : {0.5235987755982988, -0.5235987755982988}) {
    GlobeRecord globe = MakeGlobe(-1.0f, 0.0f, 0.0f);
    Tilt(globe, tilt);
    globe.ringInner = 1.5f;
    globe.ringOuter = 2.0f;
    EXPECT_NEAR(paint::GlobeShader(globe, ring, nullptr).Shade(-1.75, 0.0, 0.01).green, 0.25, 1e-6) << tilt;
  }
}

TEST_F(GlobeRecords, RingThrowsItsShadowOnTheGlobe) {
  GlobeRecord globe =
      MakeGlobe(0.0f, -1.0f, 0.8660254f);  // 30 degrees above the ring's plane, which is seen edge-on
  globe.disc.dark = {0, 0, 0, 255};
  globe.ringInner = 1.05f;
  globe.ringOuter = 3.0f;
  const std::vector<Rgba> ring(64, {0, 255, 0, 255});
  const paint::GlobeShader with(globe, ring, nullptr), without(globe, {}, nullptr);
  // Below the equator, where the way to the Sun goes through the ring.
  EXPECT_NEAR(Light(with.Shade(0.0, 0.2, 0.01)), 0.06 * Light(without.Shade(0.0, 0.2, 0.01)), 1e-6);
  EXPECT_EQ(Light(with.Shade(0.0, -0.5, 0.01)), Light(without.Shade(0.0, -0.5, 0.01)));
}

TEST_F(GlobeRecords, DamagedMapIsToldOnceAndTheBodyIsPlain) {
  test_support::TempDir dir;
  dir.Write("moon.jpg", "\xff\xd8\xff\xe0 no picture");
  test_support::DebugCapture diagnostics;
  GlobeRecord globe = MakeGlobe(1.0f, 0.0f, 1.0f);
  globe.map = 0;
  list.SetMaps({dir.Path("moon.jpg")});
  list.Add(Layer::kBodies, globe);
  EXPECT_EQ(Painted(list).At(100, 50), kRedPixel);
  EXPECT_EQ(Painted(list).At(100, 50), kRedPixel);
  ASSERT_EQ(diagnostics.lines.size(), 1u);
  EXPECT_NE(diagnostics.lines[0].find("moon.jpg"), std::string::npos);
}
