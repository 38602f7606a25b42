// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <limits>

#include "text/status_strings_fixture.h"
#include "utils/text.h"

namespace {

using namespace CommonInterfaces;
using namespace test_support;

constexpr char kTable[] =
    "5011\tequator\n5012\thorizon\n5013\tecliptic\n15400\tPlane:\n"
    "7214\tCentred on %s\n7215\tLocked on %s\n"
    "7216\tRA %dh%02dm%05.2fs, Dec %d %02d %05.2f\n7217\taz %d %02d %05.2f, alt %d %02d %05.2f\n"
    "7218\tlon %d %02d %05.2f, lat %d %02d %05.2f\n"
    "7219\tSlope %d\n7220\tZoom %.2f\n7227\t%s x %s\n";

class StatusView : public StatusTextTest {
 protected:
  StatusView() { Load(kTable); }

  // A function's text, after comparing its two forms.
  template <class Buffer, class String>
  std::string Both(Buffer buffer, String string) {
    const std::string text = string(&camera);
    GuardedText out;
    buffer(&camera, out.Get());
    EXPECT_EQ(out.Read(), text.substr(0, kStatusTextSize - 1));
    return text;
  }
  std::string Center() {
    return Both([](Camera* c, char* out) { GetCenterOnString(c, out); },
                [](Camera* c) { return GetCenterOnString(c); });
  }
  std::string Direction() {
    return Both([](Camera* c, char* out) { GetDirectionString(c, out, 7216, 7217, 7218); },
                [](Camera* c) { return GetDirectionString(c, 7216, 7217, 7218); });
  }
  std::string Plane() {
    return Both([](Camera* c, char* out) { GetRefPlane(c, out); }, [](Camera* c) { return GetRefPlane(c); });
  }
  std::string Slope() {
    return Both([](Camera* c, char* out) { GetSlopeString(c, out); },
                [](Camera* c) { return GetSlopeString(c); });
  }
  std::string Zoom() {
    return Both([](Camera* c, char* out) { GetZoomString(c, out); },
                [](Camera* c) { return GetZoomString(c); });
  }
  std::string FoV() {
    return Both([](Camera* c, char* out) { GetFoV(c, out); }, [](Camera* c) { return GetFoV(c); });
  }

  void SetCenter(int kind, int number, const char* name) {
    SSO_ID object(kind, number);
    std::snprintf(object.name, sizeof object.name, "%s", name);
    camera.SetCenterView(object);
  }
  // Degrees.
  void LookAt(double lon, double lat, double slope = 0.0) {
    camera.SetRA_Dec({lon * kDegree, lat * kDegree, slope * kDegree, 0});
  }
  void SetWindow(int width, int height, double zoom) {
    camera.SetWinRect({width, height, width, height});
    camera.SetZoom(zoom);
  }
};

TEST_F(StatusView, CentreObjectFreeAndLocked) {
  SetCenter(FourCC("plnt"), 4, "Mars");
  EXPECT_EQ(Center(), "Centred on Mars");
  camera.SetDirectionLock(true);
  EXPECT_EQ(Center(), "Locked on Mars");
}

TEST_F(StatusView, CentreObjectNeedsBothNumbersAndAName) {
  SetCenter(-1, 4, "Mars");
  EXPECT_EQ(Center(), "");
  SetCenter(FourCC("plnt"), -1, "Mars");
  EXPECT_EQ(Center(), "");
  SetCenter(FourCC("plnt"), 4, "");
  EXPECT_EQ(Center(), "");
  SetCenter(0, 0, "Zero");
  EXPECT_EQ(Center(), "Centred on Zero");
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(StatusView, PercentSignsInANameStandForThemselves) {
  SetCenter(FourCC("star"), 1, "%n%s");
  EXPECT_EQ(Center(), "Centred on %n%s");
}

TEST_F(StatusView, ANameWithoutItsTerminatorEndsWithItsRecord) {
  SSO_ID object(FourCC("star"), 1);
  std::memset(object.name, 'x', sizeof object.name);
  object.fourth = 0x79797979;
  camera.SetCenterView(object);
  EXPECT_EQ(Center(), "Centred on " + std::string(80, 'x'));
}

TEST_F(StatusView, AMissingCentreFormatIsTheEmptyText) {
  Load("1\tx\n");
  SetCenter(FourCC("plnt"), 4, "Mars");
  EXPECT_EQ(GetCenterOnString(&camera), "");
  EXPECT_EQ(debug.lines, Lines{"String with ID = 7214 not found in file qxstrings.txt\n"});
}

// The Crab nebula, RA 5h34m31.94s, Dec +22 00' 52.2".
TEST_F(StatusView, DirectionModeZeroShowsHours) {
  LookAt((5 + 34.0 / 60 + 31.94 / 3600) * 15, 22 + 52.2 / 3600);
  camera.SetAimingDispType(0);
  EXPECT_EQ(Direction(), "RA 5h34m31.94s, Dec 22 00 52.20");
}

TEST_F(StatusView, DirectionModeOneShowsDegreesAndAnyOtherTheThirdFormat) {
  LookAt(123.5, -45.25);
  camera.SetAimingDispType(1);
  EXPECT_EQ(Direction(), "az 123 30 00.00, alt -45 15 00.00");
  for (const int mode : {2, 3, 255}) {
    camera.SetAimingDispType(static_cast<unsigned char>(mode));
    EXPECT_EQ(Direction(), "lon 123 30 00.00, lat -45 15 00.00") << mode;
  }
}

TEST_F(StatusView, ANegativeAngleOfLessThanADegreeKeepsItsSignOnTheFirstFieldThatIsNotZero) {
  camera.SetAimingDispType(1);
  LookAt(0, -0.5);
  EXPECT_EQ(Direction(), "az 0 00 00.00, alt 0 -30 00.00");
  LookAt(0, -12.0 / 3600);
  EXPECT_EQ(Direction(), "az 0 00 00.00, alt 0 00 -12.00");
}

TEST_F(StatusView, TheFirstAngleIsReducedToOneTurn) {
  camera.SetAimingDispType(1);
  LookAt(-90, 0);
  EXPECT_EQ(Direction(), "az 270 00 00.00, alt 0 00 00.00");
  camera.SetAimingDispType(0);
  EXPECT_EQ(Direction(), "RA 18h00m00.00s, Dec 0 00 00.00");
}

TEST_F(StatusView, SixtySecondsNeverAppearInADirection) {
  camera.SetAimingDispType(0);
  LookAt(359.9999999, 89.9999999);
  EXPECT_EQ(Direction(), "RA 0h00m00.00s, Dec 90 00 00.00");
}

TEST_F(StatusView, DirectionFormatsAreTheCallersChoice) {
  Load("500\tA %d\n501\tB %d\n502\tC %d\n");
  LookAt(30, 0);
  const char* const wanted[] = {"A 2", "B 30", "C 30"};
  for (int mode = 0; mode < 3; ++mode) {
    camera.SetAimingDispType(static_cast<unsigned char>(mode));
    EXPECT_EQ(GetDirectionString(&camera, 500, 501, 502), wanted[mode]);
  }
}

TEST_F(StatusView, ReferencePlaneFollowsItsCaptionAtOnce) {
  const char* const wanted[] = {"Plane:equator", "Plane:horizon", "Plane:ecliptic"};
  for (int plane = 0; plane < 3; ++plane) {
    camera.SetBasePlane(static_cast<unsigned char>(plane));
    GuardedText text;
    EXPECT_TRUE(GetRefPlane(&camera, text.Get()));
    EXPECT_EQ(Plane(), wanted[plane]);
  }
}

TEST_F(StatusView, ReferencePlaneIsFalseAndEmptyWithoutItsName) {
  camera.SetBasePlane(3);
  GuardedText text;
  EXPECT_FALSE(GetRefPlane(&camera, text.Get()));
  EXPECT_EQ(text.Read(), "");
  EXPECT_EQ(debug.lines, Lines{"String with ID = 5014 not found in file qxstrings.txt\n"});
  camera.SetBasePlane(255);
  EXPECT_EQ(Plane(), "");
}

TEST_F(StatusView, ReferencePlaneIsFalseAndEmptyWithoutItsCaption) {
  Load("5011\tequator\n");
  GuardedText text;
  EXPECT_FALSE(GetRefPlane(&camera, text.Get()));
  EXPECT_EQ(text.Read(), "");
}

TEST_F(StatusView, PercentSignsInThePlaneStandForThemselves) {
  Load("5011\t%s\n15400\t%n\n");
  EXPECT_EQ(Plane(), "%n%s");
}

TEST_F(StatusView, SlopeInWholeDegreesTowardsZero) {
  const std::pair<double, const char*> slopes[] = {
      {0.0, "Slope 0"},  {30.0, "Slope 30"},   {30.99, "Slope 30"},  {-10.5, "Slope -10"},
      {-0.5, "Slope 0"}, {359.5, "Slope 359"}, {370.0, "Slope 370"}, {29.99999999, "Slope 30"}};
  for (const auto& [slope, wanted] : slopes) {
    LookAt(0, 0, slope);
    EXPECT_EQ(Slope(), wanted);
  }
}

TEST_F(StatusView, SlopeBeyondTheRecordStaysAtItsEndAndNoNumberIsZero) {
  const double infinity = std::numeric_limits<double>::infinity();
  const std::pair<double, const char*> slopes[] = {{1e9, "Slope 32767"},
                                                   {-1e300, "Slope -32767"},
                                                   {infinity, "Slope 0"},
                                                   {-infinity, "Slope 0"},
                                                   {std::numeric_limits<double>::quiet_NaN(), "Slope 0"}};
  for (const auto& [slope, wanted] : slopes) {
    LookAt(0, 0, slope);
    EXPECT_EQ(Slope(), wanted) << slope;
  }
}

TEST_F(StatusView, ZoomIsADouble) {
  camera.SetZoom(12.345678);
  EXPECT_EQ(Zoom(), "Zoom 12.35");
  Load("7220\tZoom %d\n");
  EXPECT_EQ(GetZoomString(&camera), "");
  EXPECT_EQ(debug.lines,
            Lines{"String with ID = 7220 does not fit its use: conversion 1, %d, gets a double\n"});
}

// Worked out by hand: half an extent is 2 atan(p / 2 / f) with f = Dr / tan(0.6457718232379 / (2 zoom)) and
// Dr half the diagonal. 1600 x 900: 65.03 and 37.26 degrees at zoom 1; 64.50 and 36.28 minutes at 60; 1.29
// and 0.726 minutes at 3000; 4.644 and 2.612 seconds at 50000.
TEST_F(StatusView, FieldOfViewInDegreesMinutesOrSeconds) {
  SetWindow(1600, 900, 1.0);
  EXPECT_EQ(FoV(), "65\xB0 x 37\xB0");
  SetWindow(1600, 900, 60.0);
  EXPECT_EQ(FoV(), "1\xB0 x 36'");
  SetWindow(1600, 900, 3000.0);
  EXPECT_EQ(FoV(), "1' x 43.54\"");
  SetWindow(1600, 900, 50000.0);
  EXPECT_EQ(FoV(), "4.64\" x 2.61\"");
}

TEST_F(StatusView, FieldOfViewHasTheFactorFourOfTheStereographicProjection) {
  SetWindow(1000, 1000, 1.0);
  // The angle between the middles of the left and the right edge, by back-projection; 53.24 degrees.
  tPoint<int> left{0, 500}, right{1000, 500};
  double from[3], to[3];
  camera.Pix2Vec(left, from);
  camera.Pix2Vec(right, to);
  const double extent = std::acos(from[0] * to[0] + from[1] * to[1] + from[2] * to[2]) / kDegree;
  EXPECT_NEAR(extent, 53.2444151, 1e-6);
  EXPECT_EQ(FoV(), "53\xB0 x 53\xB0");
}

TEST_F(StatusView, FieldOfViewHasTheSingleByteDegreeSign) {
  SetWindow(1000, 1000, 1.0);
  EXPECT_EQ(FoV().find("\xC2\xB0"), std::string::npos);
  EXPECT_EQ(FoV()[2], '\xB0');
}

TEST_F(StatusView, FieldOfViewWithoutAWindowIsZero) {
  Camera fresh(1);
  EXPECT_EQ(GetFoV(&fresh), "0.00\" x 0.00\"");
}

TEST_F(StatusView, ADegreeIsShownFromOneDegreeOnAndAMinuteFromOneMinuteOn) {
  // Across, at the zoom at which the extent is just that: tan(extent / 4) = 500 / 707.10678 tan(K / (2
  // zoom)).
  const auto zoomFor = [](double extent) {
    return 0.6457718232379 / 2 / std::atan(std::tan(extent * kDegree / 4) * std::sqrt(2.0));
  };
  const std::pair<double, const char*> extents[] = {
      {1.00001, "1\xB0"}, {0.9999, "59'"}, {1.00001 / 60, "1'"}, {0.9999 / 60, "59.99\""}};
  for (const auto& [extent, wanted] : extents) {
    SetWindow(1000, 1000, zoomFor(extent));
    EXPECT_EQ(FoV(), std::string(wanted) + " x " + wanted) << extent;
  }
}

TEST_F(StatusView, NullBuffersDoNothing) {
  GetCenterOnString(&camera, nullptr);
  GetDirectionString(&camera, nullptr, 7216, 7217, 7218);
  EXPECT_FALSE(GetRefPlane(&camera, nullptr));
  GetSlopeString(&camera, nullptr);
  GetZoomString(&camera, nullptr);
  GetFoV(&camera, nullptr);
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(StatusView, NoCameraGivesEmptyTexts) {
  GuardedText texts[6];
  GetCenterOnString(nullptr, texts[0].Get());
  GetDirectionString(nullptr, texts[1].Get(), 7216, 7217, 7218);
  EXPECT_FALSE(GetRefPlane(nullptr, texts[2].Get()));
  GetSlopeString(nullptr, texts[3].Get());
  GetZoomString(nullptr, texts[4].Get());
  GetFoV(nullptr, texts[5].Get());
  for (const GuardedText& text : texts) EXPECT_EQ(text.Read(), "");
}

}  // namespace
