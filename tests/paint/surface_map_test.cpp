// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/surface_map.h"

#include <gtest/gtest.h>

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

// Each pixel red and green as that function of column and row says, and no blue. The file is exact to one or
// two steps of a colour.
void WriteMap(const std::string& path, int width, int height, const std::function<int(int)>& redOfRow,
              const std::function<int(int)>& greenOfColumn) {
  jpeg_compress_struct encoder;
  jpeg_error_mgr errors;
  encoder.err = jpeg_std_error(&errors);
  jpeg_create_compress(&encoder);
  std::FILE* const file = std::fopen(path.c_str(), "wb");
  ASSERT_NE(file, nullptr);
  jpeg_stdio_dest(&encoder, file);
  encoder.image_width = static_cast<JDIMENSION>(width);
  encoder.image_height = static_cast<JDIMENSION>(height);
  encoder.input_components = 3;
  encoder.in_color_space = JCS_RGB;
  jpeg_set_defaults(&encoder);
  jpeg_set_quality(&encoder, 100, TRUE);
  encoder.comp_info[0].h_samp_factor = encoder.comp_info[0].v_samp_factor = 1;  // colours as fine as light
  jpeg_start_compress(&encoder, TRUE);
  std::vector<unsigned char> row(3 * static_cast<std::size_t>(width));
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      row[3 * static_cast<std::size_t>(x)] = static_cast<unsigned char>(redOfRow(y));
      row[3 * static_cast<std::size_t>(x) + 1] = static_cast<unsigned char>(greenOfColumn(x));
    }
    JSAMPROW rows[] = {row.data()};
    jpeg_write_scanlines(&encoder, rows, 1);
  }
  jpeg_finish_compress(&encoder);
  jpeg_destroy_compress(&encoder);
  std::fclose(file);
}

int None(int) { return 0; }

}  // namespace

TEST(SurfaceMap, IsReadUpTo8192By4096Pixels) {
  const test_support::TempDir dir;
  const auto loads = [&dir](int width, int height) {
    WriteMap(dir.Path("map.jpg"), width, height, None, None);
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
  WriteMap(
      path, 64, 32, [](int y) { return 8 * y; }, [](int x) { return 4 * x; });
  SurfaceMap map;
  ASSERT_TRUE(map.Load(path));
  // Its north up, longitude 0 towards the viewer, lit by a Sun behind the viewer.
  scene::GlobeRecord globe = {};
  globe.disc.cosPhase = 1.0f;
  globe.disc.sunX = 1.0f;
  globe.disc.lit = {255, 255, 255, 255};
  const float axes[9] = {0, 0, 1, 1, 0, 0, 0, -1, 0};
  std::copy(axes, axes + 9, globe.toBody);
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
