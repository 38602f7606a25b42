// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/surface_map.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
// The library's header wants the one above first.
#include <jpeglib.h>

#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "paint/globe_pixels.h"
#include "support/debug_capture.h"
#include "support/temp_dir.h"

using paint::SurfaceMap;

namespace {

constexpr double kDegree = 0.017453292519943295;

// A JPEG file whose bytes a pixel, one or three, are what the function says of column, row and which of them
// it is. It is exact to one or two steps of a colour.
void WriteMap(const std::string& path, int width, int height, int perPixel,
              const std::function<int(int, int, int)>& byte) {
  jpeg_compress_struct encoder;
  jpeg_error_mgr errors;
  encoder.err = jpeg_std_error(&errors);
  jpeg_create_compress(&encoder);
  std::FILE* const file = std::fopen(path.c_str(), "wb");
  ASSERT_NE(file, nullptr);
  jpeg_stdio_dest(&encoder, file);
  encoder.image_width = static_cast<JDIMENSION>(width);
  encoder.image_height = static_cast<JDIMENSION>(height);
  encoder.input_components = perPixel;
  encoder.in_color_space = perPixel == 3 ? JCS_RGB : JCS_GRAYSCALE;
  jpeg_set_defaults(&encoder);
  jpeg_set_quality(&encoder, 100, TRUE);
  encoder.comp_info[0].h_samp_factor = encoder.comp_info[0].v_samp_factor = 1;  // colours as fine as light
  jpeg_start_compress(&encoder, TRUE);
  std::vector<unsigned char> row;
  for (int y = 0; y < height; ++y) {
    row.clear();
    for (int x = 0; x < width; ++x) {
      for (int i = 0; i < perPixel; ++i) row.push_back(static_cast<unsigned char>(byte(x, y, i)));
    }
    JSAMPROW rows[] = {row.data()};
    jpeg_write_scanlines(&encoder, rows, 1);
  }
  jpeg_finish_compress(&encoder);
  jpeg_destroy_compress(&encoder);
  std::fclose(file);
}

// Lit by a Sun behind the viewer. `axes`: those of the body, x, y and z, in the picture.
scene::GlobeRecord MakeFullGlobe(const std::array<float, 9>& axes) {
  scene::GlobeRecord globe = {};
  globe.disc.cosPhase = 1.0f;
  globe.disc.sunX = 1.0f;
  globe.disc.lit = {255, 255, 255, 255};
  std::copy(axes.begin(), axes.end(), globe.toBody);
  return globe;
}

// North up, longitude 0 towards the viewer; y counts downwards.
constexpr std::array<float, 9> kUpright = {0, 0, 1, 1, 0, 0, 0, -1, 0};
// Neighbours in it differ.
constexpr std::array<float, 9> kTurned = {1.0f / 9,  8.0f / 9,  -4.0f / 9, 4.0f / 9, -4.0f / 9,
                                          -7.0f / 9, -8.0f / 9, -1.0f / 9, -4.0f / 9};

}  // namespace

TEST(SurfaceMap, IsReadUpTo8192By4096Pixels) {
  const test_support::TempDir dir;
  const auto loads = [&dir](int width, int height) {
    WriteMap(dir.Path("map.jpg"), width, height, 1, [](int, int, int) { return 0; });
    SurfaceMap map;
    return map.Load(dir.Path("map.jpg"));
  };
  test_support::DebugCapture diagnostics;
  EXPECT_TRUE(loads(8192, 8));
  EXPECT_TRUE(loads(8, 4096));
  EXPECT_TRUE(diagnostics.lines.empty());
  EXPECT_FALSE(loads(8193, 8));
  EXPECT_FALSE(loads(8, 4097));
  ASSERT_EQ(diagnostics.lines.size(), 2u);
  EXPECT_NE(diagnostics.lines[0].find("map.jpg: is no picture that can be read"), std::string::npos);
}

// Of 64 x 32 pixels: the middle of a row lies at (16 - row - 0.5) * 5.625 degrees, that of a column as far
// east of -180 degrees. Red grows by 8 a row, green by 4 a column.
TEST(SurfaceMap, LiesOnTheGlobeByLatitudeAndLongitude) {
  const test_support::TempDir dir;
  const std::string path = dir.Path("map.jpg");
  WriteMap(path, 64, 32, 3, [](int x, int y, int i) { return i == 0 ? 8 * y : i == 1 ? 4 * x : 0; });
  SurfaceMap map;
  ASSERT_TRUE(map.Load(path));
  int seen = 0;
  for (const auto& m : {kUpright, kTurned}) {
    const scene::GlobeRecord globe = MakeFullGlobe(m);
    const paint::GlobeShader shader(globe, {}, &map);
    for (double latitude = -70.0; latitude < 90.0; latitude += 35.0) {
      for (double longitude = -160.0; longitude < 170.0; longitude += 40.0) {
        const double c = std::cos(latitude * kDegree),
                     body[] = {c * std::cos(longitude * kDegree), c * std::sin(longitude * kDegree),
                               std::sin(latitude * kDegree)};
        const auto along = [&](std::size_t axis) {
          return body[0] * m[axis] + body[1] * m[axis + 3] + body[2] * m[axis + 6];
        };
        if (along(2) < 0.2) continue;  // towards the viewer
        const paint::GlobePixel pixel = shader.Shade(along(0), along(1), 0.001);
        SCOPED_TRACE(std::to_string(latitude) + " " + std::to_string(longitude));
        EXPECT_NEAR(255.0 * pixel.red, 8.0 * (15.5 - latitude / 5.625), 3.0);
        EXPECT_NEAR(255.0 * pixel.green, 4.0 * (31.5 + longitude / 5.625), 3.0);
        ++seen;
      }
    }
  }
  EXPECT_GT(seen, 20);
}

// A part of the pixels at the limb lies beyond the globe, where nothing is farther north than the pole. The
// Sun stands above it.
TEST(SurfaceMap, GoesOnAtTheLimb) {
  const test_support::TempDir dir;
  WriteMap(dir.Path("map.jpg"), 16, 8, 1, [](int, int, int) { return 200; });
  SurfaceMap map;
  ASSERT_TRUE(map.Load(dir.Path("map.jpg")));
  scene::GlobeRecord globe = MakeFullGlobe(kUpright);
  globe.disc.cosPhase = globe.disc.sunX = 0.0f;
  globe.disc.sunY = -1.0f;
  const paint::GlobePixel pixel = paint::GlobeShader(globe, {}, &map).Shade(0.0, -1.002, 0.01);
  EXPECT_NEAR(pixel.opacity, 0.3, 1e-6);
  EXPECT_NEAR(pixel.red, 0.3 * 200.0 / 255.0, 0.005);
}

TEST(SurfaceMap, IsReadFromEachFileOfTheData) {
  int count = 0;
  for (const auto& file : std::filesystem::directory_iterator(CI_DATA_SOURCE "/maps")) {
    if (file.path().extension() != ".jpg") continue;
    SurfaceMap map;
    EXPECT_TRUE(map.Load(file.path().string())) << file.path();
    ++count;
  }
  EXPECT_GT(count, 15);
}

TEST(SurfaceMap, OfGreyPixelsIsGrey) {
  const test_support::TempDir dir;
  const std::string path = dir.Path("map.jpg");
  WriteMap(path, 64, 32, 1, [](int x, int, int) { return 4 * x; });
  SurfaceMap map;
  ASSERT_TRUE(map.Load(path));
  const paint::MapColour east = map.GetColour(90.0 * kDegree, 0.0, 1e6);
  EXPECT_NEAR(east.red, 4.0 * 47.5, 2.0);
  EXPECT_EQ(east.green, east.red);
  EXPECT_EQ(east.blue, east.red);
}

// White by day; its night, brighter by its colours, is no more than white.
TEST(SurfaceMap, IsNeverBrighterThanWhite) {
  const test_support::TempDir dir;
  WriteMap(dir.Path("map.jpg"), 16, 8, 1, [](int, int, int) { return 255; });
  SurfaceMap map;
  ASSERT_TRUE(map.Load(dir.Path("map.jpg")));
  scene::GlobeRecord globe = MakeFullGlobe(kUpright);
  globe.disc.lit = {50, 50, 50, 255};
  globe.disc.dark = {200, 200, 200, 255};
  EXPECT_EQ(paint::GlobeShader(globe, {}, &map).Shade(0.0, 0.0, 0.01).red, 1.0f);
}

TEST(SurfaceMap, CutOffIsNotRead) {
  const test_support::TempDir dir;
  const auto noise = [](int x, int y, int) { return (37 * x + 101 * y) % 256; };
  WriteMap(dir.Path("map.jpg"), 64, 32, 1, noise);
  const std::string whole = dir.Read("map.jpg");
  dir.Write("cut.jpg", whole.substr(0, whole.size() / 2));
  test_support::DebugCapture diagnostics;
  SurfaceMap map;
  EXPECT_TRUE(map.Load(dir.Path("map.jpg")));
  EXPECT_FALSE(map.Load(dir.Path("cut.jpg")));
  EXPECT_EQ(diagnostics.lines.size(), 1u);
}

// Of 16 x 8 pixels: those of the next step are the means of four each, rounded.
TEST(SurfaceMap, NextStepHasTheMeansOfFourPixels) {
  const test_support::TempDir dir;
  WriteMap(dir.Path("map.jpg"), 16, 8, 1,
           [](int x, int y, int) { return 100 + (7 * x + 5 * y + x * y) % 23; });
  SurfaceMap map;
  ASSERT_TRUE(map.Load(dir.Path("map.jpg")));
  const auto get = [&map](double column, double row, double columns, double perRadian) {
    return map
        .GetColour(((column + 0.5) / columns - 0.5) * 360.0 * kDegree,
                   (0.5 - (row + 0.5) / (columns / 2.0)) * 180.0 * kDegree, perRadian)
        .green;
  };
  for (int y = 0; y < 4; ++y) {
    for (int x = 0; x < 8; ++x) {
      double sum = 0.0;
      for (const auto& [right, down] : {std::pair(0, 0), {1, 0}, {0, 1}, {1, 1}})
        sum += get(2 * x + right, 2 * y + down, 16.0, 1e6);
      EXPECT_NEAR(get(x, y, 8.0, 1.0), std::floor(sum / 4.0 + 0.5), 0.01) << x << " " << y;
    }
  }
}

// Of 64 x 8 and of 16 x 64 pixels, one halving makes 32 x 4 and 8 x 32: stripes two pixels wide are still
// seen.
TEST(SurfaceMap, IsNotHalvedBelow8ColumnsOr4Rows) {
  const test_support::TempDir dir;
  WriteMap(dir.Path("low.jpg"), 64, 8, 1, [](int x, int, int) { return x / 2 % 2 * 200; });
  WriteMap(dir.Path("narrow.jpg"), 16, 64, 1, [](int, int y, int) { return y / 2 % 2 * 200; });
  SurfaceMap low, narrow;
  ASSERT_TRUE(low.Load(dir.Path("low.jpg")) && narrow.Load(dir.Path("narrow.jpg")));
  for (const int i : {0, 1, 8, 15}) {
    EXPECT_NEAR(low.GetColour((i + 0.5) / 32.0 * 360.0 * kDegree, 0.0, 0.1).green, i % 2 * 200.0, 2.0) << i;
    EXPECT_NEAR(narrow.GetColour(0.0, -(i + 0.5) / 32.0 * 180.0 * kDegree, 0.1).green, i % 2 * 200.0, 2.0)
        << i;
  }
}

// Tycho (43 S, 11 W) is bright, Mare Crisium (17 N, 59 E) dark, Mare Imbrium (33 N, 16 W) darker than the
// highlands around 30 S, 10 E.
TEST(SurfaceMap, MapOfTheMoonHasItsFeaturesWhereTheyAre) {
  SurfaceMap map;
  ASSERT_TRUE(map.Load(CI_DATA_SOURCE "/maps/moon.jpg"));
  const auto grey = [&map](double latitude, double longitude) {
    return map.GetColour(longitude * kDegree, latitude * kDegree, 1e6).green;
  };
  EXPECT_GT(grey(-43, -11), grey(17, 59) + 30);
  EXPECT_GT(grey(-30, 10), grey(33, -16) + 20);
  EXPECT_EQ(grey(10, 370), grey(10, 10)) << "longitudes go around";
}

// At a pixel a radian one pixel of the smallest step of the map is 45 degrees wide: the mean of all that lies
// there.
TEST(SurfaceMap, SmallDiscsTakeMeans) {
  SurfaceMap map;
  ASSERT_TRUE(map.Load(CI_DATA_SOURCE "/maps/moon.jpg"));
  for (const double west : {-180.0, -45.0, 0.0, 90.0}) {
    double sum = 0.0;
    int count = 0;
    for (double longitude = west + 0.5; longitude < west + 45.0; longitude += 1.0) {
      for (double latitude = 0.5; latitude < 45.0; latitude += 1.0, ++count)
        sum += map.GetColour(longitude * kDegree, latitude * kDegree, 1e6).green;
    }
    EXPECT_NEAR(map.GetColour((west + 22.5) * kDegree, 22.5 * kDegree, 1.0).green, sum / count, 3.0) << west;
  }
}
