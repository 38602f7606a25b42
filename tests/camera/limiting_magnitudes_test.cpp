// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cstdio>
#include <fstream>
#include <limits>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "camera/view_helpers.h"
#include "common_interfaces/field_names.h"
#include "support/camera_settings.h"
#include "support/debug_capture.h"

namespace {

using namespace test_support;
using CommonInterfaces::Camera;
using CommonInterfaces::FieldIds;
using CommonInterfaces::SettingsData;

constexpr int kStar = FourCC("star");
constexpr int kGalaxy = FourCC("gala");

class LimitingMagnitudesTest : public testing::Test {
 protected:
  // The corrections of the object and label rows of one class.
  void Correct(int cls, float object, float label) {
    for (const auto& desc : Camera::s_ZoomDependDesc)
      if (desc.objectClass == static_cast<unsigned>(cls))
        camera.SetMagCorrection(desc.row, desc.row % 2 ? label : object);
    camera.RefreshLimitingMagnitudes();
  }
  void AddCorrection(SettingsData& settings, const char (&section)[5], const RecordField& field) {
    AddField(settings, static_cast<unsigned>(FourCC(section)), field);
  }

  TempRoots roots;
  Camera camera{1};
};

TEST_F(LimitingMagnitudesTest, AtZoomOneStarsReachMagnitudeFour) {
  camera.SetZoom(1.0);
  EXPECT_EQ(camera.GetDarkMagObject(kStar), 60);
  EXPECT_EQ(camera.GetDarkMagObjectF(kStar), 60.0f);
  EXPECT_EQ(camera.GetDarkMagLabel(kStar), 60);
  EXPECT_EQ(camera.GetDarkMagLabelF(kStar), 60.0f);
}

TEST_F(LimitingMagnitudesTest, CorrectionsAddToTheLimit) {
  camera.SetZoom(1.0);
  Correct(kStar, 5, -15);
  EXPECT_EQ(camera.GetDarkMagObject(kStar), 65);
  EXPECT_EQ(camera.GetDarkMagLabel(kStar), 45);
}

TEST_F(LimitingMagnitudesTest, AtZoomTenStarsReachMagnitudeEightAndAtAHundredthNone) {
  camera.SetZoom(10.0);
  EXPECT_EQ(camera.GetDarkMagObject(kStar), 100);
  camera.SetZoom(0.01);
  EXPECT_EQ(camera.GetDarkMagObjectF(kStar), 0.0f);
}

TEST_F(LimitingMagnitudesTest, LimitsEndAt254) {
  camera.SetZoom(1.0);
  Correct(kStar, 1000, 194.5f);
  EXPECT_EQ(camera.GetDarkMagObjectF(kStar), 254.0f);
  EXPECT_EQ(camera.GetDarkMagObject(kStar), 254);
  EXPECT_EQ(camera.GetDarkMagLabelF(kStar), 254.0f);
}

TEST_F(LimitingMagnitudesTest, WholeLimitsAreTruncated) {
  camera.SetZoom(1.0);
  Correct(kStar, 0.9f, 0.9f);
  EXPECT_EQ(camera.GetDarkMagObject(kStar), 60);
  EXPECT_EQ(camera.GetDarkMagLabel(kStar), 60);
}

TEST_F(LimitingMagnitudesTest, DrawingThresholdLeavesTheCorrectionOutAndWrapsBelowZero) {
  camera.SetZoom(0.01);  // the limit without correction is -20
  Correct(kStar, 50, 50);
  EXPECT_EQ(camera.GetDarkMagObjectF(kStar), 30.0f);
  EXPECT_EQ(camera.GetDarkMagDraw(kStar), 15);
  camera.SetZoom(0.0001);  // -100 and 50: held at 0
  EXPECT_EQ(camera.GetDarkMagObjectF(kStar), 0.0f);
  EXPECT_EQ(camera.GetDarkMagDrawF(kStar), -15.0f);
  EXPECT_EQ(camera.GetDarkMagDraw(kStar), 241);
  Correct(kStar, 36, 0);
  EXPECT_EQ(camera.GetDarkMagDraw(kStar), 255);  // -1
}

TEST_F(LimitingMagnitudesTest, DrawingThresholdEndsAt254) {
  camera.SetZoom(1e6);
  EXPECT_EQ(camera.GetDarkMagObject(kGalaxy), 120);
  EXPECT_EQ(camera.GetDarkMagDraw(kGalaxy), 254);
  EXPECT_EQ(camera.GetDarkMagDrawF(kGalaxy), 254.0f);
  EXPECT_EQ(camera.GetDarkMagDraw(kStar), 254);
}

TEST_F(LimitingMagnitudesTest, DrawingThresholdIsLookedAtAsSixteenBits) {
  camera.SetZoom(1.0);
  Correct(kStar, -40000, 0);  // 0 + 40000 + 35 is -25501 in 16 bits, whose low byte is 99
  EXPECT_EQ(camera.GetDarkMagDraw(kStar), 0x63);
  EXPECT_EQ(camera.GetDarkMagDrawF(kStar), 254.0f);
}

TEST_F(LimitingMagnitudesTest, CorrectionsBeyondAllBoundsStayHarmless) {
  camera.SetZoom(1.0);
  Correct(kStar, std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::max());
  EXPECT_EQ(camera.GetDarkMagObject(kStar), 254);
  EXPECT_EQ(camera.GetDarkMagLabel(kStar), 0);
  EXPECT_EQ(camera.GetDarkMagDraw(kStar), 0);  // saturates at the lowest int
  Correct(kStar, std::numeric_limits<float>::quiet_NaN(), 0);
  EXPECT_EQ(camera.GetDarkMagObject(kStar), 0);
  EXPECT_EQ(camera.GetDarkMagDraw(kStar), 0);
  EXPECT_EQ(camera.GetDarkMagDrawF(kStar), 0.0f);
}

TEST_F(LimitingMagnitudesTest, ZoomWithoutALogarithmShowsNothing) {
  for (double zoom : {-1.0, 0.0}) {
    camera.SetZoom(5.0);
    camera.SetZoom(zoom);
    EXPECT_EQ(camera.GetDarkMagObjectF(kStar), 0.0f) << zoom;
  }
}

TEST_F(LimitingMagnitudesTest, UnknownClassIsZero) {
  camera.SetZoom(100.0);
  for (int cls : {FourCC("abcd"), 0, -1}) {
    EXPECT_EQ(camera.GetDarkMagObject(cls), 0);
    EXPECT_EQ(camera.GetDarkMagObjectF(cls), 0.0f);
    EXPECT_EQ(camera.GetDarkMagLabel(cls), 0);
    EXPECT_EQ(camera.GetDarkMagLabelF(cls), 0.0f);
    EXPECT_EQ(camera.GetDarkMagDraw(cls), 0);
    EXPECT_EQ(camera.GetDarkMagDrawF(cls), 0.0f);
  }
}

TEST_F(LimitingMagnitudesTest, SettingACorrectionDoesNotRefresh) {
  camera.SetZoom(1.0);
  camera.SetMagCorrection(0, 12.5f);
  EXPECT_EQ(camera.GetMagCorrection(0), 12.5f);
  EXPECT_EQ(camera.GetDarkMagObject(kStar), 60);
  camera.RefreshLimitingMagnitudes();
  EXPECT_EQ(camera.GetDarkMagObjectF(kStar), 72.5f);
}

TEST_F(LimitingMagnitudesTest, RowsOutsideTheTableSetNothingAndReadZero) {
  for (int row : {-1, 20, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
    camera.SetMagCorrection(row, 3.0f);
    EXPECT_EQ(camera.GetMagCorrection(row), 0.0f);
  }
  for (int row = 0; row < 20; ++row) EXPECT_EQ(camera.GetMagCorrection(row), 0.0f);
}

TEST_F(LimitingMagnitudesTest, AllCorrectionsComeFromTheSettings) {
  SettingsData settings(1, 2, "filters.data");
  for (const auto& desc : Camera::s_ZoomDependDesc)
    AddField(
        settings, desc.objectClass,
        Int16(CommonInterfaces::FindFieldName(desc.fieldId), {static_cast<short>(3 * desc.row - 20), 99}));
  camera.SetZoom(1.0);
  camera.FillMagCorrectionsVector(&settings);
  for (int row = 0; row < 20; ++row)
    EXPECT_EQ(camera.GetMagCorrection(row), static_cast<float>(3 * row - 20));
  EXPECT_EQ(camera.GetDarkMagObject(kStar), 40);
  EXPECT_EQ(camera.GetDarkMagLabel(kStar), 43);
}

TEST_F(LimitingMagnitudesTest, MissingCorrectionIsZeroAndQuiet) {
  SettingsData settings(1, 2, "filters.data");
  AddCorrection(settings, "star", Int16("StarZoomDependLabel", {-7}));
  for (int row = 0; row < 20; ++row) camera.SetMagCorrection(row, 50);
  DebugCapture debug;
  camera.FillMagCorrectionsVector(&settings);
  EXPECT_TRUE(debug.lines.empty());
  for (int row = 0; row < 20; ++row) EXPECT_EQ(camera.GetMagCorrection(row), row == 1 ? -7.0f : 0.0f);
}

TEST_F(LimitingMagnitudesTest, ACorrectionThatItsSectionLacksIsTakenFromAnother) {
  SettingsData settings(1, 2, "filters.data");
  AddCorrection(settings, "star", Int16("StarZoomDependLabel", {-7}));
  AddCorrection(settings, "abcd", Int16("StarZoomDependShow", {5}));
  AddCorrection(settings, "abcd", Int16("StarZoomDependLabel", {6}));
  AddCorrection(settings, "abcd", Int16("SCZoomDependShow", {9}));  // there is no section "clst"
  DebugCapture debug;
  camera.FillMagCorrectionsVector(&settings);
  EXPECT_TRUE(debug.lines.empty());
  EXPECT_EQ(camera.GetMagCorrection(0), 5.0f);
  EXPECT_EQ(camera.GetMagCorrection(1), -7.0f);
  EXPECT_EQ(camera.GetMagCorrection(2), 0.0f);
}

TEST_F(LimitingMagnitudesTest, CorrectionsOfAnotherWidthOrWithoutValuesAreZero) {
  SettingsData settings(1, 2, "filters.data");
  AddCorrection(settings, "star", Double("StarZoomDependShow", 5.0));
  AddCorrection(settings, "star", UInt8("StarZoomDependLabel", 5));
  AddCorrection(settings, "clst", Int16("SCZoomDependShow", {}));
  AddCorrection(settings, "clst",
                MakeField<unsigned short>("SCZoomDependLabel", CommonInterfaces::kFieldUInt16, {9}));
  camera.FillMagCorrectionsVector(&settings);
  EXPECT_EQ(camera.GetMagCorrection(0), 0.0f);
  EXPECT_EQ(camera.GetMagCorrection(1), 0.0f);
  EXPECT_EQ(camera.GetMagCorrection(2), 0.0f);
  EXPECT_EQ(camera.GetMagCorrection(3), 9.0f);
}

TEST_F(LimitingMagnitudesTest, CurrentSectionOfTheSettingsStays) {
  SettingsData settings(1, 2, "filters.data");
  AddCorrection(settings, "star", Int16("StarZoomDependShow", {1}));
  AddCorrection(settings, "abcd", Int16("Other", {1}));
  camera.FillMagCorrectionsVector(&settings);
  EXPECT_EQ(settings.GetCurSection(), 0u);
  settings.SetCurSection(static_cast<unsigned>(FourCC("abcd")));
  camera.FillMagCorrectionsVector(&settings);
  EXPECT_EQ(settings.GetCurSection(), static_cast<unsigned>(FourCC("abcd")));
}

TEST_F(LimitingMagnitudesTest, WithoutSettingsAllCorrectionsAreZeroAndTheLimitsRefreshed) {
  camera.SetZoom(1.0);
  Correct(kStar, 30, 30);
  camera.FillMagCorrectionsVector(nullptr);
  EXPECT_EQ(camera.GetMagCorrection(0), 0.0f);
  EXPECT_EQ(camera.GetDarkMagObject(kStar), 60);
}

TEST_F(LimitingMagnitudesTest, OneCorrectionChangesByItsFieldId) {
  camera.SetZoom(1.0);
  short value = -25;
  camera.RefreshLimitMagnitude(FieldIds::GLZoomDependShow, 0, &value);
  EXPECT_EQ(camera.GetMagCorrection(4), -25.0f);
  value = 12;
  camera.RefreshLimitMagnitude(FieldIds::StarZoomDependLabel, 0, &value);
  EXPECT_EQ(camera.GetMagCorrection(1), 12.0f);
  EXPECT_EQ(camera.GetDarkMagLabel(kStar), 72);
  EXPECT_EQ(camera.GetDarkMagObject(kStar), 60);
}

TEST_F(LimitingMagnitudesTest, LimitsAreRefreshedForAnUnknownFieldIdAndForNoValueToo) {
  camera.SetZoom(1.0);
  camera.SetMagCorrection(0, 10);
  short value = 5;
  camera.RefreshLimitMagnitude(GetUniqueID("Sound"), 0, &value);
  EXPECT_EQ(camera.GetDarkMagObject(kStar), 70);
  camera.SetMagCorrection(0, 20);
  camera.RefreshLimitMagnitude(FieldIds::StarZoomDependShow, 0, nullptr);
  EXPECT_EQ(camera.GetMagCorrection(0), 20.0f);
  EXPECT_EQ(camera.GetDarkMagObject(kStar), 80);
}

TEST_F(LimitingMagnitudesTest, ZoomToShowAnObjectIsWhereTheDrawingThresholdReachesIt) {
  // Star of magnitude 11.5: code 135 is 60 + 35 and 40 more, one factor 10.
  EXPECT_NEAR(camera.CalcZoomForShowObject(kStar, 11.5), 10.0, 1e-12);
  EXPECT_NEAR(camera.CalcZoomForShowObject(kStar, 7.5), 1.0, 1e-12);
  // Galaxy: 155 without zoom, so magnitude 13.5 is drawn at zoom 1 and magnitude 17.5 at 100.
  EXPECT_NEAR(camera.CalcZoomForShowObject(kGalaxy, 13.5), 1.0, 1e-12);
  EXPECT_NEAR(camera.CalcZoomForShowObject(kGalaxy, 17.5), 100.0, 1e-10);
  camera.SetZoom(camera.CalcZoomForShowObject(FourCC("comt"), 16.5));
  EXPECT_NEAR(camera.GetDarkMagDrawF(FourCC("comt")), 185.0, 1e-4);
}

TEST_F(LimitingMagnitudesTest, ZoomToShowAnObjectTakesUserTypesAsTheirClass) {
  EXPECT_EQ(camera.CalcZoomForShowObject(FourCC("uSTR"), 9.0), camera.CalcZoomForShowObject(kStar, 9.0));
  EXPECT_EQ(camera.CalcZoomForShowObject(FourCC("uSCO"), 9.0),
            camera.CalcZoomForShowObject(FourCC("scft"), 9.0));
}

TEST_F(LimitingMagnitudesTest, ZoomToShowAnUnknownTypeIsMinusOne) {
  EXPECT_EQ(camera.CalcZoomForShowObject(FourCC("abcd"), 5.0), -1.0);
  EXPECT_EQ(camera.CalcZoomForShowObject(-1, 5.0), -1.0);
}

TEST_F(LimitingMagnitudesTest, ZoomToShowAnObjectHoldsTheMagnitudeAtItsCodes) {
  const double brightest = camera.CalcZoomForShowObject(kStar, -2.0);
  EXPECT_NEAR(brightest, std::pow(10.0, -95.0 / 40), 1e-15);
  const double faintest = camera.CalcZoomForShowObject(kStar, 23.4);
  EXPECT_NEAR(faintest, std::pow(10.0, 159.0 / 40), 1e-8);
  const double infinite = std::numeric_limits<double>::infinity();
  EXPECT_EQ(camera.CalcZoomForShowObject(kStar, -30.0), brightest);
  EXPECT_EQ(camera.CalcZoomForShowObject(kStar, -infinite), brightest);
  EXPECT_EQ(camera.CalcZoomForShowObject(kStar, std::numeric_limits<double>::quiet_NaN()), brightest);
  EXPECT_EQ(camera.CalcZoomForShowObject(kStar, 1e300), faintest);
  EXPECT_EQ(camera.CalcZoomForShowObject(kStar, infinite), faintest);
}

TEST_F(LimitingMagnitudesTest, ZoomToShowAnObjectTruncatesTheCode) {
  EXPECT_EQ(camera.CalcZoomForShowObject(kStar, 7.59), camera.CalcZoomForShowObject(kStar, 7.5));
  EXPECT_EQ(camera.CalcZoomForShowObject(kStar, -2.05), camera.CalcZoomForShowObject(kStar, -2.0));
}

// One line of the table as this camera would write it. The columns are explained in its second line.
std::string TableLine(Camera& camera, const std::string& name, double zoom, int object, int label) {
  const int cls = GetFOURCC(name.c_str());
  char line[160];
  std::snprintf(line, sizeof line, "%s %g | %d %d | %.3f %d %.3f %d | %.3f %d", name.c_str(), zoom, object,
                label, static_cast<double>(camera.GetDarkMagObjectF(cls)), camera.GetDarkMagObject(cls),
                static_cast<double>(camera.GetDarkMagLabelF(cls)), camera.GetDarkMagLabel(cls),
                static_cast<double>(camera.GetDarkMagDrawF(cls)), camera.GetDarkMagDraw(cls));
  return line;
}

TEST_F(LimitingMagnitudesTest, EveryClassAtEveryZoomIsAsInTheTable) {
  std::ifstream table(LIMITING_MAGNITUDES_TABLE);
  int lines = 0;
  for (std::string expected; std::getline(table, expected);) {
    if (expected.empty() || expected[0] == '#') continue;
    std::istringstream columns(expected);
    std::string name, bar;
    double zoom;
    int object, label;
    ASSERT_TRUE(columns >> name >> zoom >> bar >> object >> label) << expected;
    Correct(GetFOURCC(name.c_str()), static_cast<float>(object), static_cast<float>(label));
    camera.SetZoom(zoom);
    EXPECT_EQ(TableLine(camera, name, zoom, object, label), expected);
    ++lines;
  }
  EXPECT_EQ(lines, 840);
}

}  // namespace
