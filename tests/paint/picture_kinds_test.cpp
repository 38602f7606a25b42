// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A list made by hand as PNG, SVG and PDF.
#include <gtest/gtest.h>
#include <zlib.h>

#include <cstdio>
#include <utility>

#include "paint/font_extents.h"
#include "paint/painted.h"
#include "paint/picture_file.h"
#include "support/temp_dir.h"
#include "support/xml_check.h"

using namespace paint;
using namespace scene;
using host_test::Painted;
using host_test::Pixel;

namespace {

// The first rectangle that the page of a PDF fills, as "left top width height" in points, y downwards.
std::string FindFirstBox(const std::string& pdf, double pageHeight) {
  constexpr std::size_t kMost = 100'000;
  const std::string mark = "stream\n";
  const auto begin = pdf.find(mark) + mark.size();
  std::string content(kMost, '\0');
  uLongf size = kMost;
  if (uncompress(reinterpret_cast<Bytef*>(content.data()), &size,
                 reinterpret_cast<const Bytef*>(pdf.data() + begin),
                 static_cast<uLong>(pdf.find("endstream", begin) - begin)) != Z_OK) {
    return "not compressed";
  }
  content.resize(size);
  const auto end = content.find(" re f\n");
  const auto line = content.rfind('\n', end) + 1;
  double left = 0.0, bottom = 0.0, width = 0.0, height = 0.0;
  if (std::sscanf(content.c_str() + line, "%lf %lf %lf %lf re", &left, &bottom, &width, &height) != 4)
    return content;
  char box[200];
  std::snprintf(box, sizeof box, "%g %g %g %g", left, pageHeight - bottom - height, width, height);
  return box;
}

class PictureKinds : public testing::Test {
 protected:
  PictureKinds() {
    list.Begin(200, 100, 1.0);
    list.Add(Layer::kBackground, GradientRecord{{0, 200, 200, 0},
                                                {0, 0, 100, 100},
                                                0,
                                                0,
                                                0,
                                                100,
                                                0.5f,
                                                {0, 0, 64, 255},
                                                {0, 0, 64, 255},
                                                {0, 0, 64, 255},
                                                {}});
    list.Add(Layer::kStars, PointRecord{50.0f, 50.0f, 10.0f, {255, 255, 0, 255}, {}, {1, 2}});
    AddText(100.0f, 40.0f, 0.0f, 12.0f, "Vega");
    AddText(100.0f, 60.0f, 1.0f, 13.5f, "Hyades & Pleiades");
    AddText(150.0f, 80.0f, 0.5f, 12.0f, "Ригель");
  }
  void AddText(float x, float y, float anchor, float size, const char* utf8) {
    list.AddText(Layer::kLabels, TextRecord{x, y, anchor, size, 0, 0, 0, {200, 200, 200, 255}, {}}, utf8);
  }
  static int Count(const std::string& bytes, const std::string& part) {
    int count = 0;
    for (auto at = bytes.find(part); at != std::string::npos; at = bytes.find(part, at + part.size()))
      ++count;
    return count;
  }

  DisplayList list;
  std::string bytes, error;
};

}  // namespace

TEST_F(PictureKinds, CanBeDrawnByABuildWithTheDrawingLibrary) { EXPECT_TRUE(CanDraw()); }

TEST_F(PictureKinds, PngHasThePixelsOfTheList) {
  ASSERT_TRUE(MakePng(list, bytes, error)) << error;
  const Painted read(bytes), painted(list);
  ASSERT_TRUE(read.IsGood());
  ASSERT_EQ(read.GetWidth(), 200);
  ASSERT_EQ(read.GetHeight(), 100);
  EXPECT_EQ(read.At(50, 44), (Pixel{255, 255, 0}));
  EXPECT_EQ(read.At(5, 95), (Pixel{0, 0, 64}));
  for (int y = 0; y < 100; ++y) {
    for (int x = 0; x < 200; ++x) ASSERT_EQ(read.At(x, y), painted.At(x, y)) << x << " " << y;
  }
}

TEST_F(PictureKinds, SvgHasItsSizeInPixels) {
  ASSERT_TRUE(MakeSvg(list, bytes, error)) << error;
  EXPECT_EQ(host_test::FindXmlFault(bytes), "");
  EXPECT_NE(bytes.find("width=\"200px\""), std::string::npos);
  EXPECT_NE(bytes.find("height=\"100px\""), std::string::npos);
}

TEST_F(PictureKinds, SvgHasItsTextsWithPlaceSizeAndAnchor) {
  ASSERT_TRUE(MakeSvg(list, bytes, error)) << error;
  for (const char* text :
       {"<text x=\"100.0\" y=\"40.0\" font-size=\"12.0\" text-anchor=\"start\">Vega</text>",
        "<text x=\"100.0\" y=\"60.0\" font-size=\"13.5\" text-anchor=\"end\">Hyades &amp; "
        "Pleiades</text>",
        "<text x=\"150.0\" y=\"80.0\" font-size=\"12.0\" text-anchor=\"middle\">Ригель</text>"}) {
    EXPECT_NE(bytes.find(text), std::string::npos) << text;
  }
  EXPECT_EQ(Count(bytes, "<text "), 3);
}

TEST_F(PictureKinds, PdfIsOnePageOfAPointAPixel) {
  ASSERT_TRUE(MakePdf(list, bytes, error)) << error;
  EXPECT_EQ(bytes.substr(0, 5), "%PDF-");
  EXPECT_NE(bytes.rfind("%%EOF"), std::string::npos);
  EXPECT_EQ(Count(bytes, "/Type /Page\n") + Count(bytes, "/Type /Page "), 1);
  EXPECT_NE(bytes.find("/MediaBox [ 0 0 200 100 ]"), std::string::npos);
}

// A4 is 210 x 297 mm; the list, twice as wide as high, fills the width between margins of 10 mm.
TEST_F(PictureKinds, PdfOnASheetHasItsTrueSize) {
  constexpr double kMillimetre = 72.0 / 25.4;
  const Sheet sheet = {210.0 * kMillimetre, 297.0 * kMillimetre, 10.0 * kMillimetre};
  ASSERT_TRUE(MakePdf(list, bytes, error, sheet)) << error;
  double width = 0.0, height = 0.0;
  const auto box = bytes.find("/MediaBox [ 0 0 ");
  ASSERT_NE(box, std::string::npos);
  ASSERT_EQ(std::sscanf(bytes.c_str() + box, "/MediaBox [ 0 0 %lf %lf", &width, &height), 2);
  EXPECT_NEAR(width, 595.276, 0.001);
  EXPECT_NEAR(height, 841.890, 0.001);
  EXPECT_EQ(Count(bytes, "/Type /Page\n") + Count(bytes, "/Type /Page "), 1);
}

// The list is twice as wide as high. Its background is painted first, from edge to edge.
TEST_F(PictureKinds, PdfOnASheetIsAsLargeAsItsMarginsAllowInTheMiddle) {
  const std::pair<Sheet, const char*> cases[] = {
      {{500, 800, 50}, "50 300 400 200"},  // 400 x 700 between the margins: the width is what limits
      {{800, 300, 50}, "200 50 400 200"},  // 700 x 200: the height
      {{500, 300, 50}, "50 50 400 200"},   // both
      {{100, 100, 0}, "0 25 100 50"}};     // smaller than the list, without margins
  for (const auto& [sheet, box] : cases) {
    ASSERT_TRUE(MakePdf(list, bytes, error, sheet)) << error;
    EXPECT_EQ(FindFirstBox(bytes, sheet.height), box);
  }
  ASSERT_TRUE(MakePdf(list, bytes, error)) << error;
  EXPECT_EQ(FindFirstBox(bytes, 100.0), "0 0 200 100") << "without a sheet";
}

TEST_F(PictureKinds, PdfHasItsTextsInAFont) {
  ASSERT_TRUE(MakePdf(list, bytes, error)) << error;
  EXPECT_GE(Count(bytes, "/Type /Font\n"), 1);
  list.Begin(200, 100, 1.0);
  ASSERT_TRUE(MakePdf(list, bytes, error)) << error;
  EXPECT_EQ(Count(bytes, "/Type /Font\n"), 0);
}

TEST_F(PictureKinds, BytesFromBeforeAreGone) {
  for (const auto make : {MakePng, MakeSvg}) {
    bytes = "from before";
    ASSERT_TRUE(make(list, bytes, error)) << error;
    EXPECT_EQ(bytes.find("from before"), std::string::npos);
  }
  bytes = "from before";
  ASSERT_TRUE(MakePdf(list, bytes, error)) << error;
  EXPECT_EQ(bytes.find("from before"), std::string::npos);
}

TEST_F(PictureKinds, EndingChoosesTheKind) {
  const test_support::TempDir dir;
  const std::pair<const char*, const char*> cases[] = {
      {"sky.png", "\x89PNG"}, {"sky.svg", "<?xml"}, {"sky.pdf", "%PDF-"}, {"sky", "\x89PNG"}};
  for (const auto& [name, begin] : cases) {
    ASSERT_TRUE(WritePicture(list, dir.Path(name), error)) << error;
    EXPECT_TRUE(dir.Read(name).starts_with(begin)) << name;
  }
}

TEST_F(PictureKinds, SameListMakesTheSamePng) {
  std::string again;
  ASSERT_TRUE(MakePng(list, bytes, error) && MakePng(list, again, error)) << error;
  EXPECT_EQ(bytes, again);
}

TEST_F(PictureKinds, SizeThatCannotBeDrawnIsToldInOneLine) {
  list.Begin(100000, 10, 1.0);  // images end at 32767 pixels
  EXPECT_FALSE(MakePng(list, bytes, error));
  EXPECT_FALSE(error.empty());
  EXPECT_EQ(error.find('\n'), std::string::npos);
}

// What a frame asks for its labels is what is painted: ink neither ends long before the extent nor behind it.
TEST(FontExtents, AreThoseOfThePaintedText) {
  const FontExtents extents;
  const double width = extents.GetWidth("HHHH", 20.0, kBoldText);
  DisplayList list;
  list.Begin(400, 100, 1.0);
  list.AddText(Layer::kLabels,
               TextRecord{100.0f, 60.0f, 0.0f, 20.0f, 0, 0, kBoldText, {255, 255, 255, 255}, {}}, "HHHH");
  const Painted picture(list);
  EXPECT_NEAR(picture.GetLastColumn(), 100.0 + width, 4.0);
  EXPECT_LT(extents.GetWidth("HHHH", 20.0, 0), width) << "bold letters are wider";
  EXPECT_NEAR(extents.GetWidth("HHHHHHHH", 20.0, kBoldText), 2.0 * width, 1.0);
  EXPECT_EQ(extents.GetWidth("", 20.0, 0), 0.0);
}
