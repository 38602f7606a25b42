// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/units.h"
#include "text/status_strings_fixture.h"

namespace {

using namespace CommonInterfaces;
using namespace test_support;

constexpr char kTable[] =
    "965\tWest\n966\tEast\n967\tNorth\n968\tSouth\n"
    "1125\torbit\n1127\tdeep space\n1131\tboard\n1132\tlanding\n1141\tapproach\n1142\tleave\n1152\tgalaxies\n"
    "1157\tsurface\n1158\tabove\n1159\tflight\n14300\t, below\n"
    "1160\tm\n1161\tkm\n1162\tTkm\n1163\tMkm\n1164\tau\n1165\tly\n1166\tpc\n1167\tkpc\n"
    "7211\tHeight %.1f %s\n7212\tDistance %.4g %s\n"
    "7208\t%d %02d %05.2f %c, %d %02d %05.2f %c\n7209\tspace %d %d %.1f %c %d %d %.1f %c\n";

class StatusPlace : public StatusTextTest {
 protected:
  StatusPlace() { Load(kTable); }

  std::string Location() {
    const std::string text = GetLocationString(&camera);
    GuardedText buffer;
    GetLocationString(&camera, buffer.Get());
    EXPECT_EQ(buffer.Read(), text.substr(0, kStatusTextSize - 1));
    return text;
  }
  std::string Position() {
    const std::string text = GetPositionCoordString(&camera, 7208, 7209);
    GuardedText buffer;
    GetPositionCoordString(&camera, buffer.Get(), 7208, 7209);
    EXPECT_EQ(buffer.Read(), text.substr(0, kStatusTextSize - 1));
    return text;
  }
  std::string Distance() {
    const std::string text = GetDistanceString(&camera);
    GuardedText buffer;
    GetDistanceString(&camera, buffer.Get());
    EXPECT_EQ(buffer.Read(), text.substr(0, kStatusTextSize - 1));
    return text;
  }
  // Degrees.
  void SetPlace(double lon, double lat) { camera.SetLocation({0.0, lon * kDegree, lat * kDegree, 0, 2}); }
  void SetDistance(double au, int unit) {
    camera.SetLocation({au, 0.0, 0.0, static_cast<unsigned char>(unit), 2});
  }
};

TEST_F(StatusPlace, CaptionByMovingTypeAndNameOfThePlace) {
  const char* const wanted[] = {"surface Rome", "above Rome", "orbit Rome",   "flight Rome",
                                "deep space",   "board Rome", "landing Rome", "approach Rome",
                                "leave Rome",   "galaxies",   "deep space",   "deep space"};
  camera.SetLocationName("Rome");
  for (int type = 0; type < 12; ++type) {
    SetMovingType(type);
    camera.SetLocationName("Rome");
    EXPECT_EQ(Location(), wanted[type]) << type;
  }
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(StatusPlace, AMovingTypeAboveElevenLeavesTheCaptionEmpty) {
  for (const int type : {12, 127, -1, -128}) {
    SetMovingType(type);
    camera.SetLocationName("Rome");
    EXPECT_EQ(Location(), " Rome") << type;
  }
}

TEST_F(StatusPlace, FullStopsAtTheEndOfTheCaptionAreRemoved) {
  Load("1157\tU.S. surface...\n1152\t...\n");
  camera.SetLocationName("St. Louis.");
  EXPECT_EQ(Location(), "U.S. surface St. Louis.");
  SetMovingType(9);
  EXPECT_EQ(Location(), "");
}

TEST_F(StatusPlace, APlaceWithoutANameLeavesTheBlank) {
  camera.SetLocationName("");
  EXPECT_EQ(Location(), "surface ");
}

TEST_F(StatusPlace, BelowSurfaceIsAppendedWithoutASeparatorInFreeFlightOnly) {
  for (int type = 0; type < 12; ++type) {
    SetMovingType(type);
    camera.SetLocationName("Rome");
    camera.SetBelowSurface(false);
    const std::string above = Location();
    camera.SetBelowSurface(true);
    EXPECT_EQ(Location(), type == 3 ? "flight Rome, below" : above) << type;
  }
}

TEST_F(StatusPlace, BelowSurfaceHasAStandInWhenTheTextIsMissing) {
  Load("1159\tflight\n");
  SetMovingType(3);
  camera.SetLocationName("Rome");
  camera.SetBelowSurface(true);
  EXPECT_EQ(Location(), "flight RomeBELOW SURFACE");
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(StatusPlace, PercentSignsInCaptionAndNameStandForThemselves) {
  Load("1157\t%s%n\n");
  camera.SetLocationName("%d%d");
  EXPECT_EQ(Location(), "%s%n %d%d");
}

TEST_F(StatusPlace, ALongNameIsCutInTheBufferAndWholeInTheString) {
  camera.SetLocationName(std::string(1000, 'x').c_str());
  EXPECT_EQ(Location(), "surface " + std::string(1000, 'x'));
  GuardedText buffer;
  GetLocationString(&camera, buffer.Get());
  EXPECT_EQ(buffer.Read(), "surface " + std::string(255 - 8, 'x'));
}

TEST_F(StatusPlace, MissingCaptionIsEmptyAndReported) {
  Load("1\tx\n");
  camera.SetLocationName("Rome");
  EXPECT_EQ(GetLocationString(&camera), " Rome");
  EXPECT_EQ(debug.lines, Lines{"String with ID = 1157 not found in file qxstrings.txt\n"});
}

TEST_F(StatusPlace, PositionHasTheFirstLettersOfTheTable) {
  SetPlace(37.0 + 37.0 / 60 + 4.5 / 3600, 55.0 + 45.0 / 60 + 21.0 / 3600);
  EXPECT_EQ(Position(), "37 37 04.50 E, 55 45 21.00 N");
  SetPlace(-(70.0 + 40.0 / 60), -(33.0 + 27.0 / 60));
  EXPECT_EQ(Position(), "70 40 00.00 W, 33 27 00.00 S");
}

TEST_F(StatusPlace, LettersAreTranslatedByteForByte) {
  // Code page 1251: west, east, north and south in Russian.
  Load("965\t\xC7\n966\t\xC2\n967\t\xD1\n968\t\xDE\n7208\t%d %d %.0f %c %d %d %.0f %c\n");
  SetPlace(10, 20);
  EXPECT_EQ(Position(), "10 0 0 \xC2 20 0 0 \xD1");
  SetPlace(-10, -20);
  EXPECT_EQ(Position(), "10 0 0 \xC7 20 0 0 \xDE");
}

TEST_F(StatusPlace, AMissingOrEmptyLetterIsTheEnglishOne) {
  Load("965\t\n966\t \n7208\t%d %d %.0f %c %d %d %.0f %c\n");
  SetPlace(10, 20);
  EXPECT_EQ(Position(), "10 0 0 E 20 0 0 N");
  SetPlace(-10, -20);
  EXPECT_EQ(Position(), "10 0 0 W 20 0 0 S");
}

TEST_F(StatusPlace, TheLetterKeepsTheSignOfLessThanADegree) {
  SetPlace(-0.5, -0.25);
  EXPECT_EQ(Position(), "0 30 00.00 W, 0 15 00.00 S");
}

TEST_F(StatusPlace, LongitudesReachHalfATurn) {
  SetPlace(190, 0);
  EXPECT_EQ(Position(), "170 00 00.00 W, 0 00 00.00 N");
  SetPlace(180, 90);
  EXPECT_EQ(Position(), "180 00 00.00 E, 90 00 00.00 N");
}

TEST_F(StatusPlace, SixtySecondsNeverAppear) {
  SetPlace(9.9999999, -9.9999999);
  EXPECT_EQ(Position(), "10 00 00.00 E, 10 00 00.00 S");
}

TEST_F(StatusPlace, PositionFormatByMovingType) {
  for (const int type : {0, 1, 2}) {
    SetMovingType(type);
    SetPlace(10, 20);
    EXPECT_EQ(Position(), "10 00 00.00 E, 20 00 00.00 N") << type;
  }
  for (int type = 3; type <= 11; ++type) {
    SetMovingType(type);
    SetPlace(10, 20);
    EXPECT_EQ(Position(), "space 10 0 0.0 E 20 0 0.0 N") << type;
  }
  for (const int type : {12, -1}) {
    SetMovingType(type);
    EXPECT_EQ(Position(), "") << type;
  }
}

TEST_F(StatusPlace, PositionFormatsAreTheCallersChoice) {
  Load("966\tE\n967\tN\n500\tA %d\n501\tB %d\n");
  SetPlace(10, 20);
  EXPECT_EQ(GetPositionCoordString(&camera, 500, 501), "A 10");
  SetMovingType(3);
  SetPlace(10, 20);
  EXPECT_EQ(GetPositionCoordString(&camera, 500, 501), "B 10");
}

TEST_F(StatusPlace, APositionFormatThatDoesNotFitIsEmptyAndReportedOnce) {
  Load("966\tE\n967\tN\n7208\t%s\n");
  EXPECT_EQ(GetPositionCoordString(&camera, 7208, 7209), "");
  EXPECT_EQ(debug.lines,
            Lines{"String with ID = 7208 does not fit its use: conversion 1, %s, gets an int\n"});
}

TEST_F(StatusPlace, APlaceThatIsNotFiniteCountsAsZero) {
  SetPlace(std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity());
  EXPECT_EQ(Position(), "0 00 00.00 E, 0 00 00.00 N");
}

// 1 au and 1000 pc, by the definitions of the units.
TEST_F(StatusPlace, DistanceInTheUnitOfItsCode) {
  const char* const wanted[] = {"Height 149597870700.0 m", "Height 149597870.7 km", "Height 149597.9 Tkm",
                                "Height 149.6 Mkm", "Height 1.0 au"};
  for (int unit = kMetre; unit <= kAstronomicalUnit; ++unit) {
    SetDistance(1.0, unit);
    EXPECT_EQ(Distance(), wanted[unit]) << unit;
  }
  SetDistance(206264806.24709636, kLightYear);
  EXPECT_EQ(Distance(), "Height 3261.6 ly");
  SetDistance(206264806.24709636, kParsec);
  EXPECT_EQ(Distance(), "Height 1000.0 pc");
  SetDistance(206264806.24709636, kKiloparsec);
  EXPECT_EQ(Distance(), "Height 1.0 kpc");
}

TEST_F(StatusPlace, DistanceFormatByMovingType) {
  for (int type = 0; type <= 11; ++type) {
    SetMovingType(type);
    SetDistance(2.0, kAstronomicalUnit);
    EXPECT_EQ(Distance(), type <= 2 ? "Height 2.0 au" : "Distance 2 au") << type;
  }
  for (const int type : {12, 127, -1}) {
    SetMovingType(type);
    SetDistance(2.0, kAstronomicalUnit);
    EXPECT_EQ(Distance(), "") << type;
  }
}

TEST_F(StatusPlace, AnUnknownUnitShowsZeroWithoutAName) {
  SetDistance(2.0, 8);
  EXPECT_EQ(GetDistanceString(&camera), "Height 0.0 ");
  EXPECT_EQ(debug.lines, Lines{"String with ID = 1168 not found in file qxstrings.txt\n"});
  SetDistance(2.0, 255);  // the code is a signed byte: 1159 is another text
  EXPECT_EQ(GetDistanceString(&camera), "Height 0.0 flight");
}

TEST_F(StatusPlace, AMissingDistanceFormatIsEmptyAndReported) {
  Load("1160\tm\n");
  EXPECT_EQ(GetDistanceString(&camera), "");
  EXPECT_EQ(debug.lines, Lines{"String with ID = 7211 not found in file qxstrings.txt\n"});
}

TEST_F(StatusPlace, PercentSignsInAUnitStandForThemselves) {
  Load("1160\t%s%n\n7211\t%s\n7212\t%.0f %s\n");
  SetMovingType(3);
  SetDistance(0.0, 0);
  EXPECT_EQ(Distance(), "0 %s%n");
}

TEST_F(StatusPlace, NullBuffersDoNothingAndNoCameraGivesEmptyTexts) {
  GetLocationString(&camera, nullptr);
  GetPositionCoordString(&camera, nullptr, 7208, 7209);
  GetDistanceString(&camera, nullptr);
  GuardedText location, position, distance;
  GetLocationString(nullptr, location.Get());
  GetPositionCoordString(nullptr, position.Get(), 7208, 7209);
  GetDistanceString(nullptr, distance.Get());
  EXPECT_EQ(location.Read() + position.Read() + distance.Read(), "");
}

}  // namespace
