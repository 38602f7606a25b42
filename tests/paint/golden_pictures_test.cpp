// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// One small picture for each feature of the painter, compared with that of tests/paint/golden. How they are
// made anew: tests/paint/README.md.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "paint/record_fixture.h"

using namespace scene;
using namespace host_test;

namespace {

constexpr Rgba kYellow = {255, 220, 80, 255}, kGreen = {60, 190, 110, 255}, kPaleBlue = {120, 170, 255, 160};

std::string ReadBytes(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

class GoldenPictures : public Records {
 protected:
  // `most`: of the mean difference of all channels of all pixels, 0 to 255; `worst`: of a single channel.
  void Compare(const std::string& name, double most, int worst) {
    const std::filesystem::path golden = std::filesystem::path(CI_GOLDEN_PICTURES) / (name + ".png");
    if (const char* const folder = std::getenv("CI_WRITE_GOLDEN")) {
      const auto target = (std::filesystem::path(folder) / (name + ".png")).string();
      const Painted picture(list);
      ASSERT_TRUE(picture.WritePng(target)) << target;
      GTEST_SKIP() << "written to " << target;
    }
    const std::string bytes = ReadBytes(golden);
    ASSERT_FALSE(bytes.empty()) << golden;
    const Painted expected(bytes), painted(list);
    ASSERT_TRUE(expected.IsGood() && painted.IsGood());
    ASSERT_EQ(expected.GetWidth(), 200);
    ASSERT_EQ(expected.GetHeight(), 100);
    double sum = 0.0;
    int largest = 0;
    for (int y = 0; y < 100; ++y) {
      for (int x = 0; x < 200; ++x) {
        const Pixel a = expected.At(x, y), b = painted.At(x, y);
        for (const int apart : {a.red - b.red, a.green - b.green, a.blue - b.blue}) {
          sum += std::abs(apart);
          largest = std::max(largest, std::abs(apart));
        }
      }
    }
    EXPECT_LE(sum / (3 * 200 * 100), most);
    EXPECT_LE(largest, worst);
  }
};

}  // namespace

TEST_F(GoldenPictures, Mesh) {
  for (int i = 0; i < 12; ++i)
    list.AddColour({static_cast<unsigned char>(20 * i), 90, static_cast<unsigned char>(250 - 20 * i), 255});
  MeshRecord mesh = {};
  mesh.right = 200.0f;
  mesh.bottom = 100.0f;
  mesh.columns = 4;
  mesh.rows = 3;
  list.AddMesh(Layer::kBackground, mesh);
  Compare("mesh", 0.5, 3);
}

// A crescent with a ring, its pole leaning towards the viewer.
TEST_F(GoldenPictures, Globe) {
  for (int i = 0; i < 20; ++i)
    list.AddColour({230, 210, static_cast<unsigned char>(120 + 5 * i), static_cast<unsigned char>(12 * i)});
  GlobeRecord globe = {};
  globe.disc = DiscRecord{100.0f, 50.0f, 36.0f, 0.8f, -0.6f, 0.3f, kYellow, {20, 16, 6, 255}, {}, {}};
  const double c = std::cos(0.4), s = std::sin(0.4);
  const double axes[9] = {0, s, c, 1, 0, 0, 0, -c, s};
  std::transform(axes, axes + 9, globe.toBody, [](double v) { return static_cast<float>(v); });
  globe.flattening = 0.1f;
  globe.limbDarkening = 0.6f;
  globe.ringInner = 1.3f;
  globe.ringOuter = 2.3f;
  globe.ringColourCount = 20;
  globe.map = -1;
  list.Add(Layer::kBodies, globe);
  Compare("globe", 0.6, 12);
}

TEST_F(GoldenPictures, Region) {
  AddVertices({{20, 50}, {60, 10}, {120, 20}, {180, 60}, {110, 90}, {50, 80}});
  list.EndRing();
  AddBox(80.0f, 40.0f, 120.0f, 60.0f);
  PolygonRecord area = {};
  area.colour = kPaleBlue;
  area.edge = {120, 170, 255, 40};
  area.softness = 3.0f;
  list.AddArea(Layer::kMilkyWay, area);
  Compare("region", 0.6, 24);
}

TEST_F(GoldenPictures, Lines) {
  AddLine({{10, 90}, {60, 10}, {110, 90}}, 3.0f, 0.0f, kYellow, kRoundJoins);
  AddLine({{100, 10}, {190, 30}}, 1.3f, 6.0f, kGreen);
  AddLine({{120, 50}, {180, 50}, {150, 90}}, 2.0f, 0.0f, kPaleBlue, kClosedLine);
  Compare("lines", 0.6, 24);
}

TEST_F(GoldenPictures, Dots) {
  for (int i = 0; i < 9; ++i) {
    const float radius = 0.5f + 0.7f * static_cast<float>(i);
    PointRecord point = {};
    point.x = 14.0f + 21.3f * static_cast<float>(i);
    point.y = 50.0f + 3.7f * static_cast<float>(i % 3);
    point.radius = radius;
    point.colour = kWhite;
    if (i > 4) point.glow = {0.0f, 3.6f * radius, 0.35f, {120, 170, 255, 140}, {120, 170, 255, 50}};
    list.Add(Layer::kStars, point);
  }
  Compare("dots", 0.6, 24);
}

// A galaxy, a cluster, a nebula, a body with a phase and a shadow.
TEST_F(GoldenPictures, Symbols) {
  list.Add(Layer::kDeepsky, EllipseRecord{30.0f, 50.0f, 24.0f, 9.0f, 0.6f, 1.2f, 0.0f, kYellow, {}});
  list.Add(Layer::kDeepsky, EllipseRecord{80.0f, 50.0f, 18.0f, 18.0f, 0.0f, 1.2f, 4.0f, kGreen, {}});
  AddLine({{110, 35}, {140, 35}, {140, 65}, {110, 65}}, 1.2f, 0.0f, kGreen, kClosedLine);
  list.Add(Layer::kBodies,
           DiscRecord{170.0f, 50.0f, 24.0f, 0.6f, 0.8f, -0.4f, kWhite, {30, 30, 34, 255}, {}, {}});
  list.Add(Layer::kBodies, ShadowRecord{174.0f,
                                        58.0f,
                                        4.0f,
                                        14.0f,
                                        0.5f,
                                        170.0f,
                                        50.0f,
                                        24.0f,
                                        {20, 0, 0, 230},
                                        {20, 0, 0, 120},
                                        {20, 0, 0, 0},
                                        {}});
  Compare("symbols", 0.6, 24);
}

// Fonts differ from one system to another: letters may be others, but as large, as bright and there.
TEST_F(GoldenPictures, Text) {
  const auto add = [this](float x, float y, float anchor, float size, unsigned style, const char* text) {
    TextRecord record = {};
    record.x = x;
    record.y = y;
    record.anchor = anchor;
    record.size = size;
    record.style = style;
    record.colour = kWhite;
    list.AddText(Layer::kLabels, record, text);
  };
  add(8.0f, 24.0f, 0.0f, 14.0f, 0, "Beteigeuze");
  add(100.0f, 54.0f, 0.5f, 15.0f, kItalicText, "\u041e\u0440\u0438\u043e\u043d \u03b1");
  add(192.0f, 90.0f, 1.0f, 24.0f, kBoldText, "NW");
  Compare("text", 8.0, 255);
}
