// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/surface_map.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
// The library's header wants the one above first.
#include <jpeglib.h>

#include <functional>
#include <string>
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

// Its north up, longitude 0 towards the viewer, lit by a Sun behind the viewer.
scene::GlobeRecord MakeFullGlobe() {
  scene::GlobeRecord globe = {};
  globe.disc.cosPhase = 1.0f;
  globe.disc.sunX = 1.0f;
  globe.disc.lit = {255, 255, 255, 255};
  const float axes[9] = {0, 0, 1, 1, 0, 0, 0, -1, 0};
  std::copy(axes, axes + 9, globe.toBody);
  return globe;
}

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
  const scene::GlobeRecord globe = MakeFullGlobe();
  const paint::GlobeShader shader(globe, {}, &map);
  for (const double latitude : {-60.0, -30.0, 0.0, 45.0, 70.0}) {
    for (const double longitude : {-60.0, -20.0, 0.0, 50.0}) {
      const double x = std::cos(latitude * kDegree) * std::sin(longitude * kDegree),
                   y = -std::sin(latitude * kDegree);
      const paint::GlobePixel pixel = shader.Shade(x, y, 0.001);
      SCOPED_TRACE(std::to_string(latitude) + " " + std::to_string(longitude));
      EXPECT_NEAR(255.0 * pixel.red, 8.0 * (15.5 - latitude / 5.625), 3.0);
      EXPECT_NEAR(255.0 * pixel.green, 4.0 * (31.5 + longitude / 5.625), 3.0);
    }
  }
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
